#pragma once

#include "mapview.h"

#include <vector>

/// The edges of a map at which the number of polygons that lie over the ground may change.
namespace UnsharedEdges {

struct List {
    std::vector<PlaneEdge> edges;
    /// For each edge the place in MapView::polygons() of a polygon that has it.
    std::vector<unsigned> polygons;
};

/// All edges of all rings, each once, in no order, except those with as many polygons on their left as on their right:
/// there the number of polygons is the same on both sides, whatever else lies there. Where neighbours share their
/// vertices, these are the map's outer borders and its faults.
List of(const MapView &map);

} // namespace UnsharedEdges
