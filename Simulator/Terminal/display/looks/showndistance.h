#pragma once

#include "unitsystem.h"

#include <QCoreApplication>

/// Lengths as the display shows them.
class ShownDistance {
    Q_DECLARE_TR_FUNCTIONS(ShownDistance)

public:
    /// In whole kilometres or miles: "1,989 km", "1,236 mi".
    static QString text(double metres, UnitSystem system);
    /// In metres or feet: "12.0 m", "39.4 ft"; two decimals below one.
    static QString width(double metres, UnitSystem system);
};
