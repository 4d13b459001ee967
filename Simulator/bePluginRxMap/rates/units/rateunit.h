#pragma once

#include "unittable.h"

#include "Framework/dbgroupproductgroupinfo.h"

#include <QString>
#include <QStringList>
#include <QVector>

/// A unit in which a file writes rates: an amount per area.
class RateUnit {
public:
    using Kind = DbGroupProductGroupInfo::RateKind;

    /// Not known.
    RateUnit() = default;
    /// Both units come from the table, or both are null.
    RateUnit(const AmountUnit *amount, const AreaUnit *area);

    /// The unit that a text spells: "l/ha", "lbs per acre", "kg N/ha", "GPA". Not known when it spells none.
    static RateUnit fromText(const QString &text);
    /// The unit within a name's words (small letters). `isCut`: the last word may lack its end. `others`: gets the
    /// places of the words that are no part of it, unless it is null.
    static RateUnit find(const QStringList &words, bool isCut, QVector<int> *others = nullptr);
    /// The only amount among a name's words that have no area, per acre or hectare as is customary for it.
    static RateUnit findAmount(const QStringList &words, bool isCut, QVector<int> *others = nullptr);
    /// The words of a text in small letters without accents, as the units' spellings have them: split at everything but
    /// letters and digits, and where small letters meet capitals.
    static QStringList wordsOf(const QString &text);
    /// The same words as written in the text.
    static QStringList writtenWordsOf(const QString &text);

    bool isKnown() const { return amount != nullptr; }
    /// "lb/ac"; empty when it is not known.
    QString text() const;
    ProductLineItem::Basis basis() const { return isKnown() ? amount->basis : ProductLineItem::None; }

    /// Whether the same number is another rate in the other unit. False when either is unknown; ounces may be of a
    /// liquid.
    bool differsFrom(const RateUnit &other) const;
    /// The same amount, per the area of the other unit.
    RateUnit perAreaOf(const RateUnit &other) const { return {amount, other.area}; }
    /// Whether rates of such a product can be written in it. An unknown unit fits every product.
    bool fits(Kind kind) const;
    /// The unit as it is meant for a product of that kind: ounces of a liquid are fluid ounces.
    RateUnit of(Kind kind) const;
    /// Factor to the base unit of the kind, which the unit must fit; 1 when either is unknown.
    double factorTo(Kind kind) const;
    /// "kg/ha"; empty for an unknown kind.
    static QString baseText(Kind kind);

private:
    const AmountUnit *amount = nullptr;
    const AreaUnit *area = nullptr;
};
