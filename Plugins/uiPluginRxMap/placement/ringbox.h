#pragma once

#include "boxindex.h"

#include "Framework/rxpolygon.h"

/// A hole's vertex as it is tested: narrowed to float and widened again.
OrvikTypes::RX_POLYGONVERTEX narrowed(const OrvikTypes::RX_POLYGONVERTEX &vertex);
/// The box outside of which no point is inside an outer ring; false when the ring is not ordinary.
bool boxOfOuter(const OrvikTypes::RX_POLYGON &ring, Box &box);
/// The box of a hole's narrowed vertices; false when one of them is not finite, and so inside no ordinary ring.
bool boxOfHole(const OrvikTypes::RX_POLYGON &ring, Box &box);
