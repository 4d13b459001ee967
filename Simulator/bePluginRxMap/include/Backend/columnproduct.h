#pragma once

#include "Framework/dbgroupproductgroupinfo.h"

#include <QString>

/// What a column of a file says of the product that it was made for.
struct ColumnProduct {
    /// As the column calls it: "Urea" for "UREA_KG_HA".
    QString name;
    /// By the column's unit: counted, by volume or by weight.
    DbGroupProductGroupInfo::RateKind kind = DbGroupProductGroupInfo::WeightRate;
    /// Number from 1 of the product that the column is to feed.
    int number = 0;
};
