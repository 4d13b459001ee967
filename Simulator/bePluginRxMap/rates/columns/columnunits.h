#pragma once

#include "Backend/ratesource.h"
#include "rateunit.h"
#include "rawprescription.h"

#include <vector>

/// The unit of a column, and where it is known from.
struct ColumnUnit {
    RateUnit unit;
    RateSource::UnitFrom from = RateSource::UnitFrom::Assumed;
    /// A text beside or behind the rates that is not a known unit; empty if there is none.
    QString unknownText;
    /// The column of units beside the rates if its records differ, which makes it useless; null otherwise. Owned by the
    /// RawPrescription.
    const TextColumn *mixed = nullptr;
    /// The column of units that says it; null where another source does. Owned by the RawPrescription.
    const TextColumn *beside = nullptr;
    /// What the rates themselves, else the column's name, say to the contrary; not known when they do not.
    RateUnit other = {};
    RateSource::UnitFrom otherFrom = RateSource::UnitFrom::Assumed;
};

/// The units of a file's columns, as the file says them.
class ColumnUnits {
public:
    /// `source` is not owned and outlives this.
    explicit ColumnUnits(const RawPrescription &source);

    /// The unit by the format, by a column of units beside the rates, by what follows rates that are text, or by the
    /// column's name, in this order. `place`: in `source.columns`.
    ColumnUnit of(int place) const;

private:
    /// The column of units for the rates of that field: the next one behind it, else before it, with no other rates
    /// between them; else the only one. Null when there is none.
    const TextColumn *unitsBeside(int field) const;

    const RawPrescription &source;
    std::vector<const TextColumn *> units; ///< In table order.
    std::vector<int> rateFields;           ///< Fields of the table that may hold rates, read or not; ascending.
};
