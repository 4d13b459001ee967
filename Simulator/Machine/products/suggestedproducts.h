#pragma once

#include "Backend/columnproduct.h"
#include "product.h"

/// The products of a machine that takes them from its first prescription.
class SuggestedProducts {
public:
    /// One product for each column, at its number. Standard products fill up gaps and make at least three, first those
    /// whose kind no column has; then a column without a name gets one of those that are left, too. A column beyond the
    /// greatest number of products gets none. `least`: the fewest products to make. A column that was loaded gives its
    /// product the default rate that fits its rates, and limits that reach them.
    static Products of(const QList<ColumnProduct> &columns, int least = 0);
};
