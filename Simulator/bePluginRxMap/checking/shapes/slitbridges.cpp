#include "slitbridges.h"

#include <algorithm>
#include <cmath>

namespace {

PlaneVertex nearestOn(const PlaneEdge &edge, const PlaneVertex &point)
{
    const double x = edge.to.x - edge.from.x;
    const double y = edge.to.y - edge.from.y;
    const double share =
        std::clamp(((point.x - edge.from.x) * x + (point.y - edge.from.y) * y) / (x * x + y * y), 0.0, 1.0);
    return {edge.from.x + share * x, edge.from.y + share * y};
}

} // namespace

std::vector<PlaneEdge> SlitBridges::across(const UnsharedEdges::List &list, double least, double most)
{
    std::vector<RingExtent> extents;
    extents.reserve(list.edges.size());
    for (const PlaneEdge &edge : list.edges)
        extents.push_back(RingExtent::of(&edge.from, 2));
    const RingTree tree(extents);
    std::vector<PlaneEdge> bridges;
    for (size_t i = 0; i < list.edges.size(); ++i) {
        for (const PlaneVertex &end : {list.edges[i].from, list.edges[i].to}) {
            PlaneVertex nearest = end;
            double shortest = most;
            for (const unsigned other : tree.meeting({end.x - most, end.y - most, end.x + most, end.y + most})) {
                const PlaneVertex beyond = nearestOn(list.edges[other], end);
                const double distance = std::hypot(beyond.x - end.x, beyond.y - end.y);
                if (list.polygons[other] == list.polygons[i] || distance <= least || distance > shortest)
                    continue;
                shortest = distance;
                nearest = beyond;
            }
            if (!samePlace(nearest, end))
                bridges.push_back({end, nearest});
        }
    }
    return bridges;
}
