#pragma once

#include "planering.h"

#include <vector>

/// A square with its south-west corner at that place, metres.
inline PlaneRing square(double x, double y, double side)
{
    return {{x, y}, {x + side, y}, {x + side, y + side}, {x, y + side}};
}

inline PlanePolygon polygonOf(int record, const PlaneRing &outer, const std::vector<PlaneRing> &holes = {})
{
    return {outer, holes, record};
}
