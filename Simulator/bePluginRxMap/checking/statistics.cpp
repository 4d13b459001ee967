#include "statistics.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

std::vector<double> ranksOf(const std::vector<double> &values)
{
    std::vector<size_t> order(values.size());
    std::iota(order.begin(), order.end(), size_t(0));
    std::sort(order.begin(), order.end(), [&values](size_t a, size_t b) { return values[a] < values[b]; });
    std::vector<double> ranks(values.size());
    for (size_t first = 0; first < order.size();) {
        size_t end = first;
        while (end < order.size() && values[order[end]] == values[order[first]])
            ++end;
        for (size_t i = first; i < end; ++i)
            ranks[order[i]] = 0.5 * static_cast<double>(first + end - 1);
        first = end;
    }
    return ranks;
}

} // namespace

double Statistics::median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    if (values.size() % 2 == 1)
        return *middle;
    return 0.5 * (*middle + *std::max_element(values.begin(), middle));
}

double Statistics::medianAbsoluteDeviation(const std::vector<double> &values)
{
    const double centre = median(values);
    std::vector<double> distances;
    distances.reserve(values.size());
    for (const double value : values)
        distances.push_back(std::fabs(value - centre));
    return median(std::move(distances));
}

double Statistics::rankCorrelation(const std::vector<double> &a, const std::vector<double> &b)
{
    const std::vector<double> ranksOfA = ranksOf(a);
    const std::vector<double> ranksOfB = ranksOf(b);
    const double mean = 0.5 * static_cast<double>(a.size() - 1);
    double product = 0.0;
    double squaresOfA = 0.0;
    double squaresOfB = 0.0;
    for (size_t i = 0; i < a.size(); ++i) {
        product += (ranksOfA[i] - mean) * (ranksOfB[i] - mean);
        squaresOfA += (ranksOfA[i] - mean) * (ranksOfA[i] - mean);
        squaresOfB += (ranksOfB[i] - mean) * (ranksOfB[i] - mean);
    }
    return squaresOfA > 0.0 && squaresOfB > 0.0 ? product / std::sqrt(squaresOfA * squaresOfB) : 0.0;
}
