#pragma once

#include "Framework/productlineitem.h"

#include <QHash>
#include <QString>

#include <vector>

/// A unit of amount.
struct AmountUnit {
    const char *symbol;
    ProductLineItem::Basis basis;
    /// In thousands, litres or kilograms, by the basis.
    double factor;
    /// Used per acre where the area is not written.
    bool isCustomary;
    /// The source of the factor.
    const char *source;
    /// As files write it: small letters and digits, separated by blanks.
    const char *spellings;
};

/// A unit of the area that an amount is for.
struct AreaUnit {
    const char *symbol;
    double hectares;
    const char *source;
    const char *spellings;
};

/// All units that rates are written in. A rate may be any of the amounts per any of the areas.
class UnitTable {
public:
    static const std::vector<AmountUnit> &amounts();
    static const std::vector<AreaUnit> &areas();

    /// Units by spelling; no spelling stands for two.
    static const QHash<QString, const AmountUnit *> &amountsBySpelling();
    static const QHash<QString, const AreaUnit *> &areasBySpelling();
    /// By symbol; null when there is none.
    static const AmountUnit *amount(const char *symbol);
    static const AreaUnit *area(const char *symbol);
};
