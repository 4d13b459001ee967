#include "holebridge.h"

#include <algorithm>
#include <limits>

namespace {

struct Way {
    double squaredLength;
    size_t outer;
    size_t hole;
};

/// Ways that are tried before a hole is given up.
constexpr size_t mostWays = 2000;

/// Puts each vertex of `others` that lies within an edge of `ring` into that edge.
void takeTouchingVertices(PlaneRing &ring, const PlaneRing &others)
{
    for (const PlaneVertex &vertex : others) {
        for (size_t i = 0; i < ring.size(); ++i) {
            const PlaneVertex &from = ring[i];
            const PlaneVertex &to = ring[(i + 1) % ring.size()];
            if (samePlace(vertex, from) || samePlace(vertex, to) || !liesOnSegment(vertex, from, to))
                continue;
            ring.insert(ring.begin() + static_cast<std::ptrdiff_t>(i) + 1, vertex);
            break;
        }
    }
}

/// For each vertex of the outer ring, the way to the nearest vertex of the hole; shortest first.
std::vector<Way> ways(const PlaneRing &outer, const PlaneRing &hole)
{
    std::vector<Way> result;
    result.reserve(outer.size());
    for (size_t i = 0; i < outer.size(); ++i) {
        Way nearest = {std::numeric_limits<double>::infinity(), i, 0};
        for (size_t k = 0; k < hole.size(); ++k) {
            const double dx = hole[k].x - outer[i].x;
            const double dy = hole[k].y - outer[i].y;
            if (dx * dx + dy * dy < nearest.squaredLength)
                nearest = {dx * dx + dy * dy, i, k};
        }
        result.push_back(nearest);
    }
    std::sort(result.begin(), result.end(),
              [](const Way &a, const Way &b) { return a.squaredLength < b.squaredLength; });
    return result;
}

/// Whether the segment meets no edge of the ring but those that begin or end where it does.
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

/// The outer ring with the hole's round put in behind its vertex `way.outer`.
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
    const std::vector<Way> candidates = ways(outer, hole);
    const size_t tried = std::min(mostWays, candidates.size());
    for (size_t i = 0; i < tried; ++i) {
        const Way &way = candidates[i];
        if (way.squaredLength > 0.0 && !isFree(polygon, outer[way.outer], hole[way.hole]))
            continue;
        polygon.outer = joined(outer, hole, way);
        polygon.holes.erase(polygon.holes.begin() + static_cast<std::ptrdiff_t>(number));
        return true;
    }
    return false;
}
