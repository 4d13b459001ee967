#include "ringrepair.h"

#include "ringcrossings.h"

#include <algorithm>
#include <cmath>

namespace {

/// Finest grid: 2^-10 metres, about a millimetre.
constexpr int finestGrid = -10;
/// Bits of a single-precision number's mantissa.
constexpr int singleBits = 24;
/// Rings of up to this many vertices are examined edge by edge, without GEOS.
constexpr size_t shortRing = 12;

double gridFor(double maxCoordinate)
{
    int bits = 0;
    std::frexp(maxCoordinate, &bits);
    return std::ldexp(1.0, std::max(finestGrid, bits - singleBits));
}

/// The nearest whole number, of two equally near the even one, for numbers below 2^51: adding a number so great leaves
/// no room for a fraction. Written out because the library's function takes longer than all else that is done to a
/// vertex.
double nearestWhole(double value)
{
    constexpr double great = 6755399441055744.0;
    return value + great - great;
}

PlaneRing fileRing(const RawPrescription &map, const SourceRing &ring)
{
    PlaneRing result;
    result.reserve(ring.count);
    for (size_t i = ring.first; i < ring.first + ring.count; ++i)
        result.push_back({map.xs[i], map.ys[i]});
    dropRepeatedVertices(result);
    return result;
}

} // namespace

RingRepair::RingRepair(double maxCoordinate, std::pmr::memory_resource *rings)
    : gridSize(gridFor(maxCoordinate))
    , memory(rings)
{
}

PlaneRing RingRepair::snapped(const std::vector<double> &xs, const std::vector<double> &ys,
                              const SourceRing &ring) const
{
    PlaneRing result(ring.count, memory);
    size_t kept = 0;
    const double perMetre = 1.0 / gridSize;
    for (size_t i = ring.first; i < ring.first + ring.count; ++i) {
        if (!std::isfinite(xs[i]) || !std::isfinite(ys[i]))
            return {};
        // The sum turns a negative zero into a positive one.
        const PlaneVertex vertex = {nearestWhole(xs[i] * perMetre) * gridSize + 0.0,
                                    nearestWhole(ys[i] * perMetre) * gridSize + 0.0};
        if (kept == 0 || !samePlace(result[kept - 1], vertex))
            result[kept++] = vertex;
    }
    while (kept > 1 && samePlace(result[kept - 1], result[0]))
        --kept;
    result.resize(kept);
    return result;
}

bool RingRepair::isValidInFile(const RawPrescription &map, size_t firstRing, size_t endRing) const
{
    std::vector<PlaneRing> holes;
    for (size_t i = firstRing + 1; i < endRing; ++i)
        holes.push_back(fileRing(map, map.rings[i]));
    return geos.isValid(geos.polygon(fileRing(map, map.rings[firstRing]), holes));
}

void RingRepair::appendRepaired(const PlanePolygon &polygon, Outcome &outcome) const
{
    outcome.looseHoles.insert(outcome.looseHoles.end(), geos.looseHoles(polygon), polygon.record);
    const std::vector<PlanePolygon> parts = geos.polygons(geos.repaired(polygon, gridSize), polygon.record);
    if (parts.empty())
        outcome.dropped.push_back(polygon.record);
    outcome.polygons.insert(outcome.polygons.end(), parts.begin(), parts.end());
}

size_t RingRepair::append(const RawPrescription &map, const std::vector<double> &xs, const std::vector<double> &ys,
                          size_t firstRing, Outcome &outcome) const
{
    PlanePolygon polygon = {snapped(xs, ys, map.rings[firstRing]), {}, map.rings[firstRing].record};
    size_t end = firstRing + 1;
    for (; end < map.rings.size() && map.rings[end].isHole; ++end) {
        PlaneRing hole = snapped(xs, ys, map.rings[end]);
        if (hole.size() >= 3)
            polygon.holes.push_back(std::move(hole));
        else
            outcome.dropped.push_back(polygon.record);
    }
    const bool isShort = polygon.holes.empty() && polygon.outer.size() <= shortRing;
    if (polygon.outer.size() < 3)
        outcome.dropped.push_back(polygon.record);
    else if ((isShort && isSimpleRing(polygon.outer)) || geos.isValid(geos.polygon(polygon.outer, polygon.holes)))
        outcome.polygons.push_back(std::move(polygon));
    else if (RingCrossings::count(polygon, mostCrossings) > mostCrossings)
        outcome.tangled.push_back(polygon.record);
    else {
        if (!isValidInFile(map, firstRing, end))
            outcome.repaired.push_back(polygon.record);
        appendRepaired(polygon, outcome);
    }
    return end;
}
