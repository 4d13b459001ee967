#pragma once

#include "planering.h"
#include "ringtree.h"

#include <QPointF>
#include <QRectF>

/// Measures of areas of the local plane.
namespace PlaneShape {

/// Metres, around the holes as well.
double perimeter(const PlanePolygon &polygon);

/// The shorter side of the rectangle of this area and perimeter, metres: exact for rectangles, and for a strip however
/// it bends nearly its width. What is rounder than a square counts as a square.
double width(double area, double perimeter);

RingExtent extent(const PlanePolygon &polygon);
inline QRectF rectangle(const RingExtent &extent)
{
    return {extent.minX, extent.minY, extent.maxX - extent.minX, extent.maxY - extent.minY};
}

} // namespace PlaneShape
