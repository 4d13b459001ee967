#pragma once

#include <QColor>

/// The least contrast that a text may have with its background (WCAG 2.1, success criterion 1.4.3).
constexpr double leastContrast = 4.5;

/// The contrast ratio of two opaque colours by their relative luminances, from 1 (the same) to 21 (black and white).
/// Source: WCAG 2.1, "contrast ratio" and "relative luminance".
double contrast(const QColor &one, const QColor &other);

/// The colour seen where `color`, which need not be opaque, lies over `ground`.
QColor blended(const QColor &color, const QColor &ground);
