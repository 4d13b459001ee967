#include "ratelookup.h"

#include "rendererholerule.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <numeric>

using OrvikTypes::RX_POLYGON;

namespace {

std::vector<RingExtent> extentsOf(const RX_POLYGON *first, unsigned count)
{
    std::vector<RingExtent> result(count);
    size_t outers = 0;
    for (const RX_POLYGON *record = first; count > 0 && record != nullptr; record = record->next, --count) {
        if (!record->isHole)
            result[outers++] = RingExtent::of(record->vertices, record->vertexCount);
    }
    result.resize(outers);
    return result;
}

} // namespace

bool RateLookup::Answer::hasRate(int mapping) const
{
    return mapping >= 0 && mapping < rates.size() && !std::isnan(rates.at(mapping));
}

RateLookup::RateLookup(const RX_POLYGON *first, unsigned count, size_t mappingCount, const std::vector<int> &takers)
    : mappings(mappingCount)
    , tree(extentsOf(first, count))
{
    std::vector<const RX_POLYGON *> holes;
    outers.reserve(count - std::min<size_t>(count, takers.size()));
    for (const RX_POLYGON *record = first; count > 0 && record != nullptr; record = record->next, --count) {
        if (record->isHole)
            holes.push_back(record);
        else
            outers.emplace_back().record = record;
    }
    for (size_t i = 0; i < holes.size(); ++i) {
        if (takers[i] != RendererHoleRule::nowhere)
            detailOf(outers[static_cast<size_t>(takers[i])])
                .holes.emplace_back(holes[i]->vertices, holes[i]->vertexCount);
    }
    for (Outer &outer : outers) {
        if (SlabIndex::pays(outer.record->vertexCount))
            detailOf(outer).ring = std::make_unique<SlabIndex>(outer.record->vertices, outer.record->vertexCount);
    }
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
