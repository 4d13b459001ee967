#include "dbgroupbin.h"

ORVIK_GROUP_PROPERTY_ACCESSORS(DbGroupBin, QString, compositionShortName, CompositionShortName,
                               storedCompositionShortName)
ORVIK_GROUP_PROPERTY_ACCESSORS(DbGroupBin, QString, rxMapGroupName, RxMapGroupName, storedRxMapGroupName)
ORVIK_GROUP_PROPERTY_ACCESSORS(DbGroupBin, int, binNumber, BinNumber, storedBinNumber)

DbGroupBin::DbGroupBin(const QString &name, QObject *parent)
    : DataBrokerGroup(name, parent)
{
}
