#pragma once

#include "product.h"
#include "unitsystem.h"

#include <QString>

class Machine;

/// Numbers of a report in the operator's units, as text in the language chosen.
class ReportUnits {
public:
    /// At least three significant digits, no more than four decimals, no exponent.
    static QString number(double value);
    /// With `decimals` decimals.
    static QString number(double value, int decimals);

    /// For a product, by number from 1; without one for what is no rate.
    explicit ReportUnits(const Machine &machine, int number = 0);

    /// From the product's base unit.
    double rate(double base) const { return rateFactor * base; }
    QString rateUnit() const { return rateUnitText; }
    /// A sum of rates over areas is an amount; ratios and pressures have no such sum.
    bool hasAmounts() const { return !amountUnitText.isEmpty(); }
    /// From the base unit times hectares.
    double amount(double base) const { return rateFactor * base / hectaresOfArea; }
    QString amountUnit() const { return amountUnitText; }
    /// From square metres.
    double area(double squareMetres) const;
    QString areaUnit() const;
    /// From metres.
    double length(double metres) const;
    QString lengthUnit() const;
    /// From metres.
    double distance(double metres) const;
    QString distanceUnit() const;

private:
    UnitSystem units;
    double hectaresOfArea;
    double rateFactor = 1.0;
    QString rateUnitText;
    QString amountUnitText;
};
