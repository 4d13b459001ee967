#pragma once

#include "Framework/groupproperty.h"
#include "Framework/spnoperationalsetstruct.h"
#include "Framework/spnswitchbytecalsettingsstruct.h"

class DbGroupSingleProductNodePrivate;

/// The controller node that meters one product.
class FRAMEWORK_EXPORT DbGroupSingleProductNode : public DataBrokerGroup {
    Q_OBJECT
    ORVIK_GROUP_PROPERTY(OrvikTypes::SPN_OperationalSetStruct, operationalSettings, OperationalSettings)
    ORVIK_GROUP_PROPERTY(OrvikTypes::SPN_SwitchByteCalSettingsStruct, switchByteCalSettings, SwitchByteCalSettings)
    /// The node carries the tank mix itself, so its rate is a plain volume: neither ratio nor injection applies.
    ORVIK_GROUP_PROPERTY(bool, isCarrier, IsCarrier)

public:
    explicit DbGroupSingleProductNode(const QString &name, QObject *parent = nullptr);
    ~DbGroupSingleProductNode() override;

private:
    QScopedPointer<DbGroupSingleProductNodePrivate> d;
};
