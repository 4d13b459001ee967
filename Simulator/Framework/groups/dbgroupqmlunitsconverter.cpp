#include "Framework/dbgroupqmlunitsconverter.h"

#include "unitfactors.h"

class DbGroupQmlUnitsConverterPrivate {
public:
    int areaUnitSystem = 0;
    int pressureUnit = 0;
    double countRateToDisplay = 1.0;
    double countRateFromDisplay = 1.0;
    double ratioRateToDisplay = 1.0;
    double ratioRateFromDisplay = 1.0;
    double injectionRateToDisplay = 1.0;
    double injectionRateFromDisplay = 1.0;
    double volumeRateToDisplay = 1.0;
    double volumeRateFromDisplay = 1.0;
    double weightRateToDisplay = 1.0;
    double weightRateFromDisplay = 1.0;
    double pressureToDisplay = 1.0;
    double pressureFromDisplay = 1.0;
};

DbGroupQmlUnitsConverter::DbGroupQmlUnitsConverter(const QString &name, QObject *parent)
    : DataBrokerGroup(name, parent)
    , d(new DbGroupQmlUnitsConverterPrivate)
{
    // Connected first, so that everybody who hears of a new unit finds its factors, whatever thread set it.
    connect(this, &DbGroupQmlUnitsConverter::areaUnitSystemChanged, this, &DbGroupQmlUnitsConverter::renewFactors,
            Qt::DirectConnection);
    connect(this, &DbGroupQmlUnitsConverter::pressureUnitChanged, this, &DbGroupQmlUnitsConverter::renewFactors,
            Qt::DirectConnection);
    renewFactors();
}

DbGroupQmlUnitsConverter::~DbGroupQmlUnitsConverter() = default;

void DbGroupQmlUnitsConverter::renewFactors()
{
    int area = getAreaUnitSystem();
    int pressure = getPressureUnit();
    storeFactors(UnitFactors::of(area, pressure));
    // A listener or another thread may have set a unit meanwhile: the last factors stored are those of the last units.
    while (area != getAreaUnitSystem() || pressure != getPressureUnit()) {
        area = getAreaUnitSystem();
        pressure = getPressureUnit();
        storeFactors(UnitFactors::of(area, pressure));
    }
}

void DbGroupQmlUnitsConverter::storeFactors(const UnitFactors &factors)
{
    internalSetCountRateToDisplay(factors.countRate);
    internalSetCountRateFromDisplay(1.0 / factors.countRate);
    internalSetRatioRateToDisplay(factors.ratioRate);
    internalSetRatioRateFromDisplay(1.0 / factors.ratioRate);
    internalSetInjectionRateToDisplay(factors.injectionRate);
    internalSetInjectionRateFromDisplay(1.0 / factors.injectionRate);
    internalSetVolumeRateToDisplay(factors.volumeRate);
    internalSetVolumeRateFromDisplay(1.0 / factors.volumeRate);
    internalSetWeightRateToDisplay(factors.weightRate);
    internalSetWeightRateFromDisplay(1.0 / factors.weightRate);
    internalSetPressureToDisplay(factors.pressure);
    internalSetPressureFromDisplay(1.0 / factors.pressure);
}

ORVIK_GROUP_PROPERTY_ACCESSORS(DbGroupQmlUnitsConverter, int, areaUnitSystem, AreaUnitSystem, d->areaUnitSystem)
ORVIK_GROUP_PROPERTY_ACCESSORS(DbGroupQmlUnitsConverter, int, pressureUnit, PressureUnit, d->pressureUnit)
ORVIK_GROUP_PROPERTY_ACCESSORS(DbGroupQmlUnitsConverter, double, countRateToDisplay, CountRateToDisplay,
                               d->countRateToDisplay)
ORVIK_GROUP_PROPERTY_ACCESSORS(DbGroupQmlUnitsConverter, double, countRateFromDisplay, CountRateFromDisplay,
                               d->countRateFromDisplay)
ORVIK_GROUP_PROPERTY_ACCESSORS(DbGroupQmlUnitsConverter, double, ratioRateToDisplay, RatioRateToDisplay,
                               d->ratioRateToDisplay)
ORVIK_GROUP_PROPERTY_ACCESSORS(DbGroupQmlUnitsConverter, double, ratioRateFromDisplay, RatioRateFromDisplay,
                               d->ratioRateFromDisplay)
ORVIK_GROUP_PROPERTY_ACCESSORS(DbGroupQmlUnitsConverter, double, injectionRateToDisplay, InjectionRateToDisplay,
                               d->injectionRateToDisplay)
ORVIK_GROUP_PROPERTY_ACCESSORS(DbGroupQmlUnitsConverter, double, injectionRateFromDisplay, InjectionRateFromDisplay,
                               d->injectionRateFromDisplay)
ORVIK_GROUP_PROPERTY_ACCESSORS(DbGroupQmlUnitsConverter, double, volumeRateToDisplay, VolumeRateToDisplay,
                               d->volumeRateToDisplay)
ORVIK_GROUP_PROPERTY_ACCESSORS(DbGroupQmlUnitsConverter, double, volumeRateFromDisplay, VolumeRateFromDisplay,
                               d->volumeRateFromDisplay)
ORVIK_GROUP_PROPERTY_ACCESSORS(DbGroupQmlUnitsConverter, double, weightRateToDisplay, WeightRateToDisplay,
                               d->weightRateToDisplay)
ORVIK_GROUP_PROPERTY_ACCESSORS(DbGroupQmlUnitsConverter, double, weightRateFromDisplay, WeightRateFromDisplay,
                               d->weightRateFromDisplay)
ORVIK_GROUP_PROPERTY_ACCESSORS(DbGroupQmlUnitsConverter, double, pressureToDisplay, PressureToDisplay,
                               d->pressureToDisplay)
ORVIK_GROUP_PROPERTY_ACCESSORS(DbGroupQmlUnitsConverter, double, pressureFromDisplay, PressureFromDisplay,
                               d->pressureFromDisplay)
