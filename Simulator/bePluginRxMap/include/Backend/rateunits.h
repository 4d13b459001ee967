#pragma once

#include "Framework/dbgroupproductgroupinfo.h"
#include "bePluginRxMap/bepluginrxmapglobal.h"

#include <QString>
#include <QStringList>

/// What units of rates are made of: any amount per any area; "kg" and "ha" make "kg/ha".
struct RateUnitParts {
    QStringList amounts;
    QStringList areas;
};

/// What there is to know of the units of rates without a file.
namespace RateUnits {

/// The units in which rates of that kind are written; no parts for a kind that is not written as an amount per area.
BEPLUGINRXMAP_EXPORT RateUnitParts parts(DbGroupProductGroupInfo::RateKind kind);
/// The unit in which rates of that kind are kept; empty for an unknown kind.
BEPLUGINRXMAP_EXPORT QString base(DbGroupProductGroupInfo::RateKind kind);
/// Factor from that unit ("lb/ac") to the base unit of the kind; 0 if it is not a unit for such rates.
BEPLUGINRXMAP_EXPORT double factor(const QString &unit, DbGroupProductGroupInfo::RateKind kind);

} // namespace RateUnits
