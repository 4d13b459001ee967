#include "Backend/surveyreport.h"

#include "legendbuilder.h"

#include <algorithm>
#include <cstddef>
#include <vector>

SurveyedClasses SurveyReport::classesOf(int column, double factor, double displayFactor) const
{
    const auto inBaseUnit = [factor](float rate) { return static_cast<float>(factor * static_cast<double>(rate)); };
    const QVector<float> &ofRecords = columns.at(column).rates;
    std::vector<float> rates;
    std::vector<int> cellsOfPolygons;
    rates.reserve(static_cast<size_t>(records.size()));
    cellsOfPolygons.reserve(static_cast<size_t>(cells.size()));
    for (const int record : records) {
        rates.push_back(inBaseUnit(ofRecords.at(record)));
        if (!cells.isEmpty())
            cellsOfPolygons.push_back(cells.at(record));
    }
    const LegendBuilder::Legend legend = LegendBuilder::build(rates, displayFactor, cellsOfPolygons);
    SurveyedClasses classes{legend.classes, legend.hasSingleRates, QByteArray(ofRecords.size(), '\0')};
    for (int record = 0; record < ofRecords.size(); ++record) {
        const auto rate = static_cast<double>(inBaseUnit(ofRecords.at(record)));
        const auto isIn = [rate](const OrvikTypes::RX_RATECOLOR &entry) { return rate <= entry.rate; };
        // A record without a rate is in no class: the last entry stands for it.
        const auto entry = std::find_if(legend.classes.begin(), legend.classes.end(), isIn);
        const auto last = std::max<std::ptrdiff_t>(0, legend.classes.size() - 1);
        classes.ofRecords[record] = static_cast<char>(std::min<std::ptrdiff_t>(last, entry - legend.classes.begin()));
    }
    return classes;
}
