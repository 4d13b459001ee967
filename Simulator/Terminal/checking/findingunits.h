#pragma once

#include "unitsystem.h"

#include <QCoreApplication>

struct MapFinding;

/// Findings are worded in metres; this writes them in the operator's units.
class FindingUnits {
    Q_DECLARE_TR_FUNCTIONS(FindingUnits)

public:
    explicit FindingUnits(UnitSystem system);

    /// The finding's text, with widths in metres or feet, and areas from a tenth of a hectare on in hectares or acres,
    /// smaller ones in square metres or square feet.
    QString textOf(const MapFinding &finding) const;

private:
    QString area(double squareMetres) const;

    UnitSystem system;
    bool isMetric;
};
