#pragma once

#include <QString>

/// Tries what the map needs of the display's OpenGL before anything is shown.
namespace OpenGlCheck {

/// Empty, or one line that says what the display lacks.
QString problem();

} // namespace OpenGlCheck
