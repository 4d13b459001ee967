#pragma once

#include "planering.h"

/// Makes a hole part of its outer ring, for holes that the renderer would not cut out. The ring then runs to the hole,
/// around it and back the same way: by the even-odd rule it covers what it covered with the hole cut out.
class HoleBridge {
public:
    /// Joins hole number `hole` to the outer ring where they touch, else by the shortest free way between two of their
    /// vertices. Adds no new vertex positions. False, and nothing is changed, when there is no free way.
    static bool join(PlanePolygon &polygon, size_t hole);
};
