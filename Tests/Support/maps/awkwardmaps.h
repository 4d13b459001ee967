#pragma once

#include "mapkinds.h"

/// Maps on which holes are hard to place: combs, whose edges all span nearly all heights and which have a hole in each
/// tooth; wide strips of many low edges; and overlapping rough rings, whose boxes hold most holes.
std::vector<MapKind> awkwardKinds();
