#pragma once

#include "planering.h"

#include <cstddef>
#include <vector>

/// Which of the faces that a tangled ring divides the plane into are covered by the even-odd rule: those separated from
/// the outside by an odd number of edges. Found by breadth-first search from the outside over the faces' shared edges.
/// An edge that the ring runs along more than once counts once, as in GEOS's own repair.
class CoveredFaces {
public:
    /// `faces` come from noded lines, so that two of them share whole edges or none. Says for each whether it is
    /// covered.
    static std::vector<bool> among(const std::vector<PlanePolygon> &faces);

private:
    /// For each face the faces beyond its edges.
    using Neighbours = std::vector<std::vector<size_t>>;

    static Neighbours neighboursOf(const std::vector<PlanePolygon> &faces, std::vector<bool> &isOutermost);
};
