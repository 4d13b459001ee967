#include "legendbuilder.h"

#include "Backend/shownrate.h"
#include "rateramp.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <map>
#include <random>
#include <unordered_set>

namespace {

/// When a column is split into classes, this many of its rates, drawn at random, stand for all: the share of the
/// polygons in a class is then within about two hundredths of what sorting all of them would give.
constexpr size_t sampleSize = 4096;

/// The nearest number that can be published.
double published(double limit)
{
    constexpr auto greatest = static_cast<double>(std::numeric_limits<float>::max());
    return static_cast<double>(static_cast<float>(std::min(limit, greatest)));
}

/// Place of the first of the ascending `bounds` that is not passed; of the last if all are. Counts rather than
/// searches: the processor could not predict branches that depend on the rate.
template <typename IsPassed> size_t placeAmong(const std::vector<double> &bounds, IsPassed isPassed)
{
    size_t passed = 0;
    for (const double bound : bounds)
        passed += isPassed(bound) ? 1U : 0U;
    return std::min(passed, bounds.size() - 1);
}

/// One of 256 places, by multiplicative hashing of the rate's bits.
size_t placeOf(float rate)
{
    std::uint32_t bits = 0;
    std::memcpy(&bits, &rate, sizeof bits);
    return (bits * 0x9e3779b1U) >> 24U;
}

/// A limit for each rate that is shown differently: the greatest of those shown alike. Empty when there are too many.
std::vector<double> singleRates(const std::vector<float> &finite, double factor)
{
    // The latest rate that fell on each place: most rates are found here, in a tenth of the time that the set takes.
    std::array<float, 256> recent;
    recent.fill(std::numeric_limits<float>::quiet_NaN());
    std::unordered_set<float> known;
    std::map<double, float> greatest; // By the rate as shown.
    for (const float rate : finite) {
        float &before = recent[placeOf(rate)];
        if (before == rate)
            continue;
        before = rate;
        if (!known.insert(rate).second)
            continue;
        const double shown = ShownRate::text(static_cast<double>(rate) * factor).toDouble();
        float &limit = greatest.emplace(shown, rate).first->second;
        limit = std::max(limit, rate);
        if (greatest.size() > LegendBuilder::maxSingleRates)
            return {};
    }
    std::vector<double> limits;
    for (const auto &entry : greatest)
        limits.push_back(static_cast<double>(entry.second));
    return limits;
}

/// Rates above zero, and for each the number of polygons up to and including it; the latter only where a rate stands
/// for several.
struct PositiveRates {
    std::vector<float> rates;
    std::vector<size_t> ends;

    PositiveRates(const std::vector<float> &all, const std::vector<int> &counts)
    {
        rates.reserve(all.size());
        ends.reserve(counts.size());
        size_t end = 0;
        for (size_t i = 0; i < all.size(); ++i) {
            if (!std::isfinite(all[i]) || all[i] <= 0.0F)
                continue;
            rates.push_back(all[i]);
            if (!counts.empty())
                ends.push_back(end += static_cast<size_t>(counts[i]));
        }
    }
    size_t polygons() const { return ends.empty() ? rates.size() : ends.back(); }
    float of(size_t polygon) const
    {
        if (ends.empty())
            return rates[polygon];
        return rates[static_cast<size_t>(std::upper_bound(ends.begin(), ends.end(), polygon) - ends.begin())];
    }
};

/// Rates of polygons in the operator's unit, ascending: all, or a sample of many.
std::vector<double> sortedSample(const PositiveRates &positive, double factor)
{
    const size_t polygons = positive.polygons();
    std::vector<float> drawn(std::min(polygons, sampleSize));
    std::minstd_rand random;
    size_t next = 0;
    std::generate(drawn.begin(), drawn.end(),
                  [&] { return positive.of(polygons > sampleSize ? random() % polygons : next++); });
    std::sort(drawn.begin(), drawn.end());
    std::vector<double> sample(drawn.begin(), drawn.end());
    for (double &rate : sample)
        rate *= factor;
    return sample;
}

/// The number from `low` to `high` (both positive) with the fewest digits, even ones and fives preferred.
double roundest(double low, double high)
{
    const int decade = static_cast<int>(std::ceil(std::log10(high)));
    constexpr int maxDigits = 9;
    for (int exponent = decade; exponent > decade - maxDigits; --exponent) {
        for (const double digit : {5.0, 2.0, 1.0}) {
            const double step = digit * std::pow(10.0, exponent);
            const double candidate = std::ceil(low / step) * step;
            if (candidate <= high)
                return candidate;
        }
    }
    return high;
}

double shown(double value)
{
    return ShownRate::text(value).toDouble();
}

/// Limits at round numbers that split a sample of rates up to `maxRate` into classes of about equally many. All are in
/// the operator's unit, and no two are shown alike.
std::vector<double> quantileLimits(const std::vector<double> &sample, size_t classes, double maxRate)
{
    const size_t size = sample.size();
    // A limit may move by a quarter of a class to become rounder.
    const size_t slack = size / (4 * classes);
    std::vector<double> limits;
    for (size_t k = 1; k < classes; ++k) {
        const size_t quantile = size * k / classes;
        const double low = shown(sample[quantile - std::min(slack, quantile)]);
        const double limit = roundest(low, shown(sample[std::min(size - 1, quantile + slack)]));
        if ((limits.empty() || shown(limit) > shown(limits.back())) && shown(limit) < shown(maxRate))
            limits.push_back(limit);
    }
    constexpr double headroom = 1.05;
    limits.push_back(roundest(maxRate, maxRate * headroom));
    return limits;
}

/// Makes limits of classes in the operator's unit those of published rates: a rate that is shown as a limit is, though
/// a little above it, belongs to the limit's class. Drops classes that hold no rate.
std::vector<double> fittedLimits(const std::vector<double> &shownLimits, const std::vector<float> &finite,
                                 double factor)
{
    std::vector<double> limits;
    std::vector<double> ends;
    for (const double limit : shownLimits) {
        limits.push_back(published(limit / factor));
        ends.push_back((limit + 0.5 * ShownRate::step(limit)) / factor);
    }
    std::vector<char> isUsed(limits.size(), 0);
    for (const float number : finite) {
        const auto rate = static_cast<double>(number);
        const size_t place = placeAmong(ends, [rate](double end) { return rate >= end; });
        limits[place] = std::max(limits[place], rate);
        isUsed[place] = 1;
    }
    std::vector<double> used;
    for (size_t i = 0; i < limits.size(); ++i) {
        if (isUsed[i] != 0)
            used.push_back(limits[i]);
    }
    return used;
}

std::vector<double> classLimits(const std::vector<float> &finite, const PositiveRates &positive, double factor)
{
    const bool hasZero = std::find(finite.begin(), finite.end(), 0.0F) != finite.end();
    const double maxRate = static_cast<double>(*std::max_element(finite.begin(), finite.end())) * factor;
    const size_t classes = LegendBuilder::maxClasses - (hasZero ? 1U : 0U);
    std::vector<double> limits =
        fittedLimits(quantileLimits(sortedSample(positive, factor), classes, maxRate), positive.rates, factor);
    if (hasZero)
        limits.insert(limits.begin(), 0.0);
    return limits;
}

QList<OrvikTypes::RX_RATECOLOR> coloured(const std::vector<double> &limits)
{
    const bool hasZero = limits.front() == 0.0;
    const int ramped = static_cast<int>(limits.size()) - (hasZero ? 1 : 0);
    QList<OrvikTypes::RX_RATECOLOR> classes;
    int step = 0;
    for (const double limit : limits) {
        if (limit == 0.0)
            classes.append({limit, RateRamp::zeroColor()});
        else
            classes.append({limit, RateRamp::color(ramped == 1 ? 0.5 : static_cast<double>(step++) / (ramped - 1))});
    }
    return classes;
}

} // namespace

LegendBuilder::Legend LegendBuilder::build(const std::vector<float> &rates, double factor,
                                           const std::vector<int> &counts)
{
    std::vector<float> finite;
    finite.reserve(rates.size());
    std::copy_if(rates.begin(), rates.end(), std::back_inserter(finite),
                 [](float rate) { return std::isfinite(rate); });
    Legend legend;
    if (finite.empty())
        return legend;
    std::vector<double> limits = singleRates(finite, factor);
    legend.hasSingleRates = !limits.empty();
    if (limits.empty())
        limits = classLimits(finite, PositiveRates(rates, counts), factor);
    legend.classes = coloured(limits);
    if (finite.size() < rates.size())
        legend.classes.append({limits.back(), RateRamp::noRateColor()});
    return legend;
}

QList<double> LegendBuilder::areasOf(const QList<OrvikTypes::RX_RATECOLOR> &classes, const std::vector<float> &rates,
                                     const std::vector<double> &areas)
{
    std::vector<double> limits;
    for (const OrvikTypes::RX_RATECOLOR &entry : classes)
        limits.push_back(entry.rate);
    std::vector<double> sums(limits.size(), 0.0);
    for (size_t i = 0; i < rates.size() && !limits.empty(); ++i) {
        const auto rate = static_cast<double>(rates[i]);
        // NaN passes all.
        sums[placeAmong(limits, [rate](double limit) { return !(limit >= rate); })] += areas[i];
    }
    return QList<double>(sums.begin(), sums.end());
}
