#include "ratetable.h"

#include <cmath>
#include <limits>

namespace {

float narrow(double value)
{
    const bool fits = std::fabs(value) <= static_cast<double>(std::numeric_limits<float>::max());
    return fits ? static_cast<float>(value) : std::numeric_limits<float>::quiet_NaN();
}

} // namespace

RateTable::RateTable(const RawPrescription &source, const std::vector<ColumnPolicy::Feed> &feeds)
    : rates(static_cast<size_t>(source.records) * feeds.size())
    , count(feeds.size())
{
    for (size_t i = 0; i < count; ++i) {
        // Converted before it is narrowed, so that it stays exact to the last digit shown.
        const double factor = feeds[i].factor;
        const std::vector<double> &values = source.columns[static_cast<size_t>(feeds[i].column)].values;
        for (size_t record = 0; record < values.size(); ++record)
            rates[record * count + i] = narrow(factor * values[record]);
    }
}

bool RateTable::hasNone(int record) const
{
    for (size_t i = 0; i < count; ++i) {
        if (!std::isnan(at(record, i)))
            return false;
    }
    return true;
}
