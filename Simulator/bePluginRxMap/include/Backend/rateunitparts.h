#pragma once

#include <QStringList>

/// What units of rates are made of: any amount per any area; "kg" and "ha" make "kg/ha".
struct RateUnitParts {
    QStringList amounts;
    QStringList areas;
};
