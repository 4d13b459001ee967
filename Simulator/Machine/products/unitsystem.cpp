#include "unitsystem.h"

#include <QCoreApplication>

namespace {

struct UnitTexts {
    DbGroupProductGroupInfo::RateKind kind;
    const char *text[3]; ///< By UnitSystem.
    const char *comment[3];
};

// The comments tell translators what each abbreviation stands for.
constexpr UnitTexts unitTexts[] = {
    {DbGroupProductGroupInfo::CountRate,
     {"k/ac", "k/ha", "k/tu"},
     {"count per area: 1000/acre", "count per area: 1000/hectare", "count per area: 1000/turf"}},
    {DbGroupProductGroupInfo::RatioRate,
     {"fl oz/gal", "L/L", "fl oz/gal"},
     {"fluid ounces/galon", "liter/liter", "fluid ounces/galon"}},
    {DbGroupProductGroupInfo::InjectionRate,
     {"fl oz/ac", "mL/ha", "fl oz/tu"},
     {"fluid ounce/acre", "milliliter/hectare", "fluid ounce/turf"}},
    {DbGroupProductGroupInfo::VolumeRate,
     {"gal/ac", "L/ha", "gal/tu"},
     {"gallons/acre", "liter/hectare", "gallons/turf"}},
    {DbGroupProductGroupInfo::WeightRate,
     {"lb/ac", "kg/ha", "lb/tu"},
     {"pound/acre", "kilogram/hectare", "pound/turf"}},
    {DbGroupProductGroupInfo::PressureRate,
     {"psi", "kPa", "psi"},
     {"unit of pressure: pound-force per square inch", "unit of pressure: kilopascals",
      "unit of pressure: pound-force per square inch"}},
};

} // namespace

QString rateUnit(DbGroupProductGroupInfo::RateKind kind, UnitSystem units)
{
    for (const UnitTexts &entry : unitTexts) {
        if (entry.kind == kind)
            return QCoreApplication::translate("DbGroupQmlUnitsConverter", entry.text[int(units)],
                                               entry.comment[int(units)]);
    }
    return {};
}

int areaUnitSystem(UnitSystem units)
{
    return int(units);
}

int pressureUnit(UnitSystem units)
{
    constexpr int psi = 0;
    constexpr int kilopascal = 1;
    return units == UnitSystem::Metric ? kilopascal : psi;
}
