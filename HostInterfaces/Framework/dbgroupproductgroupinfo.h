#pragma once

#include "Framework/groupproperty.h"

class DbGroupProductGroupInfoPrivate;

/// What the host knows of one product group, for display.
class FRAMEWORK_EXPORT DbGroupProductGroupInfo : public DataBrokerGroup {
    Q_OBJECT
    /// The product's number from 1.
    ORVIK_GROUP_PROPERTY(int, productNumber, ProductNumber)
    /// How the product's rate is measured, a RateKind.
    ORVIK_GROUP_PROPERTY(int, rateKind, RateKind)

public:
    enum RateKind { UnknownRate = 0, CountRate, RatioRate, InjectionRate, VolumeRate, WeightRate, PressureRate };
    Q_ENUM(RateKind)

    explicit DbGroupProductGroupInfo(const QString &name, QObject *parent = nullptr);
    ~DbGroupProductGroupInfo() override;

private:
    QScopedPointer<DbGroupProductGroupInfoPrivate> d;
};

/// Factor from the base unit of the product group's rate to the operator's unit, by the group "QmlUnitsConverter" of
/// the broker that published `group`. 1.0 for a null group, one of unknown kind, or without a units converter.
FRAMEWORK_EXPORT double getRateConversion(DbGroupProductGroupInfo *group);
