#pragma once

#include <QString>

class DbGroupQmlUnitsConverter;
class DbGroupSingleProductNode;
class ProductLineItem;

/// How a product's rate is shown to the operator.
struct RateUnit {
    QString text;             ///< Translated abbreviation; empty for a product of no known kind.
    double toDisplay = 0.0;   ///< Multiplies a stored rate (base units).
    double fromDisplay = 0.0; ///< Multiplies a typed rate.
};

bool isOfKnownKind(const ProductLineItem &product);
/// The unit of `product`, metered by `node`, in the operator's unit system. Both factors are 0.0 for a product of no
/// known kind.
RateUnit rateUnitOf(const ProductLineItem &product, const DbGroupSingleProductNode &node,
                    const DbGroupQmlUnitsConverter &units);
