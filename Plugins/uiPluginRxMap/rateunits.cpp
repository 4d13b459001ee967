#include "rateunits.h"

#include "Framework/dbgroupqmlunitsconverter.h"
#include "Framework/dbgroupsingleproductnode.h"
#include "Framework/productlineitem.h"

#include <QCoreApplication>

namespace {

using Units = DbGroupQmlUnitsConverter;

struct UnitText {
    const char *source;
    const char *comment;
};

struct AreaRate {
    UnitText perAcre;
    UnitText perHectare;
    UnitText perTurf;
    double (Units::*toDisplay)() const;
    double (Units::*fromDisplay)() const;
};

const AreaRate countRate{
    QT_TRANSLATE_NOOP3("DbGroupQmlUnitsConverter", "k/ac", "count per area: 1000/acre"),
    QT_TRANSLATE_NOOP3("DbGroupQmlUnitsConverter", "k/ha", "count per area: 1000/hectare"),
    QT_TRANSLATE_NOOP3("DbGroupQmlUnitsConverter", "k/tu", "count per area: 1000/turf"),
    &Units::getCountRateToDisplay,
    &Units::getCountRateFromDisplay,
};

// By design: turf falls back to the ratio per gallon.
const AreaRate ratioRate{
    QT_TRANSLATE_NOOP3("DbGroupQmlUnitsConverter", "fl oz/gal", "fluid ounces/galon"),
    QT_TRANSLATE_NOOP3("DbGroupQmlUnitsConverter", "L/L", "liter/liter"),
    QT_TRANSLATE_NOOP3("DbGroupQmlUnitsConverter", "fl oz/gal", "fluid ounces/galon"),
    &Units::getRatioRateToDisplay,
    &Units::getRatioRateFromDisplay,
};

const AreaRate injectionRate{
    QT_TRANSLATE_NOOP3("DbGroupQmlUnitsConverter", "fl oz/ac", "fluid ounce/acre"),
    QT_TRANSLATE_NOOP3("DbGroupQmlUnitsConverter", "mL/ha", "milliliter/hectare"),
    QT_TRANSLATE_NOOP3("DbGroupQmlUnitsConverter", "fl oz/tu", "fluid ounce/turf"),
    &Units::getInjectionRateToDisplay,
    &Units::getInjectionRateFromDisplay,
};

const AreaRate volumeRate{
    QT_TRANSLATE_NOOP3("DbGroupQmlUnitsConverter", "gal/ac", "gallons/acre"),
    QT_TRANSLATE_NOOP3("DbGroupQmlUnitsConverter", "L/ha", "liter/hectare"),
    QT_TRANSLATE_NOOP3("DbGroupQmlUnitsConverter", "gal/tu", "gallons/turf"),
    &Units::getVolumeRateToDisplay,
    &Units::getVolumeRateFromDisplay,
};

const AreaRate weightRate{
    QT_TRANSLATE_NOOP3("DbGroupQmlUnitsConverter", "lb/ac", "pound/acre"),
    QT_TRANSLATE_NOOP3("DbGroupQmlUnitsConverter", "kg/ha", "kilogram/hectare"),
    QT_TRANSLATE_NOOP3("DbGroupQmlUnitsConverter", "lb/tu", "pound/turf"),
    &Units::getWeightRateToDisplay,
    &Units::getWeightRateFromDisplay,
};

/// By the units converter's pressure unit; kilopascals stand in for any other.
const UnitText pressureUnits[] = {
    QT_TRANSLATE_NOOP3("DbGroupQmlUnitsConverter", "psi", "unit of pressure: pound-force per square inch"),
    QT_TRANSLATE_NOOP3("DbGroupQmlUnitsConverter", "kPa", "unit of pressure: kilopascals"),
    QT_TRANSLATE_NOOP3("DbGroupQmlUnitsConverter", "bar", "metric unit of pressure"),
    QT_TRANSLATE_NOOP3("DbGroupQmlUnitsConverter", "inHg", "unit of pressure: inch of mercury"),
    QT_TRANSLATE_NOOP3("DbGroupQmlUnitsConverter", "mmHg", "unit of pressure: millemeter of mercury"),
    QT_TRANSLATE_NOOP3("DbGroupQmlUnitsConverter", "atm", "unit of pressure: atmosphere"),
    QT_TRANSLATE_NOOP3("DbGroupQmlUnitsConverter", "hPa", "unit of pressure: hectopascal"),
};
constexpr int pressureUnitCount = sizeof(pressureUnits) / sizeof(pressureUnits[0]);
constexpr int kilopascal = 1;

QString translated(const UnitText &text)
{
    return QCoreApplication::translate("DbGroupQmlUnitsConverter", text.source, text.comment);
}

RateUnit areaUnit(const AreaRate &rate, const Units &units)
{
    const int system = units.getAreaUnitSystem();
    const UnitText &text = system == 0 ? rate.perAcre : system == 1 ? rate.perHectare : rate.perTurf;
    return {translated(text), (units.*rate.toDisplay)(), (units.*rate.fromDisplay)()};
}

RateUnit pressureUnit(const Units &units)
{
    const int unit = units.getPressureUnit();
    const bool known = unit >= 0 && unit < pressureUnitCount;
    return {translated(pressureUnits[known ? unit : kilopascal]), units.getPressureToDisplay(),
            units.getPressureFromDisplay()};
}

const AreaRate &volumeRateOf(const DbGroupSingleProductNode &node)
{
    if (node.getIsCarrier())
        return volumeRate;
    if (node.getOperationalSettings().isRatioRate())
        return ratioRate;
    return node.getSwitchByteCalSettings().isInjection() ? injectionRate : volumeRate;
}

} // namespace

bool isOfKnownKind(const ProductLineItem &product)
{
    return product.isCountBasedProduct() || product.isVolumeBasedProduct() || product.isWeightBasedProduct()
        || product.isPressureBasedProduct();
}

RateUnit rateUnitOf(const ProductLineItem &product, const DbGroupSingleProductNode &node, const Units &units)
{
    if (product.isCountBasedProduct())
        return areaUnit(countRate, units);
    if (product.isVolumeBasedProduct())
        return areaUnit(volumeRateOf(node), units);
    if (product.isWeightBasedProduct())
        return areaUnit(weightRate, units);
    if (product.isPressureBasedProduct())
        return pressureUnit(units);
    return {};
}
