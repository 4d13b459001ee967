#pragma once

#include "planering.h"

#include <functional>
#include <vector>

/// Finds polygons that a later record repeats vertex by vertex. The later one hides them, and their holes would be cut
/// from the wrong one of the two.
class DuplicatePolygons {
public:
    /// Drops each polygon whose rings a later one repeats, wherever these start and whichever way they run.
    /// `hides(later, earlier)` (records) says whether the later one may stand for the earlier one. Returns the dropped
    /// polygons, in their order.
    static std::vector<PlanePolygon> drop(std::vector<PlanePolygon> &polygons,
                                          const std::function<bool(int, int)> &hides);
};
