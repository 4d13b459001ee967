#pragma once

#include <QColor>

/// The legend's colours. Lightness rises evenly from dark blue over teal to yellow, so the classes keep their order in
/// the eyes of people with any colour blindness, and in grey.
class RateRamp {
public:
    /// `position` from 0 (least rate) to 1 (greatest); what lies outside is taken as the nearer end.
    static QColor color(double position);
    /// Zero is a rate of its own: a colour that the ramp does not hold.
    static QColor zeroColor();
    /// Fully transparent: stands for "no rate here".
    static QColor noRateColor();
};
