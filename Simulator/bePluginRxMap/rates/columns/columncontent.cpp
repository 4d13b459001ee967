#include "columncontent.h"

#include <algorithm>
#include <cmath>

namespace {

/// Whether every record's value is the same multiple of its area, while the areas differ: the area in some unit, or a
/// total at one rate.
bool isProportionalToArea(const SourceColumn &column, const std::vector<double> &areas)
{
    double minArea = HUGE_VAL, maxArea = 0.0, minRatio = HUGE_VAL, maxRatio = 0.0;
    for (size_t i = 0; i < areas.size(); ++i) {
        if (!(areas[i] > 0.0) || !std::isfinite(column.values[i]))
            continue;
        minArea = std::min(minArea, areas[i]);
        maxArea = std::max(maxArea, areas[i]);
        minRatio = std::min(minRatio, column.values[i] / areas[i]);
        maxRatio = std::max(maxRatio, column.values[i] / areas[i]);
    }
    return maxArea > 1.1 * minArea && maxRatio < 1.02 * minRatio;
}

/// Whether the values number the records: whole, each one more than the one before.
bool isCounting(const SourceColumn &column)
{
    if (column.values.size() < 3)
        return false;
    for (size_t i = 1; i < column.values.size(); ++i) {
        if (column.values[i] != column.values[i - 1] + 1.0)
            return false;
    }
    return true;
}

/// Whether the values are whole numbers, no two the same, and so many that they must number the records.
bool areNumbers(const SourceColumn &column)
{
    constexpr size_t mostRates = 20;
    std::vector<double> sorted = column.values;
    const bool areWhole =
        std::all_of(sorted.begin(), sorted.end(), [](double value) { return value == std::floor(value); });
    if (!areWhole || sorted.size() < 3)
        return false;
    std::sort(sorted.begin(), sorted.end());
    const bool isAnyTwice = std::adjacent_find(sorted.begin(), sorted.end()) != sorted.end();
    const bool hasNoGap = sorted.back() - sorted.front() + 1.0 == static_cast<double>(sorted.size());
    return !isAnyTwice && (hasNoGap || sorted.size() > mostRates);
}

bool areYears(const SourceColumn &column)
{
    return std::all_of(column.values.begin(), column.values.end(), [](double value) {
        return std::isnan(value) || (value == std::floor(value) && value >= 1950.0 && value < 2100.0);
    });
}

bool isAllZero(const SourceColumn &column)
{
    return std::none_of(column.values.begin(), column.values.end(), [](double value) { return value > 0.0; });
}

/// Whether all values lie within the coordinates of the map, as those of a centre or corner do.
bool isPlace(const SourceColumn &column, const std::vector<double> &coordinates)
{
    if (coordinates.empty())
        return false;
    const auto [least, greatest] = std::minmax_element(coordinates.begin(), coordinates.end());
    for (const double value : column.values) {
        if (std::isfinite(value) && !(value >= *least && value <= *greatest))
            return false;
    }
    return true;
}

} // namespace

bool ColumnContent::hasRates(const SourceColumn &column)
{
    return std::any_of(column.values.begin(), column.values.end(), [](double value) { return std::isfinite(value); });
}

bool ColumnContent::mayBeRates(const SourceColumn &column, const RawPrescription &map,
                               const std::vector<double> &recordAreas)
{
    // Joined cells have the same value, which is therefore not a number or total of each cell's own.
    const bool isAnyJoined = std::any_of(map.cells.begin(), map.cells.end(), [](int cells) { return cells > 1; });
    const bool areOfRecords = !isAnyJoined
        && (isCounting(column) || (column.isInteger && areNumbers(column))
            || isProportionalToArea(column, recordAreas));
    return !column.isText && !isAllZero(column) && !areOfRecords && !areYears(column) && !isPlace(column, map.xs)
        && !isPlace(column, map.ys);
}

bool ColumnContent::areEqual(const SourceColumn &one, const SourceColumn &other)
{
    return std::equal(one.values.begin(), one.values.end(), other.values.begin(), other.values.end(),
                      [](double a, double b) { return a == b || (std::isnan(a) && std::isnan(b)); });
}
