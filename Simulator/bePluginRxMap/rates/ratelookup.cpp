#include "ratelookup.h"

#include "rendererholerule.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <numeric>

using OrvikTypes::RX_POLYGON;

bool RateLookup::Answer::hasRate(int mapping) const
{
    return mapping >= 0 && mapping < rates.size() && !std::isnan(rates.at(mapping));
}

RateLookup::RateLookup(const RX_POLYGON *first, unsigned count, size_t mappingCount, const std::vector<int> &takers)
    : mappings(mappingCount)
    , tree(takeOuters(first, count, count - std::min<size_t>(count, takers.size())))
{
    auto taker = takers.begin();
    for (const RX_POLYGON *record = first; record != nullptr && taker != takers.end(); record = record->next) {
        if (!record->isHole)
            continue;
        if (*taker != RendererHoleRule::nowhere)
            detailOf(outers[static_cast<size_t>(*taker)]).holes.emplace_back(record->vertices, record->vertexCount);
        ++taker;
    }
}

std::vector<RingExtent> RateLookup::takeOuters(const RX_POLYGON *first, unsigned count, size_t expected)
{
    std::vector<RingExtent> extents;
    extents.reserve(expected);
    outers.reserve(expected);
    for (const RX_POLYGON *record = first; count > 0 && record != nullptr; record = record->next, --count) {
        if (record->isHole)
            continue;
        extents.emplace_back() = RingExtent::of(record->vertices, record->vertexCount);
        outers.emplace_back().record = record;
        if (SlabIndex::pays(record->vertexCount))
            detailOf(outers.back()).ring = std::make_unique<SlabIndex>(record->vertices, record->vertexCount);
    }
    return extents;
}

RateLookup::Detail &RateLookup::detailOf(Outer &outer)
{
    if (outer.detail == none) {
        outer.detail = static_cast<unsigned>(details.size());
        details.emplace_back();
    }
    return details[outer.detail];
}

bool RateLookup::covers(unsigned number, double x, double y) const
{
    const Outer &outer = outers[number];
    const Detail *detail = outer.detail == none ? nullptr : &details[outer.detail];
    const bool isInRing = detail != nullptr && detail->ring
        ? detail->ring->contains(x, y, SharedEdgeCrossing())
        : SlabIndex(outer.record->vertices, outer.record->vertexCount).contains(x, y, SharedEdgeCrossing());
    if (detail == nullptr)
        return isInRing;
    // The renderer fills by the even-odd rule over all contours of a polygon.
    return std::accumulate(
        detail->holes.begin(), detail->holes.end(), isInRing,
        [x, y](bool isInside, const SlabIndex &hole) { return isInside != hole.contains(x, y, SharedEdgeCrossing()); });
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
                rates[i] = outers[*hit].record->rates[i];
            hasAny = hasAny || !std::isnan(rates[i]);
        }
    }
    if (hasAny)
        answer.rates = QList<float>(rates.begin(), rates.end());
    return answer;
}
