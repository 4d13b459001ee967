#include "Framework/dbgroupsingleproductnode.h"

class DbGroupSingleProductNodePrivate {
public:
    OrvikTypes::SPN_OperationalSetStruct operationalSettings;
    OrvikTypes::SPN_SwitchByteCalSettingsStruct switchByteCalSettings;
    bool isCarrier = false;
};

DbGroupSingleProductNode::DbGroupSingleProductNode(const QString &name, QObject *parent)
    : DataBrokerGroup(name, parent)
    , d(new DbGroupSingleProductNodePrivate)
{
}

DbGroupSingleProductNode::~DbGroupSingleProductNode() = default;

ORVIK_GROUP_PROPERTY_ACCESSORS(DbGroupSingleProductNode, OrvikTypes::SPN_OperationalSetStruct, operationalSettings,
                               OperationalSettings, d->operationalSettings)
ORVIK_GROUP_PROPERTY_ACCESSORS(DbGroupSingleProductNode, OrvikTypes::SPN_SwitchByteCalSettingsStruct,
                               switchByteCalSettings, SwitchByteCalSettings, d->switchByteCalSettings)
ORVIK_GROUP_PROPERTY_ACCESSORS(DbGroupSingleProductNode, bool, isCarrier, IsCarrier, d->isCarrier)
