#include "holearrangement.h"

#include "holebridge.h"

#include <queue>

#include <algorithm>
#include <functional>

namespace {

constexpr int maxRounds = 8;

/// Whether every vertex of `inner` lies in `outer` or on it.
bool liesIn(const PlaneRing &inner, const PlaneRing &outer)
{
    const SlabIndex index(outer.data(), outer.size());
    const auto isBefore = [](const PlaneVertex &a, const PlaneVertex &b) { return a.x != b.x ? a.x < b.x : a.y < b.y; };
    PlaneRing places = outer;
    std::sort(places.begin(), places.end(), isBefore);
    return std::all_of(inner.begin(), inner.end(), [&](const PlaneVertex &vertex) {
        if (std::binary_search(places.begin(), places.end(), vertex, isBefore)
            || index.contains(vertex.x, vertex.y, SharedEdgeCrossing()))
            return true;
        for (size_t i = 0, j = outer.size() - 1; i < outer.size(); j = i++) {
            if (liesOnSegment(vertex, outer[j], outer[i]))
                return true;
        }
        return false;
    });
}

} // namespace

HoleArrangement::HoleArrangement(std::vector<PlanePolygon> &toArrange)
    : polygons(toArrange)
{
}

int HoleArrangement::arrange(std::vector<PlanePolygon> &polygons)
{
    const bool hasHoles = std::any_of(polygons.begin(), polygons.end(),
                                      [](const PlanePolygon &polygon) { return !polygon.holes.empty(); });
    if (!hasHoles)
        return 0;
    HoleArrangement arrangement(polygons);
    for (int i = 0; i < maxRounds && !arrangement.round(); ++i) { }
    return arrangement.misplaced();
}

std::vector<RingView> HoleArrangement::outers() const
{
    std::vector<RingView> result;
    result.reserve(polygons.size());
    for (const PlanePolygon &polygon : polygons)
        result.push_back({polygon.outer.data(), polygon.outer.size(), ringArea(polygon.outer)});
    return result;
}

int HoleArrangement::misplaced() const
{
    const RendererHoleRule placement(outers());
    int count = 0;
    for (size_t i = 0; i < polygons.size(); ++i) {
        for (const PlaneRing &hole : polygons[i].holes)
            count += placement.taker(hole.data(), hole.size(), ringArea(hole)) == static_cast<int>(i) ? 0 : 1;
    }
    return count;
}

bool HoleArrangement::round()
{
    order.clear();
    toJoin.clear();
    const RendererHoleRule placement(outers());
    for (size_t i = 0; i < polygons.size(); ++i) {
        for (size_t k = 0; k < polygons[i].holes.size(); ++k) {
            const PlaneRing &hole = polygons[i].holes[k];
            judge(i, k, placement.takers(hole.data(), hole.size(), ringArea(hole)));
        }
    }
    if (!toJoin.empty() && joinHoles())
        return false;
    return sort();
}

void HoleArrangement::judge(size_t owner, size_t hole, const std::vector<int> &takers)
{
    const auto place = static_cast<int>(owner);
    if (std::find(takers.begin(), takers.end(), place) == takers.end()) {
        toJoin.emplace_back(owner, hole);
        return;
    }
    for (const int taker : takers) {
        if (taker == place)
            continue;
        if (place > taker && !isInHoleOf(owner, static_cast<size_t>(taker))) {
            toJoin.emplace_back(owner, hole);
            return;
        }
        order.emplace_back(place, taker);
    }
}

bool HoleArrangement::isInHoleOf(size_t inner, size_t outer) const
{
    const std::vector<PlaneRing> &holes = polygons[outer].holes;
    return std::any_of(holes.begin(), holes.end(),
                       [this, inner](const PlaneRing &hole) { return liesIn(polygons[inner].outer, hole); });
}

bool HoleArrangement::joinHoles()
{
    bool hasJoined = false;
    // From the last to the first, since a joined hole leaves its list.
    for (auto it = toJoin.rbegin(); it != toJoin.rend(); ++it)
        hasJoined = HoleBridge::join(polygons[it->first], it->second) || hasJoined;
    return hasJoined;
}

std::vector<int> HoleArrangement::sortedAsFarAsPossible() const
{
    std::vector<int> waitsFor(polygons.size(), 0);
    std::vector<std::vector<int>> followers(polygons.size());
    for (const auto &[before, after] : order) {
        ++waitsFor[static_cast<size_t>(after)];
        followers[static_cast<size_t>(before)].push_back(after);
    }
    std::priority_queue<int, std::vector<int>, std::greater<int>> ready;
    for (size_t i = 0; i < polygons.size(); ++i) {
        if (waitsFor[i] == 0)
            ready.push(static_cast<int>(i));
    }
    std::vector<int> sorted;
    while (!ready.empty()) {
        const int next = ready.top();
        ready.pop();
        sorted.push_back(next);
        for (const int follower : followers[static_cast<size_t>(next)]) {
            if (--waitsFor[static_cast<size_t>(follower)] == 0)
                ready.push(follower);
        }
    }
    return sorted;
}

bool HoleArrangement::sort()
{
    std::vector<int> sorted = sortedAsFarAsPossible();
    if (sorted.size() < polygons.size()) {
        // Polygons that would each have to go before the other.
        std::vector<bool> isSorted(polygons.size(), false);
        for (const int place : sorted)
            isSorted[static_cast<size_t>(place)] = true;
        toJoin.clear();
        for (size_t i = 0; i < polygons.size(); ++i) {
            for (size_t k = 0; !isSorted[i] && k < polygons[i].holes.size(); ++k)
                toJoin.emplace_back(i, k);
            if (!isSorted[i])
                sorted.push_back(static_cast<int>(i));
        }
        if (joinHoles())
            return false;
    }
    std::vector<PlanePolygon> arranged;
    arranged.reserve(polygons.size());
    for (const int place : sorted)
        arranged.push_back(std::move(polygons[static_cast<size_t>(place)]));
    polygons = std::move(arranged);
    return true;
}
