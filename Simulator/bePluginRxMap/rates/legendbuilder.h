#pragma once

#include "Framework/rxpolygon.h"

#include <QList>

#include <vector>

/// Sorts the rates of one column into the classes of a colour legend.
///
/// Rates are compared as they stand in the published chain: single-precision numbers, widened. Every limit is such a
/// number too, so a rate that equals a limit is in that limit's class.
class LegendBuilder {
public:
    static constexpr int maxClasses = 7;

    /// The classes, limits ascending, the last one holding the greatest rate; at most maxClasses. Few different rates
    /// have a class each, many are split into classes of about equally many polygons at round limits. Zero has a class
    /// and a colour of its own. Rates that are not finite have no class; where there are any, one more entry follows,
    /// fully transparent, with the limit of the entry before it: a reader that finds no class for such a rate takes the
    /// last entry, and so draws nothing. Empty for no rates.
    static QList<OrvikTypes::RX_RATECOLOR> build(const std::vector<float> &rates);

    /// Whether every class of a column's legend holds one single rate: its limit.
    static bool hasSingleRates(const QList<OrvikTypes::RX_RATECOLOR> &legend, const std::vector<float> &rates);

private:
    static std::vector<double> limits(const std::vector<float> &sortedRates);
};
