#pragma once

#include <QStringList>

/// Of what units of rates are made: any amount per any area, "kg" and "ha" make "kg/ha".
struct RateUnitParts {
    QStringList amounts;
    QStringList areas;
};
