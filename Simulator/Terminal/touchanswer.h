#pragma once

#include <QColor>
#include <QString>

/// The answer to a touch on the ground.
struct TouchAnswer {
    /// What the graphics lists say; empty when they say nothing.
    QString text;
    /// Colour of the legend class that holds the active product's rate in that same answer; invalid without a rate.
    QColor color;
};
