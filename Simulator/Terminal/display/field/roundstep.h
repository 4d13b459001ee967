#pragma once

#include <cmath>
#include <initializer_list>

/// The least of 1, 2, 5, 10, 20, ... that is not below `least`, which is above zero: the step of a grid or an axis.
inline double roundStep(double least)
{
    const double decade = std::pow(10.0, std::floor(std::log10(least)));
    for (const double step : {1.0, 2.0, 5.0}) {
        if (step * decade >= least)
            return step * decade;
    }
    return 10.0 * decade;
}
