#pragma once

#include "loadfindings.h"
#include "ratetable.h"
#include "rawprescription.h"

#include <vector>

/// Which records of a prescription come into the map, and what is told of those that do not.
class RecordSelection {
public:
    /// All are not owned and outlive this.
    RecordSelection(const RawPrescription &source, const RateTable &rates, LoadFindings &findings);

    /// Takes the polygons away that have no rate or are hidden by others, and tells of those and of gaps in columns.
    /// Enters into `report` how many rings there are, hidden ones included, and how many records were skipped.
    void select(std::vector<PlanePolygon> &polygons, LoadReport &report);
    /// Tells of the records that were skipped, those of which the reader took nothing included.
    void tellSkipped();

private:
    void dropRecordsWithoutRate(std::vector<PlanePolygon> &polygons);
    void countRings(const std::vector<PlanePolygon> &polygons, LoadReport &report) const;
    void dropHidden(std::vector<PlanePolygon> &polygons);
    /// Tells of records that have a rate, but not in every column.
    void tellGaps(const std::vector<PlanePolygon> &polygons, const QStringList &columns);

    const RawPrescription &source;
    const RateTable &rates;
    LoadFindings &findings;
    /// What has no rate in any column, and is left out.
    std::vector<PlanePolygon> withoutRate;
};
