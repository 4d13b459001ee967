#pragma once

#include "rawprescription.h"

#include <vector>

/// What the values of a column say about it.
class ColumnContent {
public:
    /// Whether any record has a rate in it.
    static bool hasRates(const SourceColumn &column);
    /// Whether it may hold rates though its name does not say so: its numbers are none of the other things that tables
    /// usually hold. `recordAreas`: square metres per record of `map`.
    static bool mayBeRates(const SourceColumn &column, const RawPrescription &map,
                           const std::vector<double> &recordAreas);
    /// Whether both hold the same, record by record.
    static bool areEqual(const SourceColumn &one, const SourceColumn &other);
};
