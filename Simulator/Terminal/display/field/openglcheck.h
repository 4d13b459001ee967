#pragma once

#include <QString>

/// Tries out, before anything is shown, what the map needs of the display's OpenGL.
namespace OpenGlCheck {

/// Takes OpenGL ES 2 where the environment says QT_OPENGL=es2, as Qt does on other systems; to be called before there
/// is an application.
void chooseKind();

/// Empty, or one line that says what the display lacks.
QString problem();

} // namespace OpenGlCheck
