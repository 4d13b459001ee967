#include "sharedborder.h"

#include <algorithm>
#include <cmath>

using OrvikTypes::RX_POLYGON;

namespace {

bool areNear(const RingExtent &a, const RingExtent &b, double tolerance)
{
    return a.minX <= b.maxX + tolerance && b.minX <= a.maxX + tolerance && a.minY <= b.maxY + tolerance
        && b.minY <= a.maxY + tolerance;
}

RingExtent extentOf(const PlaneEdge &edge)
{
    return RingExtent::of(&edge.from, 2);
}

/// The polygon's edges whose extent comes near the given one.
std::vector<PlaneEdge> edgesNear(const MapView::Polygon &polygon, const RingExtent &extent, double tolerance)
{
    std::vector<PlaneEdge> edges;
    MapView::forEachRing(polygon, [&](const RX_POLYGON &ring) {
        const PlaneVertex *from = ring.vertices + ring.vertexCount - 1;
        for (const PlaneVertex *to = ring.vertices; to != ring.vertices + ring.vertexCount; from = to++) {
            const PlaneEdge edge = {*from, *to};
            if (areNear(extentOf(edge), extent, tolerance))
                edges.push_back(edge);
        }
    });
    return edges;
}

/// Metres of `edge` beside which `other` lies.
double lengthBeside(const PlaneEdge &edge, const PlaneEdge &other, double tolerance)
{
    const double x = edge.to.x - edge.from.x;
    const double y = edge.to.y - edge.from.y;
    const double whole = std::hypot(x, y);
    const auto isOff = [&](const PlaneVertex &end) {
        return std::fabs(turn(edge.from, edge.to, end)) > tolerance * whole;
    };
    if (whole == 0.0 || isOff(other.from) || isOff(other.to))
        return 0.0;
    const auto along = [&](const PlaneVertex &end) {
        return ((end.x - edge.from.x) * x + (end.y - edge.from.y) * y) / whole;
    };
    const auto [first, last] = std::minmax({along(other.from), along(other.to)});
    return std::max(0.0, std::min(last, whole) - std::max(first, 0.0));
}

} // namespace

double SharedBorder::length(const MapView::Polygon &a, const MapView::Polygon &b, double tolerance)
{
    const std::vector<PlaneEdge> others = edgesNear(b, a.extent, tolerance);
    double sum = 0.0;
    for (const PlaneEdge &edge : edgesNear(a, b.extent, tolerance)) {
        const RingExtent extent = extentOf(edge);
        for (const PlaneEdge &other : others) {
            if (areNear(extent, extentOf(other), tolerance))
                sum += lengthBeside(edge, other, tolerance);
        }
    }
    return sum;
}
