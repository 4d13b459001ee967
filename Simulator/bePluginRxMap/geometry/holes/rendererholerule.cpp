#include "rendererholerule.h"

#include <algorithm>

namespace {

/// How much larger than a hole an outer ring must be to have it cut out, square metres.
constexpr double minDifference = 10.0;

// Volatile, since a compiler may drop the two conversions: g++ 12 does where it puts x and y into one vector.
double narrowed(double value)
{
    const volatile float narrow = static_cast<float>(value);
    return static_cast<double>(narrow);
}

std::vector<RingExtent> extentsOf(const std::vector<RingView> &outers)
{
    std::vector<RingExtent> result;
    result.reserve(outers.size());
    for (const RingView &outer : outers)
        result.push_back(RingExtent::of(outer.vertices, outer.count));
    return result;
}

} // namespace

RendererHoleRule::RendererHoleRule(std::vector<RingView> outerRings)
    : outers(std::move(outerRings))
    , tree(extentsOf(outers))
{
    indexes.reserve(outers.size());
    for (const RingView &outer : outers)
        indexes.emplace_back(outer.vertices, outer.count);
}

RingTree::Places RendererHoleRule::candidates(const PlaneVertex *hole, size_t count) const
{
    if (count == 0)
        return {};
    RingExtent extent;
    for (size_t i = 0; i < count; ++i)
        extent.include(narrowed(hole[i].x), narrowed(hole[i].y));
    RingTree::Places result = tree.covering(extent);
    std::sort(result.begin(), result.end());
    return result;
}

bool RendererHoleRule::takes(unsigned outer, const PlaneVertex *hole, size_t count, double area) const
{
    if (!(outers[outer].area - minDifference > area))
        return false;
    return std::all_of(hole, hole + count, [this, outer](const PlaneVertex &vertex) {
        return indexes[outer].contains(narrowed(vertex.x), narrowed(vertex.y), RendererCrossing());
    });
}

std::vector<int> RendererHoleRule::takers(const PlaneVertex *hole, size_t count, double area) const
{
    std::vector<int> result;
    for (const unsigned outer : candidates(hole, count)) {
        if (takes(outer, hole, count, area))
            result.push_back(static_cast<int>(outer));
    }
    return result;
}

int RendererHoleRule::taker(const PlaneVertex *hole, size_t count, double area) const
{
    for (const unsigned outer : candidates(hole, count)) {
        if (takes(outer, hole, count, area))
            return static_cast<int>(outer);
    }
    return nowhere;
}
