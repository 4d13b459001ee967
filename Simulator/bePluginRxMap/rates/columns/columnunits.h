#pragma once

#include "Backend/ratesource.h"
#include "rateunit.h"
#include "rawprescription.h"

#include <vector>

/// The unit of a column, and what told it.
struct ColumnUnit {
    RateUnit unit;
    RateSource::UnitFrom from = RateSource::UnitFrom::Assumed;
    /// What stands for a unit beside or behind the rates, and is none that is known; empty otherwise.
    QString unknownText;
    /// The column of units beside the rates that differs between records, and is no help; null otherwise.
    /// RawPrescription's.
    const TextColumn *mixed = nullptr;
};

/// The units of a file's columns, as the file says them.
class ColumnUnits {
public:
    /// `source` is not owned and outlives this.
    explicit ColumnUnits(const RawPrescription &source);

    /// By the format, by a column of units beside the rates, by what stands behind rates that are text, by the column's
    /// name, in this order. `place`: in `source.columns`.
    ColumnUnit of(int place) const;

private:
    /// The column of units for the rates of that field: the next one behind it, else before it, with no other rates
    /// between them; else the only one. Null when there is none.
    const TextColumn *unitsBeside(int field) const;

    const RawPrescription &source;
    std::vector<const TextColumn *> units; ///< In table order.
    std::vector<int> rateFields;           ///< Of the table's columns that may be rates, read or not; ascending.
};
