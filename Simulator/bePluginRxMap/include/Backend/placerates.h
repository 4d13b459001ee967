#pragma once

#include <cmath>
#include <limits>

/// Rates that task data gives for places without a prescription. Not a number where it gives none.
struct PlaceRates {
    double outOfField = std::numeric_limits<double>::quiet_NaN();
    /// Within the field, but in none of the zones.
    double elsewhere = std::numeric_limits<double>::quiet_NaN();
    double positionLost = std::numeric_limits<double>::quiet_NaN();

    /// The default rate that follows from them: most places without a rate are out of the field.
    double defaultRate() const { return std::isnan(outOfField) ? elsewhere : outOfField; }
};
