#include "dateline.h"

#include "rawprescription.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>

namespace {

constexpr double fullTurn = 360.0;
constexpr double halfTurn = 180.0;
/// A full turn beyond the greatest longitude; a coordinate farther out is not a longitude.
constexpr double farthest = halfTurn + fullTurn;

struct Range {
    double min;
    double max;

    double middle() const { return 0.5 * (min + max); }
    bool isJoined() const { return min >= -halfTurn && max <= halfTurn && max - min <= halfTurn; }
};

Range rangeOf(const std::vector<double> &values, size_t first, size_t count)
{
    const auto begin = values.begin() + static_cast<std::ptrdiff_t>(first);
    const auto [min, max] = std::minmax_element(begin, begin + static_cast<std::ptrdiff_t>(count));
    return {*min, *max};
}

bool isInDegrees(const RawPrescription &map)
{
    constexpr double degree = 0.0174532925199433;
    return !map.reference
        || (map.reference->IsGeographic() != 0 && std::fabs(map.reference->GetAngularUnits(nullptr) - degree) < 1e-9);
}

void move(RawPrescription &map, const SourceRing &ring, double by)
{
    for (size_t i = ring.first; i < ring.first + ring.count; ++i)
        map.xs[i] += by;
}

/// Removes the jump within a ring. Nothing for a ring whose coordinates are not longitudes.
std::optional<Range> joinRing(RawPrescription &map, const SourceRing &ring)
{
    const Range range = rangeOf(map.xs, ring.first, ring.count);
    if (range.min < -farthest || range.max > farthest)
        return std::nullopt;
    if (range.max - range.min <= halfTurn)
        return range;
    for (size_t i = ring.first; i < ring.first + ring.count; ++i)
        map.xs[i] += map.xs[i] < 0.0 ? fullTurn : 0.0;
    return rangeOf(map.xs, ring.first, ring.count);
}

/// The whole turns, in degrees, that bring a longitude next to another one.
double turnsTo(double middle, double longitude)
{
    return fullTurn * std::round((middle - longitude) / fullTurn);
}

/// The median of the longitudes, which a few strays do not move, measured from where a jump does not matter: a field on
/// the zero meridian needs no joining.
double middleOf(const std::vector<std::optional<Range>> &ranges)
{
    std::vector<double> middles;
    for (const std::optional<Range> &range : ranges) {
        if (range)
            middles.push_back(range->middle() + turnsTo(halfTurn, range->middle()));
    }
    if (middles.empty())
        return 0.0;
    const auto middle = middles.begin() + static_cast<std::ptrdiff_t>(middles.size() / 2);
    std::nth_element(middles.begin(), middle, middles.end());
    return DateLine::wrapped(*middle);
}

} // namespace

void DateLine::join(RawPrescription &map)
{
    if (map.rings.empty() || !isInDegrees(map) || rangeOf(map.xs, 0, map.xs.size()).isJoined())
        return;
    std::vector<std::optional<Range>> ranges;
    ranges.reserve(map.rings.size());
    for (const SourceRing &ring : map.rings)
        ranges.push_back(joinRing(map, ring));
    const double middle = middleOf(ranges);
    for (size_t i = 0; i < map.rings.size(); ++i) {
        const bool isAcrossZero = ranges[i] && ranges[i]->min <= 0.0 && ranges[i]->max >= 0.0;
        if (ranges[i] && !isAcrossZero)
            move(map, map.rings[i], turnsTo(middle, ranges[i]->middle()));
    }
}

void DateLine::join(std::vector<double> &longitudes)
{
    for (double &longitude : longitudes) {
        const double away = longitude - longitudes.front();
        if (std::isfinite(away) && std::fabs(away) > halfTurn)
            longitude += turnsTo(longitudes.front(), longitude);
    }
}

double DateLine::wrapped(double longitude)
{
    return std::fabs(longitude) <= halfTurn ? longitude : std::remainder(longitude, fullTurn);
}
