#pragma once

#include "Framework/dbgroupproductgroupinfo.h"

#include <QString>

#include <cmath>
#include <limits>

/// What a column of a file says about the product that it was made for.
struct ColumnProduct {
    /// As the column names it: "Urea" for "UREA_KG_HA". Empty where the operator lets the column feed another product
    /// and it names none: one of the usual products takes its place.
    QString name;
    /// By the column's unit: counted, by volume or by weight.
    DbGroupProductGroupInfo::RateKind kind = DbGroupProductGroupInfo::WeightRate;
    /// Number from 1 of the product that the column is to feed.
    int number = 0;
    /// The rate at which the map mostly applies it (TypicalRate), base units; not a number before the file is loaded.
    double typicalRate = std::numeric_limits<double>::quiet_NaN();
    /// What the file gives for places without a prescription (PlaceRates); not a number where it gives nothing.
    double givenRate = std::numeric_limits<double>::quiet_NaN();
    /// Whether the name is that of a product, not just of the column ("Rate").
    bool isNamed = true;

    /// The rate that suits places without a prescription.
    double defaultRate() const { return std::isnan(givenRate) ? typicalRate : givenRate; }
};
