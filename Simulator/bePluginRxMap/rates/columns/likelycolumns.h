#pragma once

#include "columnunits.h"
#include "planering.h"
#include "rawprescription.h"

#include <QString>

#include <vector>

/// A column that most likely holds rates.
struct LikelyColumn {
    int place; ///< In RawPrescription::columns.
    ColumnUnit unit;
    /// How the product is measured, by the format's unit or the name.
    ProductLineItem::Basis basis;
};

/// The columns of a table that most likely hold rates: those whose names say so, else real numbers whose content
/// suggests it, else such whole numbers.
class LikelyColumns {
public:
    /// `polygons`: those of the map, which say how large its records are. `source` is not owned and outlives this.
    LikelyColumns(const RawPrescription &source, const std::vector<PlanePolygon> &polygons, const ColumnUnits &units);

    /// In table order. One of each group of equal columns; none that holds what was applied if there is one with the
    /// target.
    const std::vector<LikelyColumn> &columns() const { return likely; }
    /// Whether the column's format or name says that it holds rates.
    static bool saysRates(const SourceColumn &column);
    /// Whether its name says that it holds totals, where the format says nothing.
    static bool saysTotal(const SourceColumn &column);
    /// Why the table has none, as it is reported.
    QString reasonForNone() const;

private:
    /// Places of the columns before the ones that repeat others are left out.
    std::vector<int> candidates(const std::vector<PlanePolygon> &polygons) const;
    const SourceColumn &column(int place) const { return source.columns[static_cast<size_t>(place)]; }

    const RawPrescription &source;
    std::vector<LikelyColumn> likely;
};
