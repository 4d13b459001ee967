#include "recordselection.h"

#include "Backend/backendtext.h"
#include "duplicatepolygons.h"

#include <algorithm>
#include <cmath>
#include <iterator>

using Kind = MapFinding::Kind;

RecordSelection::RecordSelection(const RawPrescription &prescription, const RateTable &rateTable,
                                 LoadFindings &loadFindings)
    : source(prescription)
    , rates(rateTable)
    , findings(loadFindings)
{
}

void RecordSelection::select(std::vector<PlanePolygon> &polygons, LoadReport &report)
{
    dropRecordsWithoutRate(polygons);
    countRings(polygons, report);
    dropHidden(polygons);
    tellGaps(polygons, report.columns);
}

void RecordSelection::dropRecordsWithoutRate(std::vector<PlanePolygon> &polygons)
{
    const auto first = std::stable_partition(polygons.begin(), polygons.end(), [this](const PlanePolygon &polygon) {
        return !rates.hasNone(polygon.record);
    });
    withoutRate.assign(std::make_move_iterator(first), std::make_move_iterator(polygons.end()));
    polygons.erase(first, polygons.end());
}

void RecordSelection::countRings(const std::vector<PlanePolygon> &polygons, LoadReport &report) const
{
    std::vector<bool> isUsed(static_cast<size_t>(source.records), false);
    for (const PlanePolygon &polygon : polygons) {
        isUsed[static_cast<size_t>(polygon.record)] = true;
        report.holes += static_cast<int>(polygon.holes.size());
    }
    report.outers = static_cast<int>(polygons.size());
    report.skipped = static_cast<int>(std::count(isUsed.begin(), isUsed.end(), false));
}

void RecordSelection::dropHidden(std::vector<PlanePolygon> &polygons)
{
    const auto hides = [this](int later, int earlier) {
        for (size_t i = 0; i < rates.mappings(); ++i) {
            if (std::isnan(rates.at(later, i)) && !std::isnan(rates.at(earlier, i)))
                return false;
        }
        return true;
    };
    const std::vector<PlanePolygon> hidden = DuplicatePolygons::drop(polygons, hides);
    std::vector<int> records;
    records.reserve(hidden.size());
    for (const PlanePolygon &polygon : hidden)
        records.push_back(polygon.record);
    findings.addCounted(Kind::Duplicate, records,
                        {BackendText::tr("polygon is hidden under a later one of the same shape"),
                         BackendText::tr("polygons are hidden under later ones of the same shape")},
                        hidden);
}

void RecordSelection::tellGaps(const std::vector<PlanePolygon> &polygons, const QStringList &columns)
{
    for (size_t i = 0; i < rates.mappings(); ++i) {
        std::vector<int> gaps;
        for (const PlanePolygon &polygon : polygons) {
            const bool isKnown = !gaps.empty() && gaps.back() == polygon.record;
            if (!isKnown && std::isnan(rates.at(polygon.record, i)))
                gaps.push_back(polygon.record);
        }
        const QString &column = columns.at(static_cast<int>(i));
        findings.addCounted(Kind::Skipped, gaps,
                            {BackendText::tr("record has no rate in column \"%1\"").arg(column),
                             BackendText::tr("records have no rate in column \"%1\"").arg(column), column},
                            polygons);
    }
}

void RecordSelection::tellSkipped()
{
    const auto tell = [this](const std::vector<int> &records, const QString &one, const QString &many) {
        findings.addCounted(Kind::Skipped, records, {one, many});
    };
    tell(source.emptyRecords, BackendText::tr("record without geometry was skipped"),
         BackendText::tr("records without geometry were skipped"));
    tell(source.otherRecords, BackendText::tr("record that is no polygon was skipped"),
         BackendText::tr("records that are no polygons were skipped"));
    tell(source.notFiniteRecords, BackendText::tr("record with a coordinate that is not finite was skipped"),
         BackendText::tr("records with a coordinate that is not finite were skipped"));
    std::vector<int> records;
    for (const PlanePolygon &polygon : withoutRate) {
        if (records.empty() || records.back() != polygon.record)
            records.push_back(polygon.record);
    }
    findings.addCounted(
        Kind::Skipped, records,
        {BackendText::tr("record without a rate was skipped"), BackendText::tr("records without a rate were skipped")},
        withoutRate);
    for (const QString &warning : source.warnings)
        findings.remark(warning);
}
