#pragma once

#include "loadfindings.h"
#include "ratetable.h"
#include "rawprescription.h"

#include <vector>

/// Which records of a prescription come into the map, and what is reported about the others.
class RecordSelection {
public:
    /// All are not owned and outlive this.
    RecordSelection(const RawPrescription &source, const RateTable &rates, LoadFindings &findings);

    /// Removes the polygons that have no rate or are hidden by others, and reports those and gaps in columns. Enters
    /// into `report` how many rings there are, hidden ones included, and how many records were skipped.
    void select(std::vector<PlanePolygon> &polygons, LoadReport &report);
    /// Reports the records that were skipped, including those that the reader could not use at all.
    void tellSkipped();

private:
    void dropRecordsWithoutRate(std::vector<PlanePolygon> &polygons);
    void countRings(const std::vector<PlanePolygon> &polygons, LoadReport &report) const;
    void dropHidden(std::vector<PlanePolygon> &polygons);
    /// Reports records that have a rate, but not in every column.
    void tellGaps(const std::vector<PlanePolygon> &polygons, const QStringList &columns);

    const RawPrescription &source;
    const RateTable &rates;
    LoadFindings &findings;
    /// The polygons without a rate in any column, which are left out.
    std::vector<PlanePolygon> withoutRate;
};
