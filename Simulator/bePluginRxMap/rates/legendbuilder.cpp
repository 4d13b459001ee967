#include "legendbuilder.h"

#include "rateramp.h"

#include <algorithm>
#include <cmath>

namespace {

/// Ascending finite rates.
std::vector<float> sortedFinite(const std::vector<float> &rates)
{
    std::vector<float> sorted;
    sorted.reserve(rates.size());
    std::copy_if(rates.begin(), rates.end(), std::back_inserter(sorted),
                 [](float rate) { return std::isfinite(rate); });
    std::sort(sorted.begin(), sorted.end());
    return sorted;
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

double widened(double limit)
{
    return static_cast<double>(static_cast<float>(limit));
}

/// Limits at round numbers that split `sorted` (positive, more different rates than classes) into classes of about
/// equally many.
void appendQuantiles(const std::vector<float> &sorted, size_t classes, std::vector<double> &limits)
{
    const size_t size = sorted.size();
    // A limit may move by a quarter of a class to become rounder.
    const size_t slack = size / (4 * classes);
    const double maxRate = sorted.back();
    for (size_t k = 1; k < classes; ++k) {
        const size_t quantile = size * k / classes;
        const double limit = widened(
            roundest(sorted[quantile - std::min(slack, quantile)], sorted[std::min(size - 1, quantile + slack)]));
        if ((limits.empty() || limit > limits.back()) && limit < maxRate)
            limits.push_back(limit);
    }
    constexpr double headroom = 1.05;
    const double last = widened(roundest(maxRate, maxRate * headroom));
    limits.push_back(std::isfinite(last) && last >= maxRate ? last : maxRate);
}

/// Drops the limits of classes that hold none of `sorted`.
void dropEmptyClasses(const std::vector<float> &sorted, std::vector<double> &limits)
{
    auto begin = sorted.begin();
    const auto isEmpty = [&sorted, &begin](double limit) {
        const auto end = std::upper_bound(begin, sorted.end(), limit,
                                          [](double bound, float rate) { return bound < static_cast<double>(rate); });
        const bool empty = end == begin;
        begin = end;
        return empty;
    };
    limits.erase(std::remove_if(limits.begin(), limits.end(), isEmpty), limits.end());
}

} // namespace

std::vector<double> LegendBuilder::limits(const std::vector<float> &sortedRates)
{
    std::vector<float> unique = sortedRates;
    unique.erase(std::unique(unique.begin(), unique.end()), unique.end());
    if (unique.size() <= maxClasses)
        return std::vector<double>(unique.begin(), unique.end());

    std::vector<double> result;
    std::vector<float> others = sortedRates;
    if (unique.front() == 0.0F) {
        others.erase(others.begin(), std::upper_bound(others.begin(), others.end(), 0.0F));
        result.push_back(0.0);
    }
    appendQuantiles(others, maxClasses - result.size(), result);
    dropEmptyClasses(sortedRates, result);
    return result;
}

QList<OrvikTypes::RX_RATECOLOR> LegendBuilder::build(const std::vector<float> &rates)
{
    const std::vector<float> sorted = sortedFinite(rates);
    QList<OrvikTypes::RX_RATECOLOR> legend;
    if (sorted.empty())
        return legend;
    const std::vector<double> classLimits = limits(sorted);
    const bool hasZero = classLimits.front() == 0.0;
    const int ramped = static_cast<int>(classLimits.size()) - (hasZero ? 1 : 0);
    int step = 0;
    for (const double limit : classLimits) {
        if (limit == 0.0)
            legend.append({limit, RateRamp::zeroColor()});
        else
            legend.append({limit, RateRamp::color(ramped == 1 ? 0.5 : static_cast<double>(step++) / (ramped - 1))});
    }
    if (sorted.size() < rates.size())
        legend.append({classLimits.back(), RateRamp::noRateColor()});
    return legend;
}

bool LegendBuilder::hasSingleRates(const QList<OrvikTypes::RX_RATECOLOR> &legend, const std::vector<float> &rates)
{
    const auto isLimit = [&legend](float rate) {
        return std::any_of(legend.begin(), legend.end(), [rate](const OrvikTypes::RX_RATECOLOR &entry) {
            return entry.rate == static_cast<double>(rate);
        });
    };
    return std::all_of(rates.begin(), rates.end(),
                       [&isLimit](float rate) { return !std::isfinite(rate) || isLimit(rate); });
}
