#include "dbgroupquillspan.h"

ORVIK_GROUP_PROPERTY_ACCESSORS(DbGroupQuillSpan, bool, reInit, ReInit, storedReInit)
ORVIK_GROUP_PROPERTY_ACCESSORS(DbGroupQuillSpan, int, reInitCount, ReInitCount, storedReInitCount)

DbGroupQuillSpan::DbGroupQuillSpan(const QString &name, QObject *parent)
    : DataBrokerGroup(name, parent)
{
    connect(this, &DbGroupQuillSpan::reInitSet, this, &DbGroupQuillSpan::countRequest);
}

void DbGroupQuillSpan::countRequest(bool requested)
{
    if (requested)
        internalSetReInitCount(storedReInitCount + 1);
}
