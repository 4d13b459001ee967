#include "mapview.h"

#include <cmath>

using OrvikTypes::RX_POLYGON;

namespace {

PlaneRing ringOf(const RX_POLYGON &ring)
{
    return {ring.vertices, ring.vertices + ring.vertexCount};
}

} // namespace

MapView::MapView(const RX_POLYGON *first, const std::vector<int> &records, size_t mappings,
                 const std::vector<PlaneRing> &joinedHoles)
    : mappingCount(mappings)
    , joined(joinedHoles)
{
    list.reserve(records.size());
    for (const RX_POLYGON *ring = first; ring != nullptr; ring = ring->next) {
        if (ring->isHole)
            ++list.back().holes;
        else
            list.push_back({ring, 0, records[list.size()], RingExtent::of(ring->vertices, ring->vertexCount)});
    }
}

bool MapView::contend(const Polygon &a, const Polygon &b) const
{
    for (size_t i = 0; i < mappingCount; ++i) {
        if (!std::isnan(a.outer->rates[i]) && !std::isnan(b.outer->rates[i]))
            return true;
    }
    return false;
}

bool MapView::haveSameRates(const Polygon &a, const Polygon &b) const
{
    for (size_t i = 0; i < mappingCount; ++i) {
        const float one = a.outer->rates[i];
        const float other = b.outer->rates[i];
        if (one != other && !(std::isnan(one) && std::isnan(other)))
            return false;
    }
    return true;
}

std::vector<RingExtent> MapView::extents() const
{
    std::vector<RingExtent> extents;
    extents.reserve(list.size());
    for (const Polygon &polygon : list)
        extents.push_back(polygon.extent);
    return extents;
}

double MapView::area(const Polygon &polygon)
{
    double area = 2.0 * polygon.outer->area;
    forEachRing(polygon, [&area](const RX_POLYGON &ring) { area -= ring.area; });
    return area;
}

double MapView::perimeter(const Polygon &polygon)
{
    double length = 0.0;
    forEachRing(polygon, [&length](const RX_POLYGON &ring) {
        const PlaneVertex *before = ring.vertices + ring.vertexCount - 1;
        for (const PlaneVertex *vertex = ring.vertices; vertex != ring.vertices + ring.vertexCount; ++vertex) {
            length += std::hypot(vertex->x - before->x, vertex->y - before->y);
            before = vertex;
        }
    });
    return length;
}

PlanePolygon MapView::copy(const Polygon &polygon)
{
    PlanePolygon result;
    result.record = polygon.record;
    forEachRing(polygon, [&result](const RX_POLYGON &ring) {
        if (ring.isHole)
            result.holes.push_back(ringOf(ring));
        else
            result.outer = ringOf(ring);
    });
    return result;
}
