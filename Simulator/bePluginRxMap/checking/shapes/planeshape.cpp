#include "planeshape.h"

#include <cmath>

namespace {

double length(const PlaneRing &ring)
{
    double sum = 0.0;
    for (size_t i = 0, before = ring.size() - 1; i < ring.size(); before = i++)
        sum += std::hypot(ring[i].x - ring[before].x, ring[i].y - ring[before].y);
    return sum;
}

} // namespace

double PlaneShape::perimeter(const PlanePolygon &polygon)
{
    double sum = length(polygon.outer);
    for (const PlaneRing &hole : polygon.holes)
        sum += length(hole);
    return sum;
}

double PlaneShape::width(double area, double perimeter)
{
    // The sides are the two solutions of x² - (perimeter / 2) x + area = 0.
    const double half = 0.5 * perimeter;
    const double discriminant = half * half - 4.0 * area;
    // The lesser one, by the product of both, since the difference would cancel for long strips.
    return discriminant > 0.0 ? 2.0 * area / (half + std::sqrt(discriminant)) : std::sqrt(area);
}

RingExtent PlaneShape::extent(const PlanePolygon &polygon)
{
    return RingExtent::of(polygon.outer.data(), polygon.outer.size());
}
