#pragma once

#include "findinglist.h"
#include "mapview.h"

#include <QString>

#include <vector>

/// Checks the rates of one column: whether some are far from the rest, and whether they look like totals.
class RateCheck {
public:
    /// How a mapping's rates stand in the file.
    struct Column {
        QString name;
        QString unit;
        /// From `unit` to base units.
        double factor = 1.0;
    };

    /// `map` is not owned and outlives this. `mapping`: place among its rates.
    RateCheck(const MapView &map, size_t mapping, const Column &column);

    void run(FindingList &findings) const;

    /// One record with a rate in the column; its parts are taken together.
    struct Entry {
        int record;
        double rate; ///< In the file's unit.
        double area; ///< Square metres.
        RingExtent extent;
    };

private:
    void tellFar(std::vector<Entry> entries, FindingList &findings) const;
    void tellTotals(const std::vector<Entry> &entries, FindingList &findings) const;

    Column column;
    std::vector<Entry> entries;
};
