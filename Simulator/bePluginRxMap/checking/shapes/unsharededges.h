#pragma once

#include "mapview.h"

#include <vector>

/// The edges of a map at which the number of polygons that lie over the ground may change.
namespace UnsharedEdges {

struct List {
    std::vector<PlaneEdge> edges;
    /// For each edge a polygon that has it, by its place in MapView::polygons().
    std::vector<unsigned> polygons;
};

/// All edges of all rings but those that as many polygons have on their left as on their right: there the number of
/// polygons is the same on both sides, whatever else lies there. Each edge once, in no order. In a map whose neighbours
/// share their vertices these are its outer borders and what is wrong with it.
List of(const MapView &map);

} // namespace UnsharedEdges
