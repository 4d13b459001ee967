#include "holebridge.h"

#include <algorithm>
#include <limits>

namespace {

struct Way {
    double squaredLength;
    size_t outer;
    size_t hole;
};

/// This many ways are tried before a hole is given up.
constexpr size_t maxWays = 2000;

struct Box {
    double west = std::numeric_limits<double>::infinity();
    double south = std::numeric_limits<double>::infinity();
    double east = -std::numeric_limits<double>::infinity();
    double north = -std::numeric_limits<double>::infinity();

    /// From the place to the box, 0 within it.
    double squaredDistance(const PlaneVertex &place) const
    {
        const double dx = std::max({west - place.x, place.x - east, 0.0});
        const double dy = std::max({south - place.y, place.y - north, 0.0});
        return dx * dx + dy * dy;
    }
    bool meetsExtentOf(const PlaneVertex &a, const PlaneVertex &b) const
    {
        return std::max(a.x, b.x) >= west && std::min(a.x, b.x) <= east && std::max(a.y, b.y) >= south
            && std::min(a.y, b.y) <= north;
    }
};

Box boxOf(const PlaneRing &ring)
{
    Box box;
    for (const PlaneVertex &vertex : ring) {
        box.west = std::min(box.west, vertex.x);
        box.south = std::min(box.south, vertex.y);
        box.east = std::max(box.east, vertex.x);
        box.north = std::max(box.north, vertex.y);
    }
    return box;
}

/// Puts each vertex of `others` that lies within an edge of `ring` into that edge.
void takeTouchingVertices(PlaneRing &ring, const PlaneRing &others)
{
    const Box box = boxOf(others);
    for (size_t i = 0; i < ring.size(); ++i) {
        if (!box.meetsExtentOf(ring[i], ring[(i + 1) % ring.size()]))
            continue;
        for (const PlaneVertex &vertex : others) {
            const PlaneVertex to = ring[(i + 1) % ring.size()];
            if (!samePlace(vertex, ring[i]) && !samePlace(vertex, to) && liesOnSegment(vertex, ring[i], to))
                ring.insert(ring.begin() + static_cast<std::ptrdiff_t>(i) + 1, vertex);
        }
    }
}

Way nearestWay(const PlaneRing &outer, size_t place, const PlaneRing &hole)
{
    Way nearest = {std::numeric_limits<double>::infinity(), place, 0};
    for (size_t k = 0; k < hole.size(); ++k) {
        const double dx = hole[k].x - outer[place].x;
        const double dy = hole[k].y - outer[place].y;
        if (dx * dx + dy * dy < nearest.squaredLength)
            nearest = {dx * dx + dy * dy, place, k};
    }
    return nearest;
}

/// Ways from each of the outer ring's vertices near the hole to the hole's nearest vertex; shortest first.
std::vector<Way> ways(const PlaneRing &outer, const PlaneRing &hole)
{
    const auto isShorter = [](const Way &a, const Way &b) { return a.squaredLength < b.squaredLength; };
    const Box box = boxOf(hole);
    std::vector<Way> result;
    result.reserve(outer.size());
    for (size_t i = 0; i < outer.size(); ++i)
        result.push_back({box.squaredDistance(outer[i]), i, 0});
    const auto end = result.begin() + static_cast<std::ptrdiff_t>(std::min(maxWays, result.size()));
    std::partial_sort(result.begin(), end, result.end(), isShorter);
    result.erase(end, result.end());
    for (Way &way : result)
        way = nearestWay(outer, way.outer, hole);
    std::sort(result.begin(), result.end(), isShorter);
    return result;
}

/// Whether the segment meets no edge of the ring except those that begin or end where it does.
bool isClearOf(const PlaneRing &ring, const PlaneVertex &a, const PlaneVertex &b)
{
    for (size_t i = 0; i < ring.size(); ++i) {
        const PlaneVertex &from = ring[i];
        const PlaneVertex &to = ring[(i + 1) % ring.size()];
        const bool fromIsEnd = samePlace(from, a) || samePlace(from, b);
        const bool toIsEnd = samePlace(to, a) || samePlace(to, b);
        if (fromIsEnd && toIsEnd)
            return false;
        if (fromIsEnd || toIsEnd) {
            const PlaneVertex &end = fromIsEnd ? from : to;
            const PlaneVertex &other = samePlace(end, a) ? b : a;
            if (liesOnSegment(fromIsEnd ? to : from, a, b) || liesOnSegment(other, from, to))
                return false;
        } else if (segmentsMeet(from, to, a, b)) {
            return false;
        }
    }
    return true;
}

bool isFree(const PlanePolygon &polygon, const PlaneVertex &a, const PlaneVertex &b)
{
    return isClearOf(polygon.outer, a, b)
        && std::all_of(polygon.holes.begin(), polygon.holes.end(),
                       [&a, &b](const PlaneRing &hole) { return isClearOf(hole, a, b); });
}

/// The outer ring with the way around the hole inserted after its vertex `way.outer`.
PlaneRing joined(const PlaneRing &outer, const PlaneRing &hole, const Way &way)
{
    const auto split = static_cast<std::ptrdiff_t>(way.outer) + 1;
    const auto start = static_cast<std::ptrdiff_t>(way.hole);
    PlaneRing ring(outer.begin(), outer.begin() + split);
    ring.insert(ring.end(), hole.begin() + start, hole.end());
    ring.insert(ring.end(), hole.begin(), hole.begin() + start);
    ring.push_back(hole[way.hole]);
    ring.insert(ring.end(), outer.begin() + split - 1, outer.end());
    dropRepeatedVertices(ring);
    return ring;
}

} // namespace

bool HoleBridge::join(PlanePolygon &polygon, size_t number)
{
    PlaneRing outer = polygon.outer;
    PlaneRing hole = polygon.holes[number];
    if ((signedArea(outer) > 0.0) == (signedArea(hole) > 0.0))
        std::reverse(hole.begin(), hole.end());
    takeTouchingVertices(outer, hole);
    takeTouchingVertices(hole, outer);
    for (const Way &way : ways(outer, hole)) {
        if (way.squaredLength > 0.0 && !isFree(polygon, outer[way.outer], hole[way.hole]))
            continue;
        polygon.outer = joined(outer, hole, way);
        polygon.holes.erase(polygon.holes.begin() + static_cast<std::ptrdiff_t>(number));
        return true;
    }
    return false;
}
