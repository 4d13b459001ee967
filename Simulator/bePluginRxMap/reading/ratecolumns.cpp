#include "ratecolumns.h"

#include "columnname.h"

#include <algorithm>
#include <cmath>

namespace {

bool hasRates(const SourceColumn &column)
{
    return std::any_of(column.values.begin(), column.values.end(), [](double value) { return std::isfinite(value); });
}

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

/// For columns whose name says nothing: a real number that is none of the usual other things.
bool mayBeRateByContent(const SourceColumn &column, const RawPrescription &map, const std::vector<double> &areas)
{
    return !column.isText && !column.isInteger && !isAllZero(column) && !isCounting(column)
        && !isProportionalToArea(column, areas) && !isPlace(column, map.xs) && !isPlace(column, map.ys);
}

} // namespace

bool RateColumns::isWorthReading(const SourceColumn &column)
{
    const ColumnName name(column.name);
    return !name.namesOther() && (name.namesRate() || (!column.isText && !column.isInteger));
}

int RateColumns::find(const QStringList &names, const QString &wanted)
{
    const int exact = names.indexOf(wanted);
    if (exact >= 0)
        return exact;
    for (int i = 0; i < names.size(); ++i) {
        if (names.at(i).compare(wanted, Qt::CaseInsensitive) == 0)
            return i;
    }
    return -1;
}

QString RateColumns::reasonForNone(const RawPrescription &map)
{
    QStringList empty;
    for (const SourceColumn &column : map.columns) {
        if (isWorthReading(column) && ColumnName(column.name).namesRate() && !hasRates(column))
            empty.append(column.name);
    }
    if (!empty.isEmpty())
        return QStringLiteral("holds no rates: no record has one in %1").arg(empty.join(QStringLiteral(", ")));
    const QString columns =
        map.columnNames.isEmpty() ? QStringLiteral("none") : map.columnNames.join(QStringLiteral(", "));
    return QStringLiteral("has no column that looks like a rate; name one (its columns: %1)").arg(columns);
}

std::vector<int> RateColumns::mostLikely(const RawPrescription &map, const std::vector<double> &recordAreas)
{
    std::vector<int> named;
    std::vector<int> possible;
    for (size_t i = 0; i < map.columns.size(); ++i) {
        const SourceColumn &column = map.columns[i];
        if (!isWorthReading(column) || !hasRates(column))
            continue;
        if (ColumnName(column.name).namesRate())
            named.push_back(static_cast<int>(i));
        else if (mayBeRateByContent(column, map, recordAreas))
            possible.push_back(static_cast<int>(i));
    }
    return named.empty() ? possible : named;
}

std::vector<int> RateColumns::assign(const RawPrescription &map, std::vector<int> columns, const QList<Amount> &amounts)
{
    std::vector<int> assigned(static_cast<size_t>(amounts.size()), -1);
    for (int product = 0; product < amounts.size(); ++product) {
        const auto suits = [&map, &amounts, product](int column) {
            const Amount amount = ColumnName(map.columns[static_cast<size_t>(column)].name).amount();
            return amount != Amount::Unknown && amount == amounts.at(product);
        };
        const auto suiting = std::find_if(columns.begin(), columns.end(), suits);
        if (suiting == columns.end())
            continue;
        assigned[static_cast<size_t>(product)] = *suiting;
        columns.erase(suiting);
    }
    auto next = columns.begin();
    for (int &column : assigned) {
        if (column < 0 && next != columns.end())
            column = *next++;
    }
    return assigned;
}
