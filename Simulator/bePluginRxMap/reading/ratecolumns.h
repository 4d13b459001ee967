#pragma once

#include "Backend/amount.h"
#include "rawprescription.h"

#include <QStringList>

#include <vector>

/// Which columns of an attribute table hold rates.
class RateColumns {
public:
    /// Whether the column's name and type leave it possible that it holds rates.
    static bool isWorthReading(const SourceColumn &column);
    /// Place of the column called `wanted`, else of the first whose name differs in case only; -1 when there is none.
    static int find(const QStringList &names, const QString &wanted);
    /// Places, in table order, of the likely rate columns of `map.columns`. A column whose name says
    /// that it is a rate comes before all that could be one by their content only. `recordAreas`: square metres per
    /// record.
    static std::vector<int> mostLikely(const RawPrescription &map, const std::vector<double> &recordAreas);
    /// What to say of a file in which mostLikely() finds no column.
    static QString reasonForNone(const RawPrescription &map);
    /// Hands `columns` (places in `map.columns`) out to products that are measured out as `amounts` say: each product
    /// takes the first column whose name suits it, then those that found none take what is left, in table order. One
    /// entry per product, -1 where no column is left.
    static std::vector<int> assign(const RawPrescription &map, std::vector<int> columns, const QList<Amount> &amounts);
};
