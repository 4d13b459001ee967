#include "ringcrossings.h"

#include "geosinterrupt.h"
#include "ringtree.h"

namespace {

void appendEdges(const PlaneRing &ring, std::vector<PlaneEdge> &edges)
{
    for (size_t i = 0; i < ring.size(); ++i)
        edges.push_back({ring[i], ring[i + 1 < ring.size() ? i + 1 : 0]});
}

bool shareAVertex(const PlaneEdge &a, const PlaneEdge &b)
{
    return samePlace(a.from, b.from) || samePlace(a.from, b.to) || samePlace(a.to, b.from) || samePlace(a.to, b.to);
}

} // namespace

size_t RingCrossings::count(const PlanePolygon &polygon, size_t limit)
{
    std::vector<PlaneEdge> edges;
    appendEdges(polygon.outer, edges);
    for (const PlaneRing &hole : polygon.holes)
        appendEdges(hole, edges);
    return count(edges, limit);
}

size_t RingCrossings::count(const std::vector<PlaneEdge> &edges, size_t limit)
{
    std::vector<RingExtent> extents;
    extents.reserve(edges.size());
    for (const PlaneEdge &edge : edges)
        extents.push_back(RingExtent::of(&edge.from, 2));
    const RingTree tree(extents);
    size_t crossings = 0;
    for (size_t i = 0; i < edges.size() && crossings <= limit && !GeosInterrupt::isRequested(); ++i) {
        for (const unsigned other : tree.meeting(extents[i])) {
            if (other > i && !shareAVertex(edges[i], edges[other])
                && segmentsMeet(edges[i].from, edges[i].to, edges[other].from, edges[other].to))
                ++crossings;
        }
    }
    return crossings;
}
