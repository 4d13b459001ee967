#include "typicalrate.h"

#include <QString>

#include <cstddef>

namespace {

double rounded(double rate)
{
    constexpr int significantDigits = 3;
    return QString::number(rate, 'g', significantDigits).toDouble();
}

} // namespace

double TypicalRate::of(const std::vector<float> &rates, const std::vector<double> &areas, double displayFactor)
{
    double amount = 0.0;
    double area = 0.0;
    for (std::size_t i = 0; i < rates.size(); ++i) {
        if (!(rates[i] > 0.0F))
            continue;
        amount += static_cast<double>(rates[i]) * areas[i];
        area += areas[i];
    }
    return amount > 0.0 ? rounded(amount / area * displayFactor) / displayFactor : 0.0;
}
