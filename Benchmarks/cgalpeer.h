#pragma once

#include "baretessellation.h"
#include "benchmarkmap.h"
#include "peerresult.h"

/// Constrained Delaunay triangulation by CGAL, polygon by polygon; counts the triangles inside the outer ring and
/// outside the holes.
PeerResult triangulateWithCgal(const BenchmarkMap &map, const Placement &placement);
