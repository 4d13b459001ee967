#pragma once

#include "unsharededges.h"

/// Closes slits between polygons that are open to the outside, so that they become faces.
namespace SlitBridges {

/// For each end of an edge the shortest line to an edge of another polygon that is more than `least` and at most `most`
/// metres long, where there is one; and lines `most` metres long at places where two edges that were nearer than that
/// for `leastLength` metres begin to be farther apart.
std::vector<PlaneEdge> across(const UnsharedEdges::List &edges, double least, double most, double leastLength);

} // namespace SlitBridges
