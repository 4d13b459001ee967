#include "Framework/dbgroupaam.h"

class DbGroupAAMPrivate {
public:
    QString productGroupName;
};

DbGroupAAM::DbGroupAAM(const QString &name, QObject *parent)
    : DataBrokerGroup(name, parent)
    , d(new DbGroupAAMPrivate)
{
}

DbGroupAAM::~DbGroupAAM() = default;

ORVIK_GROUP_PROPERTY_ACCESSORS(DbGroupAAM, QString, productGroupName, ProductGroupName, d->productGroupName)
