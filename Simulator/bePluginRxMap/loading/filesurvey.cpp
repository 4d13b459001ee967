#include "filesurvey.h"

#include "columncontent.h"
#include "columnproducts.h"
#include "recordpicture.h"
#include "tablecolumns.h"

#include <algorithm>
#include <cmath>

FileSurvey::FileSurvey(const RawPrescription &rawPrescription, const std::vector<PlanePolygon> &planePolygons)
    : source(rawPrescription)
    , polygons(planePolygons)
    , units(rawPrescription)
    , hasPolygon(static_cast<size_t>(rawPrescription.records), false)
{
    for (const PlanePolygon &polygon : polygons)
        hasPolygon[static_cast<size_t>(polygon.record)] = true;
}

QString FileSurvey::addColumns(const ColumnPolicy &policy, SurveyReport &report) const
{
    report.columnNames = source.columnNames;
    const ColumnPolicy::Decision decision = policy.decide(source, polygons);
    std::vector<bool> isFed(source.columns.size(), false);
    for (size_t i = 0; i < decision.feeds.size() && decision.error.isEmpty(); ++i) {
        const ColumnPolicy::Feed &feed = decision.feeds[i];
        isFed[static_cast<size_t>(feed.column)] = true;
        SurveyedColumn column = describe(feed.column);
        const RateSource &told = decision.sources.at(static_cast<int>(i));
        // The unit as the product's kind reads it: ounces of a liquid are fluid ounces.
        if (!column.unit.isEmpty())
            column.unit = told.unit;
        column.product = told.product;
        for (const ColumnProduct &made : qAsConst(report.columnProducts)) {
            if (made.number == told.product)
                column.made = made;
        }
        report.columns.append(column);
    }
    for (size_t place = 0; place < source.columns.size(); ++place) {
        if (!isFed[place] && ColumnContent::hasRates(source.columns[place]))
            report.columns.append(describe(static_cast<int>(place)));
    }
    return decision.error;
}

SurveyedColumn FileSurvey::describe(int place) const
{
    const SourceColumn &column = source.columns[static_cast<size_t>(place)];
    const ColumnUnit unit = units.of(place);
    SurveyedColumn told;
    told.name = column.name;
    const bool isFoundByName = TableColumns::find(source.columnNames, column.name) == column.field;
    told.key = isFoundByName ? column.name : QStringLiteral("#%1").arg(column.field + 1);
    told.unit = unit.unit.text();
    told.unitFrom = unit.from;
    told.made = ColumnProducts::ofColumn(column, unit.unit);
    told.isTotal = LikelyColumns::saysTotal(column);
    told.isSure = LikelyColumns::saysRates(column) && !told.isTotal;
    measure(column, told);
    return told;
}

void FileSurvey::measure(const SourceColumn &column, SurveyedColumn &told) const
{
    told.rates.reserve(source.records);
    told.leastRate = HUGE_VAL;
    int records = 0;
    int without = 0;
    for (int record = 0; record < source.records; ++record) {
        const double rate = column.values[static_cast<size_t>(record)];
        told.rates.append(static_cast<float>(rate));
        if (!hasPolygon[static_cast<size_t>(record)])
            continue;
        const int cells = source.cellsOf(record);
        records += cells;
        without += std::isfinite(rate) ? 0 : cells;
        if (std::isfinite(rate)) {
            told.leastRate = std::min(told.leastRate, rate);
            told.greatestRate = std::max(told.greatestRate, rate);
        }
    }
    told.leastRate = std::min(told.leastRate, told.greatestRate);
    told.shareWithoutRate = records > 0 ? static_cast<double>(without) / records : 0.0;
}

bool FileSurvey::hasRate(int record) const
{
    return std::any_of(source.columns.begin(), source.columns.end(), [record](const SourceColumn &column) {
        return std::isfinite(column.values[static_cast<size_t>(record)]);
    });
}

void FileSurvey::addPicture(SurveyReport &report) const
{
    // A polygon around the field that has no rate lets those below it be seen, as on the map.
    std::vector<PlanePolygon> drawn = polygons;
    std::stable_partition(drawn.begin(), drawn.end(),
                          [this](const PlanePolygon &polygon) { return !hasRate(polygon.record); });
    const RecordPicture picture(drawn, SurveyReport::pictureSide);
    report.polygons = static_cast<int>(polygons.size());
    for (const PlanePolygon &polygon : polygons)
        report.records.append(polygon.record);
    for (int record = 0; record < source.records && !source.cells.empty(); ++record)
        report.cells.append(source.cellsOf(record));
    report.pictureSize = picture.size();
    report.recordAtPixel = picture.records();
}
