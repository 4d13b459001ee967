#include "holearrangement.h"

#include "holebridge.h"
#include "rendererholerule.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <set>
#include <utility>

namespace {

/// A joined hole makes its outer ring smaller, so a further hole may fall out of it.
constexpr int maxRounds = 8;

std::vector<RingView> outersOf(const std::vector<PlanePolygon> &polygons)
{
    std::vector<RingView> result;
    result.reserve(polygons.size());
    for (const PlanePolygon &polygon : polygons)
        result.push_back({polygon.outer.data(), polygon.outer.size(), ringArea(polygon.outer)});
    return result;
}

HoleArrangement takersBy(const RendererHoleRule &rule, const std::vector<PlanePolygon> &polygons)
{
    HoleArrangement arrangement;
    for (size_t i = 0; i < polygons.size(); ++i) {
        for (const PlaneRing &hole : polygons[i].holes) {
            arrangement.takers.push_back(rule.taker(hole.data(), hole.size(), ringArea(hole)));
            if (arrangement.takers.back() != static_cast<int>(i))
                arrangement.misplaced.push_back(polygons[i].record);
        }
    }
    return arrangement;
}

/// Polygon and hole.
using HolePlace = std::pair<size_t, size_t>;
using HolePlaces = std::set<HolePlace>;

/// The hole of polygon number `outer` in which `inner` lies; one of `known` where there is a choice.
std::optional<HolePlace> holeAround(const std::vector<PlanePolygon> &polygons, size_t outer, const PlaneRing &inner,
                                    const HolePlaces &known)
{
    const std::vector<PlaneRing> &holes = polygons[outer].holes;
    const auto isAround = [&](size_t number) {
        const PlaneRing &hole = holes[number];
        return SlabIndex(hole.data(), hole.size()).contains(inner.front().x, inner.front().y, SharedEdgeCrossing());
    };
    for (auto it = known.lower_bound({outer, 0}); it != known.end() && it->first == outer; ++it) {
        if (isAround(it->second))
            return *it;
    }
    for (size_t number = 0; number < holes.size(); ++number) {
        if (isAround(number))
            return HolePlace(outer, number);
    }
    return {};
}

/// Adds the holes to join so that no polygon before the hole's own takes it. For an island in holes of other polygons,
/// these are those holes, which often settles many holes of the island at once; otherwise it is the hole itself.
void addJoinsFor(const HolePlace &place, const std::vector<PlanePolygon> &polygons, const RendererHoleRule &rule,
                 HolePlaces &joins)
{
    const PlaneRing &hole = polygons[place.first].holes[place.second];
    const std::vector<int> takers = rule.takers(hole.data(), hole.size(), ringArea(hole));
    const auto owner = std::find(takers.begin(), takers.end(), static_cast<int>(place.first));
    if (owner == takers.end()) {
        joins.insert(place);
        return;
    }
    HolePlaces around;
    for (auto taker = takers.begin(); taker != owner; ++taker) {
        const auto found = holeAround(polygons, static_cast<size_t>(*taker), hole, joins);
        if (!found) {
            joins.insert(place);
            return;
        }
        around.insert(*found);
    }
    joins.insert(around.begin(), around.end());
}

HolePlaces joinsFor(const std::vector<PlanePolygon> &polygons, const RendererHoleRule &rule,
                    const std::vector<int> &takers)
{
    HolePlaces joins;
    auto taker = takers.begin();
    for (size_t i = 0; i < polygons.size(); ++i) {
        for (size_t hole = 0; hole < polygons[i].holes.size(); ++hole) {
            if (*taker++ != static_cast<int>(i))
                addJoinsFor({i, hole}, polygons, rule, joins);
        }
    }
    return joins;
}

/// Joins the holes; returns those that could be joined.
std::vector<PlaneRing> join(std::vector<PlanePolygon> &polygons, const HolePlaces &joins)
{
    std::vector<PlaneRing> joined;
    // From the last to the first, since a joined hole leaves its list.
    for (auto it = joins.rbegin(); it != joins.rend(); ++it) {
        PlaneRing hole = polygons[it->first].holes[it->second];
        if (HoleBridge::join(polygons[it->first], it->second))
            joined.push_back(std::move(hole));
    }
    return joined;
}

} // namespace

HoleArrangement HoleArrangement::arrange(std::vector<PlanePolygon> &polygons)
{
    const bool hasHoles = std::any_of(polygons.begin(), polygons.end(),
                                      [](const PlanePolygon &polygon) { return !polygon.holes.empty(); });
    if (!hasHoles)
        return {};
    std::vector<PlaneRing> joined;
    for (int round = 0;; ++round) {
        const RendererHoleRule rule(outersOf(polygons));
        HoleArrangement arrangement = takersBy(rule, polygons);
        std::vector<PlaneRing> more;
        if (!arrangement.misplaced.empty() && round < maxRounds)
            more = join(polygons, joinsFor(polygons, rule, arrangement.takers));
        joined.insert(joined.end(), std::make_move_iterator(more.begin()), std::make_move_iterator(more.end()));
        if (more.empty()) {
            arrangement.joined = std::move(joined);
            return arrangement;
        }
    }
}
