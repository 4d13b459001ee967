#include "slitbridges.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

PlaneVertex nearestOn(const PlaneEdge &edge, const PlaneVertex &point)
{
    const double x = edge.to.x - edge.from.x;
    const double y = edge.to.y - edge.from.y;
    const double share =
        std::clamp(((point.x - edge.from.x) * x + (point.y - edge.from.y) * y) / (x * x + y * y), 0.0, 1.0);
    return {edge.from.x + share * x, edge.from.y + share * y};
}

/// The line across the place where the way from one edge to another becomes `most` metres long, where there is one: by
/// the distance from the other edge's line, which changes evenly along the edge. None where the edges are that near for
/// less than `leastLength`.
std::optional<PlaneEdge> whereWide(const PlaneEdge &edge, const PlaneEdge &other, double most, double leastLength)
{
    const double length = std::hypot(other.to.x - other.from.x, other.to.y - other.from.y);
    const auto beside = [&other, length](const PlaneVertex &point) {
        return ((other.to.x - other.from.x) * (point.y - other.from.y)
                - (other.to.y - other.from.y) * (point.x - other.from.x))
            / length;
    };
    const double first = beside(edge.from);
    const double last = beside(edge.to);
    const double wide = std::copysign(most, std::fabs(first) > std::fabs(last) ? first : last);
    const double share = (wide - first) / (last - first);
    if (!(share > 0.0 && share < 1.0))
        return {};
    const double narrow = std::fabs(first) < std::fabs(last) ? share : 1.0 - share;
    if (narrow * std::hypot(edge.to.x - edge.from.x, edge.to.y - edge.from.y) < leastLength)
        return {};
    const PlaneVertex point = {edge.from.x + share * (edge.to.x - edge.from.x),
                               edge.from.y + share * (edge.to.y - edge.from.y)};
    const PlaneVertex foot = nearestOn(other, point);
    // Beyond the other edge's end there is no slit.
    constexpr double exactness = 1e-6;
    if (std::hypot(foot.x - point.x, foot.y - point.y) > most + exactness)
        return {};
    return PlaneEdge{point, foot};
}

} // namespace

std::vector<PlaneEdge> SlitBridges::across(const UnsharedEdges::List &list, double least, double most,
                                           double leastLength)
{
    std::vector<RingExtent> extents;
    extents.reserve(list.edges.size());
    for (const PlaneEdge &edge : list.edges)
        extents.push_back(RingExtent::of(&edge.from, 2));
    const RingTree tree(extents);
    std::vector<PlaneEdge> bridges;
    for (size_t i = 0; i < list.edges.size(); ++i) {
        const PlaneEdge &edge = list.edges[i];
        const RingExtent &around = extents[i];
        PlaneEdge nearest[] = {{edge.from, edge.from}, {edge.to, edge.to}};
        double shortest[] = {most, most};
        for (const unsigned other :
             tree.meeting({around.minX - most, around.minY - most, around.maxX + most, around.maxY + most})) {
            if (list.polygons[other] == list.polygons[i])
                continue;
            for (int end = 0; end < 2; ++end) {
                const PlaneVertex beyond = nearestOn(list.edges[other], nearest[end].from);
                const double distance = std::hypot(beyond.x - nearest[end].from.x, beyond.y - nearest[end].from.y);
                if (distance <= least || distance > shortest[end])
                    continue;
                shortest[end] = distance;
                nearest[end].to = beyond;
            }
            const std::optional<PlaneEdge> wide = whereWide(edge, list.edges[other], most, leastLength);
            if (wide)
                bridges.push_back(*wide);
        }
        for (const PlaneEdge &bridge : nearest) {
            if (!samePlace(bridge.from, bridge.to))
                bridges.push_back(bridge);
        }
    }
    return bridges;
}
