#include "filesurvey.h"

#include "columncontent.h"
#include "legendbuilder.h"
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
        SurveyedColumn column = describe(feed.column, feed.factor * feed.displayFactor);
        const RateSource &told = decision.sources.at(static_cast<int>(i));
        // What the product's kind makes of it: ounces of a liquid are fluid ounces.
        if (!column.unit.isEmpty())
            column.unit = told.unit;
        column.product = told.product;
        report.columns.append(column);
    }
    for (size_t place = 0; place < source.columns.size(); ++place) {
        if (!isFed[place] && ColumnContent::hasRates(source.columns[place]))
            report.columns.append(describe(static_cast<int>(place)));
    }
    return decision.error;
}

SurveyedColumn FileSurvey::describe(int place, double displayFactor) const
{
    const SourceColumn &column = source.columns[static_cast<size_t>(place)];
    const ColumnUnit unit = units.of(place);
    SurveyedColumn told;
    told.name = column.name;
    const bool isFoundByName = TableColumns::find(source.columnNames, column.name) == column.field;
    told.key = isFoundByName ? column.name : QStringLiteral("#%1").arg(column.field + 1);
    told.unit = unit.unit.text();
    told.unitFrom = unit.from;
    told.isSure = LikelyColumns::saysRates(column);
    classify(column, displayFactor, told);
    return told;
}

void FileSurvey::classify(const SourceColumn &column, double displayFactor, SurveyedColumn &told) const
{
    std::vector<float> rates;
    std::vector<int> counts;
    rates.reserve(polygons.size());
    counts.reserve(polygons.size());
    for (const PlanePolygon &polygon : polygons) {
        rates.push_back(static_cast<float>(column.values[static_cast<size_t>(polygon.record)]));
        counts.push_back(source.cellsOf(polygon.record));
    }
    const LegendBuilder::Legend legend = LegendBuilder::build(rates, displayFactor, counts);
    told.legend = legend.classes;
    told.hasSingleRates = legend.hasSingleRates;
    told.leastRate = HUGE_VAL;
    int records = 0;
    int without = 0;
    told.classes = QByteArray(source.records, '\0');
    for (int record = 0; record < source.records; ++record) {
        const double rate = column.values[static_cast<size_t>(record)];
        const auto isIn = [rate](const OrvikTypes::RX_RATECOLOR &entry) {
            return static_cast<double>(static_cast<float>(rate)) <= entry.rate;
        };
        // No rate is in no class: the last entry stands for it.
        const auto entry = std::find_if(told.legend.begin(), told.legend.end(), isIn);
        const auto last = std::max<std::ptrdiff_t>(0, told.legend.size() - 1);
        told.classes[record] = static_cast<char>(std::min<std::ptrdiff_t>(last, entry - told.legend.begin()));
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
    // A field's border without a rate leaves what lies below it to be seen, on the map too.
    std::vector<PlanePolygon> drawn = polygons;
    std::stable_partition(drawn.begin(), drawn.end(),
                          [this](const PlanePolygon &polygon) { return !hasRate(polygon.record); });
    const RecordPicture picture(drawn, SurveyReport::pictureSide);
    report.polygons = static_cast<int>(polygons.size());
    report.pictureSize = picture.size();
    report.recordAtPixel = picture.records();
}
