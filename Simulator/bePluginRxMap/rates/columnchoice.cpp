#include "columnchoice.h"

#include "ratecolumns.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

float rateFrom(double value)
{
    const bool fits = std::fabs(value) <= static_cast<double>(std::numeric_limits<float>::max());
    return fits ? static_cast<float>(value) : std::numeric_limits<float>::quiet_NaN();
}

/// Square metres of each record.
std::vector<double> recordAreas(const RawPrescription &source, const std::vector<PlanePolygon> &polygons)
{
    std::vector<double> areas(static_cast<size_t>(source.records), 0.0);
    for (const PlanePolygon &polygon : polygons) {
        double &area = areas[static_cast<size_t>(polygon.record)];
        area += ringArea(polygon.outer);
        for (const PlaneRing &hole : polygon.holes)
            area -= ringArea(hole);
    }
    return areas;
}

} // namespace

ColumnChoice::ColumnChoice(const LoadRequest &request, const RawPrescription &sourceMap,
                           const std::vector<PlanePolygon> &polygons)
    : source(sourceMap)
{
    if (request.columns.isEmpty())
        chooseLikely(request, polygons);
    else
        chooseRequested(request);
    if (places.empty())
        reason = RateColumns::reasonForNone(source);
    for (size_t i = 0; i < places.size() && isOk(); ++i)
        checkRates(source.columns[static_cast<size_t>(places[i])]);
}

void ColumnChoice::chooseRequested(const LoadRequest &request)
{
    QStringList read;
    for (const SourceColumn &column : source.columns)
        read.append(column.name);
    for (int product = 0; product < request.columns.size(); ++product) {
        if (request.columns.at(product).isEmpty())
            continue;
        const int inTable = RateColumns::find(source.columnNames, request.columns.at(product));
        choose(read.indexOf(source.columnNames.value(inTable)), request, product);
    }
}

void ColumnChoice::chooseLikely(const LoadRequest &request, const std::vector<PlanePolygon> &polygons)
{
    QList<Amount> amounts;
    for (int product = 0; product < request.rateCalNames.size(); ++product)
        amounts.append(request.amounts.value(product, Amount::Unknown));
    const std::vector<int> likely = RateColumns::mostLikely(source, recordAreas(source, polygons));
    const std::vector<int> assigned = RateColumns::assign(source, likely, amounts);
    for (int product = 0; product < request.rateCalNames.size(); ++product) {
        if (assigned[static_cast<size_t>(product)] >= 0)
            choose(assigned[static_cast<size_t>(product)], request, product);
    }
}

void ColumnChoice::choose(int place, const LoadRequest &request, int product)
{
    places.push_back(place);
    names.append(source.columns[static_cast<size_t>(place)].name);
    channels.append(request.rateCalNames.at(product));
    defaults.append(request.defaultRates.value(product, 0.0));
}

void ColumnChoice::checkRates(const SourceColumn &column)
{
    if (std::all_of(column.values.begin(), column.values.end(), [](double value) { return std::isnan(value); }))
        reason = QStringLiteral("column \"%1\" holds no rates").arg(column.name);
    else if (column.unreadable == 1)
        remarks.append(QStringLiteral("1 entry of column \"%1\" is no rate and was left out").arg(column.name));
    else if (column.unreadable > 1)
        remarks.append(QStringLiteral("%1 entries of column \"%2\" are no rates and were left out")
                           .arg(column.unreadable)
                           .arg(column.name));
}

std::vector<float> ColumnChoice::rates() const
{
    const size_t mappings = places.size();
    std::vector<float> result(static_cast<size_t>(source.records) * mappings);
    for (size_t i = 0; i < mappings; ++i) {
        const std::vector<double> &values = source.columns[static_cast<size_t>(places[i])].values;
        for (size_t record = 0; record < values.size(); ++record)
            result[record * mappings + i] = rateFrom(values[record]);
    }
    return result;
}
