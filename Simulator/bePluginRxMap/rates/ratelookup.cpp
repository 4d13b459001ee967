#include "ratelookup.h"

#include "rendererholerule.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>

using OrvikTypes::RX_POLYGON;

namespace {

struct PlacedHole {
    int outer;
    const RX_POLYGON *hole;
};

/// The holes that the renderer cuts out, sorted by the outer ring that they are cut from.
std::vector<PlacedHole> placed(const std::vector<const RX_POLYGON *> &holes, const std::vector<int> &takers)
{
    std::vector<PlacedHole> result;
    for (size_t i = 0; i < holes.size(); ++i) {
        if (takers[i] != RendererHoleRule::nowhere)
            result.push_back({takers[i], holes[i]});
    }
    std::stable_sort(result.begin(), result.end(),
                     [](const PlacedHole &a, const PlacedHole &b) { return a.outer < b.outer; });
    return result;
}

/// The outer rings or the holes of a chain, in its order.
std::vector<const RX_POLYGON *> ringsOf(const RX_POLYGON *first, unsigned count, bool holes)
{
    std::vector<const RX_POLYGON *> result;
    for (const RX_POLYGON *record = first; count > 0 && record != nullptr; record = record->next, --count) {
        if (record->isHole == holes)
            result.push_back(record);
    }
    return result;
}

std::vector<RingExtent> extentsOf(const std::vector<const RX_POLYGON *> &rings)
{
    std::vector<RingExtent> result;
    result.reserve(rings.size());
    for (const RX_POLYGON *ring : rings)
        result.push_back(RingExtent::of(ring->vertices, ring->vertexCount));
    return result;
}

} // namespace

bool RateLookup::Answer::hasRate(int mapping) const
{
    return mapping >= 0 && mapping < rates.size() && !std::isnan(rates.at(mapping));
}

RateLookup::RateLookup(const RX_POLYGON *first, unsigned count, size_t mappingCount, const std::vector<int> &takers)
    : mappings(mappingCount)
    , tree(extentsOf(ringsOf(first, count, false)))
{
    const std::vector<const RX_POLYGON *> outerRecords = ringsOf(first, count, false);
    outers.reserve(outerRecords.size());
    for (const RX_POLYGON *record : outerRecords)
        outers.push_back({SlabIndex(record->vertices, record->vertexCount), record->rates});
    for (const PlacedHole &hole : placed(ringsOf(first, count, true), takers)) {
        Outer &outer = outers[static_cast<size_t>(hole.outer)];
        if (outer.holeCount++ == 0)
            outer.firstHole = static_cast<unsigned>(holes.size());
        holes.emplace_back(hole.hole->vertices, hole.hole->vertexCount);
    }
}

bool RateLookup::covers(unsigned number, double x, double y) const
{
    const Outer &outer = outers[number];
    bool inside = outer.ring.contains(x, y, SharedEdgeCrossing());
    // The renderer fills by the even-odd rule over all contours of a polygon.
    for (unsigned i = outer.firstHole; i < outer.firstHole + outer.holeCount; ++i)
        inside ^= holes[i].contains(x, y, SharedEdgeCrossing());
    return inside;
}

RateLookup::Answer RateLookup::ratesAt(double x, double y) const
{
    Answer answer;
    if (!std::isfinite(x) || !std::isfinite(y))
        return answer;
    RingTree::Places hits = tree.holding(x, y);
    const auto isMissed = [this, x, y](unsigned outer) { return !covers(outer, x, y); };
    const auto end = std::remove_if(hits.begin(), hits.end(), isMissed);
    std::sort(hits.begin(), end, std::greater<unsigned>());

    std::vector<float> rates(mappings, std::numeric_limits<float>::quiet_NaN());
    bool hasAny = false;
    for (auto hit = hits.begin(); hit != end; ++hit) {
        for (size_t i = 0; i < mappings; ++i) {
            if (std::isnan(rates[i]))
                rates[i] = outers[*hit].rates[i];
            hasAny = hasAny || !std::isnan(rates[i]);
        }
    }
    if (hasAny)
        answer.rates = QList<float>(rates.begin(), rates.end());
    return answer;
}
