#pragma once

#include "columnpolicy.h"
#include "rawprescription.h"

#include <vector>

/// The rates of all records for all mappings of a map.
class RateTable {
public:
    RateTable() = default;
    /// One mapping per feed, in the base units of the products.
    RateTable(const RawPrescription &source, const std::vector<ColumnPolicy::Feed> &feeds);

    size_t mappings() const { return count; }
    /// Not a number where the record has none, or one that is too large to be published.
    float at(int record, size_t mapping) const { return rates[static_cast<size_t>(record) * count + mapping]; }
    bool hasNone(int record) const;
    /// Record by record, mappings together.
    const std::vector<float> &values() const { return rates; }

private:
    std::vector<float> rates;
    size_t count = 0;
};
