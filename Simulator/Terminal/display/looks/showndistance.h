#pragma once

#include "unitsystem.h"

#include <QCoreApplication>

/// How far apart fields lie.
class ShownDistance {
    Q_DECLARE_TR_FUNCTIONS(ShownDistance)

public:
    /// In whole kilometres or miles: "1,989 km", "1,236 mi".
    static QString text(double metres, UnitSystem system);
};
