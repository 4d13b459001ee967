#include "Framework/dbgroupjob.h"

class DbGroupJobPrivate {
public:
    QString activeAAMGroupName;
};

DbGroupJob::DbGroupJob(const QString &name, QObject *parent)
    : DataBrokerGroup(name, parent)
    , d(new DbGroupJobPrivate)
{
}

DbGroupJob::~DbGroupJob() = default;

ORVIK_GROUP_PROPERTY_ACCESSORS(DbGroupJob, QString, activeAAMGroupName, ActiveAAMGroupName, d->activeAAMGroupName)
