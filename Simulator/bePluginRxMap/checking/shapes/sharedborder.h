#pragma once

#include "mapview.h"

/// The border that two polygons have in common.
namespace SharedBorder {

/// Metres along which edges of both lie on each other, no farther apart than `tolerance` (metres); their vertices need
/// not be the same.
double length(const MapView::Polygon &a, const MapView::Polygon &b, double tolerance);

} // namespace SharedBorder
