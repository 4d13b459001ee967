#pragma once

#include "Framework/groupproperty.h"

class DbGroupQmlUnitsConverterPrivate;
struct UnitFactors;

/// The operator's units, published as "QmlUnitsConverter". Each factor pair converts between a base unit and the
/// operator's unit: toDisplay multiplies a stored value, fromDisplay a typed one.
/// Base units: count 1000/ha, ratio L/L, injection mL/ha, volume L/ha, weight kg/ha, pressure kPa.
/// Setting the area unit system or the pressure unit renews the factors.
class FRAMEWORK_EXPORT DbGroupQmlUnitsConverter : public DataBrokerGroup {
    Q_OBJECT
    /// 0: per acre; 1: per hectare; any other: turf, per 1000 square feet.
    ORVIK_GROUP_PROPERTY(int, areaUnitSystem, AreaUnitSystem)
    /// 0 psi, 1 kPa, 2 bar, 3 inHg, 4 mmHg, 5 atm, 6 hPa; any other: kPa.
    ORVIK_GROUP_PROPERTY(int, pressureUnit, PressureUnit)
    ORVIK_GROUP_PROPERTY(double, countRateToDisplay, CountRateToDisplay)
    ORVIK_GROUP_PROPERTY(double, countRateFromDisplay, CountRateFromDisplay)
    ORVIK_GROUP_PROPERTY(double, ratioRateToDisplay, RatioRateToDisplay)
    ORVIK_GROUP_PROPERTY(double, ratioRateFromDisplay, RatioRateFromDisplay)
    ORVIK_GROUP_PROPERTY(double, injectionRateToDisplay, InjectionRateToDisplay)
    ORVIK_GROUP_PROPERTY(double, injectionRateFromDisplay, InjectionRateFromDisplay)
    ORVIK_GROUP_PROPERTY(double, volumeRateToDisplay, VolumeRateToDisplay)
    ORVIK_GROUP_PROPERTY(double, volumeRateFromDisplay, VolumeRateFromDisplay)
    ORVIK_GROUP_PROPERTY(double, weightRateToDisplay, WeightRateToDisplay)
    ORVIK_GROUP_PROPERTY(double, weightRateFromDisplay, WeightRateFromDisplay)
    ORVIK_GROUP_PROPERTY(double, pressureToDisplay, PressureToDisplay)
    ORVIK_GROUP_PROPERTY(double, pressureFromDisplay, PressureFromDisplay)

public:
    explicit DbGroupQmlUnitsConverter(const QString &name, QObject *parent = nullptr);
    ~DbGroupQmlUnitsConverter() override;

private:
    void renewFactors();
    void storeFactors(const UnitFactors &factors);

    QScopedPointer<DbGroupQmlUnitsConverterPrivate> d;
};
