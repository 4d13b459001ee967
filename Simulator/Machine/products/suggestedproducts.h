#pragma once

#include "Backend/columnproduct.h"
#include "product.h"

/// The products of a machine that takes them from its first prescription.
class SuggestedProducts {
public:
    /// One for each column, at its number, filled up with standard ones to three without a gap, first those whose kind
    /// no column has. A column without a name gets a standard one, too, of those that are left then. A column beyond
    /// the greatest number of products gets none. `least`: the fewest products to make. A column that was loaded gives
    /// its product the default rate that fits its rates, and limits that reach them.
    static Products of(const QList<ColumnProduct> &columns, int least = 0);
};
