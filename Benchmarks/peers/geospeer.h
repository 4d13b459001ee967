#pragma once

#include "baretessellation.h"
#include "benchmarkmap.h"
#include "peerresult.h"

/// Constrained Delaunay triangulation by GEOS, polygon by polygon.
PeerResult triangulateWithGeos(const BenchmarkMap &map, const Placement &placement);

/// Pairs of polygons whose interiors meet, each with the holes that follow it: GEOS's predicate on the pairs that its
/// packed R-tree finds.
int overlapsByGeos(const BenchmarkMap &map);
