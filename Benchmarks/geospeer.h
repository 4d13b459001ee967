#pragma once

#include "benchmarkmap.h"
#include "peerresult.h"
#include "plainrebuild.h"

/// Constrained Delaunay triangulation by GEOS, polygon by polygon.
PeerResult triangulateWithGeos(const BenchmarkMap &map, const Placement &placement);
