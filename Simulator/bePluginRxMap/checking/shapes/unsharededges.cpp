#include "unsharededges.h"

#include <algorithm>
#include <tuple>

using OrvikTypes::RX_POLYGON;

namespace {

/// An edge from its lesser end to its greater one, and on which side of it the polygon lies.
struct SidedEdge {
    PlaneVertex low;
    PlaneVertex high;
    int side; ///< 1 for left, -1 for right.
    unsigned polygon;

    bool isBefore(const SidedEdge &other) const
    {
        return std::tie(low.x, low.y, high.x, high.y) < std::tie(other.low.x, other.low.y, other.high.x, other.high.y);
    }
    bool isSame(const SidedEdge &other) const { return samePlace(low, other.low) && samePlace(high, other.high); }
};

double doubledArea(const RX_POLYGON &ring)
{
    double doubled = 0.0;
    for (quint32 i = 1; i + 1 < ring.vertexCount; ++i)
        doubled += turn(ring.vertices[0], ring.vertices[i], ring.vertices[i + 1]);
    return doubled;
}

void append(const RX_POLYGON &ring, unsigned polygon, std::vector<SidedEdge> &edges)
{
    const int inside = (doubledArea(ring) > 0.0) == ring.isHole ? -1 : 1;
    const PlaneVertex *from = ring.vertices + ring.vertexCount - 1;
    for (const PlaneVertex *to = ring.vertices; to != ring.vertices + ring.vertexCount; ++to) {
        const bool isRising = std::tie(from->x, from->y) < std::tie(to->x, to->y);
        edges.push_back(isRising ? SidedEdge{*from, *to, inside, polygon} : SidedEdge{*to, *from, -inside, polygon});
        from = to;
    }
}

} // namespace

UnsharedEdges::List UnsharedEdges::of(const MapView &map)
{
    size_t vertices = 0;
    const auto count = [&vertices](const RX_POLYGON &ring) { vertices += ring.vertexCount; };
    for (const MapView::Polygon &polygon : map.polygons())
        MapView::forEachRing(polygon, count);
    std::vector<SidedEdge> edges;
    edges.reserve(vertices);
    for (unsigned place = 0; place < map.polygons().size(); ++place)
        MapView::forEachRing(map.polygons()[place],
                             [&edges, place](const RX_POLYGON &ring) { append(ring, place, edges); });
    std::sort(edges.begin(), edges.end(), [](const SidedEdge &a, const SidedEdge &b) { return a.isBefore(b); });
    List result;
    for (auto edge = edges.cbegin(); edge != edges.cend();) {
        const auto first = edge;
        int sides = 0;
        for (; edge != edges.cend() && edge->isSame(*first); ++edge)
            sides += edge->side;
        if (sides == 0)
            continue;
        result.edges.push_back({first->low, first->high});
        result.polygons.push_back(first->polygon);
    }
    return result;
}
