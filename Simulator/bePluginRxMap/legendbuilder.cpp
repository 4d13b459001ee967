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

/// The greatest of 1, 2 or 5 times a power of ten that is not above `value`.
double roundStep(double value)
{
    const double decade = std::pow(10.0, std::floor(std::log10(value)));
    const double leading = value / decade;
    return decade * (leading >= 5.0 ? 5.0 : leading >= 2.0 ? 2.0 : 1.0);
}

/// Limits at round numbers that split `sorted` (more different rates than classes) into classes of about equally many.
void appendQuantiles(const std::vector<float> &sorted, int classes, std::vector<double> &limits)
{
    const double greatest = sorted.back();
    const double step = roundStep((greatest - sorted.front()) / (4.0 * classes));
    const auto widened = [](double limit) { return static_cast<double>(static_cast<float>(limit)); };
    for (int k = 1; k < classes; ++k) {
        const double quantile = sorted[sorted.size() * k / classes];
        const double limit = widened(std::round(quantile / step) * step);
        const double previous = limits.empty() ? static_cast<double>(sorted.front()) : limits.back();
        const bool isNew = limits.empty() ? limit >= previous : limit > previous;
        if (isNew && limit < greatest)
            limits.push_back(limit);
    }
    const double last = widened(std::ceil(greatest / step) * step);
    limits.push_back(std::isfinite(last) && last >= greatest ? last : greatest);
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
    if (unique.size() <= mostClasses)
        return std::vector<double>(unique.begin(), unique.end());

    std::vector<double> result;
    std::vector<float> others = sortedRates;
    if (unique.front() == 0.0F) {
        others.erase(others.begin(), std::upper_bound(others.begin(), others.end(), 0.0F));
        result.push_back(0.0);
    }
    appendQuantiles(others, mostClasses - static_cast<int>(result.size()), result);
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
