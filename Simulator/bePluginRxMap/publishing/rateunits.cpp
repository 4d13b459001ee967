#include "Backend/rateunits.h"

#include "rateunit.h"

RateUnitParts RateUnits::parts(DbGroupProductGroupInfo::RateKind kind)
{
    RateUnitParts parts;
    for (const AmountUnit &amount : UnitTable::amounts()) {
        const RateUnit unit(&amount, UnitTable::area("ha"));
        // A unit that the kind reads as another one is left out: that one is in the list itself.
        if (unit.fits(kind) && unit.of(kind).text() == unit.text())
            parts.amounts.append(QString::fromLatin1(amount.symbol));
    }
    if (parts.amounts.isEmpty() || RateUnit::baseText(kind).isEmpty())
        return {};
    for (const AreaUnit &area : UnitTable::areas())
        parts.areas.append(QString::fromLatin1(area.symbol));
    return parts;
}

QString RateUnits::base(DbGroupProductGroupInfo::RateKind kind)
{
    return RateUnit::baseText(kind);
}

double RateUnits::factor(const QString &unit, DbGroupProductGroupInfo::RateKind kind)
{
    const RateUnit rateUnit = RateUnit::fromText(unit).of(kind);
    return rateUnit.isKnown() && rateUnit.fits(kind) ? rateUnit.factorTo(kind) : 0.0;
}
