#pragma once

#include "Backend/mapfinding.h"

/// The kinds of findings in words.
namespace FindingKind {

/// As reports and scripts name it: "unitUnknown".
QString name(MapFinding::Kind kind);
/// As the operator reads it, in the language of the display.
QString title(MapFinding::Kind kind);

} // namespace FindingKind
