#pragma once

#include "planering.h"

#include <cstddef>

/// Counts where the rings of a polygon cross, touch or run along each other or themselves, so that no repair is started
/// for which the memory is too small.
namespace RingCrossings {

/// Pairs of edges that meet elsewhere than at a vertex of both; stops counting beyond `limit`, and when GeosInterrupt
/// asks for it. For vertices on the plane's grid.
size_t count(const PlanePolygon &polygon, size_t limit);
size_t count(const std::vector<PlaneEdge> &edges, size_t limit);

} // namespace RingCrossings
