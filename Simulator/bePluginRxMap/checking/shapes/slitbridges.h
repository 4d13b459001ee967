#pragma once

#include "unsharededges.h"

/// Closes slits between polygons that are open to the outside, so that they become faces.
namespace SlitBridges {

/// For each end of an edge the shortest line to an edge of another polygon that is more than `least` and at most `most`
/// metres long, where there is one; and the lines of `most` metres beyond which edges are farther apart that were
/// nearer for `leastLength` metres.
std::vector<PlaneEdge> across(const UnsharedEdges::List &edges, double least, double most, double leastLength);

} // namespace SlitBridges
