#pragma once

#include <QColor>

/// The legend's colours. Lightness rises evenly from dark blue over teal to yellow, so the classes keep their order in
/// the eyes of people with any colour blindness, and in grey.
class RateRamp {
public:
    /// `position` from 0 (least rate) to 1 (greatest); a position outside counts as the nearer end.
    static QColor color(double position);
    /// The colour of zero, which the ramp does not hold: zero is a class of its own.
    static QColor zeroColor();
    /// Fully transparent: stands for "no rate here".
    static QColor noRateColor();
};
