#pragma once

#include "baretessellation.h"
#include "benchmarkmap.h"
#include "peerresult.h"

/// Constrained Delaunay triangulation by GEOS, polygon by polygon.
PeerResult triangulateWithGeos(const BenchmarkMap &map, const Placement &placement);
