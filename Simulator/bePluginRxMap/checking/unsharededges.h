#pragma once

#include "mapview.h"

#include <vector>

/// The edges of a map at which the number of polygons that lie over the ground may change.
namespace UnsharedEdges {

/// All edges of all rings but those that as many polygons have on their left as on their right: there the number of
/// polygons is the same on both sides, whatever else lies there. Each edge once, in no order. In a map whose neighbours
/// share their vertices these are its outer borders and what is wrong with it.
std::vector<PlaneEdge> of(const MapView &map);

} // namespace UnsharedEdges
