#pragma once

#include "Backend/placerates.h"

#include <QString>

/// Where the rates of one product come from.
struct RateSource {
    /// Where the unit of a column is known from.
    enum class UnitFrom { Operator, Format, Column, Text, Name, Assumed };

    QString column;
    /// Unit of the file, "lb/ac"; the product's base unit where the file's is not known, empty where that is not known
    /// either.
    QString unit;
    UnitFrom unitFrom = UnitFrom::Assumed;
    /// Number of the product from 1.
    int product = 0;
    /// Whether the operator or the column's name says that it holds rates; if not, its content suggested it.
    bool isSure = true;
    /// What the file gives for places without a prescription, in the product's base unit.
    PlaceRates placeRates = {};
    /// Unit of these, "kg/ha"; empty for a product of no known kind.
    QString baseUnit = {};
};
