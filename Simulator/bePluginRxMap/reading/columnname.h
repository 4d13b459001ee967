#pragma once

#include "Framework/productlineitem.h"

#include <QString>
#include <QStringList>

/// What the name of a table column says about its content. Names come in any language and case, cut at ten characters,
/// with words run together.
class ColumnName {
public:
    explicit ColumnName(const QString &name);

    /// Names a rate: by word ("RATE_kg_", "target_rat", "DOSE") or by unit per area ("HERB_l_ha").
    bool namesRate() const;
    /// Names what no rate is: an identifier, size, total, extent, place.
    bool namesOther() const;
    /// What a word for the product, else the rate's unit, says is measured out.
    ProductLineItem::Basis basis() const;

private:
    bool namesUnitPerArea() const;
    /// The word before an area's unit, else the last word.
    QString unit() const;

    /// Lower case, split at everything but letters and digits, and where small letters meet capitals.
    QStringList words;
    bool mayBeCut;
};
