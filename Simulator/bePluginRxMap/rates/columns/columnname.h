#pragma once

#include "rateunit.h"

#include <QString>
#include <QStringList>

/// What the name of a table column says about its content. Names come in any language and case, cut at ten characters,
/// with words run together.
class ColumnName {
public:
    explicit ColumnName(const QString &name);

    /// Names a rate: by word ("RATE_kg_", "target_rat", "DOSE"), by unit per area ("HERB_l_ha"), or by a product and
    /// an area ("Urea_ha").
    bool namesRate() const;
    /// Names something that is not a rate: an identifier, size, total, extent, place, yield, something found in the
    /// soil.
    bool namesOther() const;
    /// Names a total, and nothing else that is not a rate.
    bool namesTotal() const;
    /// Names the unit of a rate that stands in another column: "Unit", "RateUOM".
    bool namesUnit() const;
    /// Names what was applied, not what is wanted.
    bool namesApplied() const;
    /// What is left of the name without its words for a rate, for what is wanted and for what was applied.
    QString subject() const;
    /// The unit per area; in a name with a word for a rate, an amount alone counts as well. Not known when there is
    /// none.
    RateUnit unit() const;
    /// Whether the name says another unit than this one; where it says no area, another amount.
    bool contradicts(const RateUnit &other) const;
    /// What is left of the name without words for a rate and without its unit, spelled readably: "Urea" for
    /// "UREA_KG_HA". The whole name where nothing is left.
    QString product() const;
    /// Whether any part of the name names a product.
    bool namesProduct() const { return !productWords().isEmpty(); }
    /// How the product is measured, by a word for it, else by the rate's unit.
    ProductLineItem::Basis basis() const;

private:
    bool hasRateWord() const;
    bool endsInArea() const;
    bool namesSoilContent() const;
    /// Its words that name something that is not a rate.
    QStringList otherWords() const;
    /// The remaining words, spelled readably; none if they say nothing.
    QStringList productWords() const;

    QString whole;
    QStringList words;
    bool mayBeCut;
};
