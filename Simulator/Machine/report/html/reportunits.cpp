#include "reportunits.h"

#include "machine.h"
#include "shownnumber.h"

#include "Framework/databroker.h"
#include "Framework/dbgroupproductgroupinfo.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double metresOfFoot = 0.3048;
constexpr double squareFoot = metresOfFoot * metresOfFoot / 10000.0; // Hectares.

/// Of the area by which that system's rates go.
double hectaresOf(UnitSystem units)
{
    switch (units) {
    case UnitSystem::Us:
        return 43560.0 * squareFoot;
    case UnitSystem::Turf:
        return 1000.0 * squareFoot;
    case UnitSystem::Metric:
        break;
    }
    return 1.0;
}

} // namespace

QString ReportUnits::number(double value)
{
    constexpr double nothing = 5e-5;
    if (std::fabs(value) < nothing)
        return QStringLiteral("0");
    const int digits = std::isfinite(value) ? int(std::floor(std::log10(std::fabs(value)))) + 1 : 0;
    return number(value, std::clamp(3 - digits, 0, 4));
}

QString ReportUnits::number(double value, int decimals)
{
    if (!std::isfinite(value))
        return QStringLiteral("\u2013");
    // What is rounded to zero has no sign.
    const QString text = QString::number(std::fabs(value), 'f', decimals);
    const QString shown = ShownNumber::inLanguage(text);
    return value < 0.0 && text.toDouble() != 0.0 ? QChar(0x2212) + shown : shown;
}

ReportUnits::ReportUnits(const Machine &machine, int number)
    : units(machine.unitSystem())
    , hectaresOfArea(hectaresOf(units))
{
    if (number == 0)
        return;
    const DbGroupProductGroupInfo::RateKind kind = machine.products().at(number - 1).rateKind();
    auto *info = qobject_cast<DbGroupProductGroupInfo *>(
        machine.dataBroker()->getGroup(Machine::productGroupName(number), false));
    rateFactor = getRateConversion(info);
    rateUnitText = ::rateUnit(kind, units);
    const bool isPerArea = kind == DbGroupProductGroupInfo::CountRate || kind == DbGroupProductGroupInfo::InjectionRate
        || kind == DbGroupProductGroupInfo::VolumeRate || kind == DbGroupProductGroupInfo::WeightRate;
    if (isPerArea)
        amountUnitText = rateUnitText.section(QLatin1Char('/'), 0, 0);
}

double ReportUnits::area(double squareMetres) const
{
    // Behind a number "1000 ft²" would read as one more number.
    return squareMetres / (10000.0 * (units == UnitSystem::Turf ? squareFoot : hectaresOfArea));
}

QString ReportUnits::areaUnit() const
{
    switch (units) {
    case UnitSystem::Us:
        return QStringLiteral("ac");
    case UnitSystem::Turf:
        return QStringLiteral("ft\u00b2");
    case UnitSystem::Metric:
        break;
    }
    return QStringLiteral("ha");
}

double ReportUnits::length(double metres) const
{
    return units == UnitSystem::Metric ? metres : metres / metresOfFoot;
}

QString ReportUnits::lengthUnit() const
{
    return units == UnitSystem::Metric ? QStringLiteral("m") : QStringLiteral("ft");
}

double ReportUnits::distance(double metres) const
{
    constexpr double feetOfMile = 5280.0;
    return units == UnitSystem::Metric ? metres / 1000.0 : metres / (feetOfMile * metresOfFoot);
}

QString ReportUnits::distanceUnit() const
{
    return units == UnitSystem::Metric ? QStringLiteral("km") : QStringLiteral("mi");
}
