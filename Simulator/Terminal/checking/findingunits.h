#pragma once

#include "unitsystem.h"

#include <QCoreApplication>

class QRegularExpressionMatch;
struct MapFinding;

/// Findings are worded in metres; this writes them in the operator's units.
class FindingUnits {
    Q_DECLARE_TR_FUNCTIONS(FindingUnits)

public:
    explicit FindingUnits(UnitSystem system);

    /// The finding's text, with widths in metres or feet, and areas from a tenth of a hectare on in hectares or acres,
    /// smaller ones in square metres or square feet. Digits of numbers are in groups as the language writes them.
    QString textOf(const MapFinding &finding) const;

private:
    /// What the figure's expression found, a size in the operator's unit.
    QString sizeText(const QRegularExpressionMatch &match, const MapFinding &finding) const;
    static QString grouped(const QString &number, const MapFinding &finding);
    QString area(double squareMetres) const;

    UnitSystem system;
    bool isMetric;
};
