#pragma once

#include "Framework/rxpolygon.h"

#include <QList>

#include <vector>

/// Sorts the rates of one column into the classes of a colour legend.
///
/// Rates are compared as they stand in the published chain: single-precision numbers, widened. Every limit is such a
/// number too, so a rate that equals a limit is in that limit's class. The operator's unit, as ShownRate writes it,
/// decides what is round and which rates are the same.
class LegendBuilder {
public:
    static constexpr int maxSingleRates = 12;
    static constexpr int maxClasses = 7;

    struct Legend {
        /// Limits ascending, the last one holding the greatest rate. Empty for no rates. Zero has a class and a colour
        /// of its own. Rates that are not finite have no class; if there are any, one more entry follows, fully
        /// transparent, with the limit of the entry before it: a reader that finds no class for such a rate takes the
        /// last entry, and so draws nothing.
        QList<OrvikTypes::RX_RATECOLOR> classes;
        /// Whether every class holds only rates that are shown alike; the greatest of them is its limit.
        bool hasSingleRates = false;
    };

    /// `factor` takes rates to the operator's unit. Up to maxSingleRates rates that are shown differently have a class
    /// each; more are split into at most maxClasses classes of about equally many polygons at round limits, no two of
    /// which are shown alike. `counts`: how many polygons each rate stands for; one each where it is empty.
    static Legend build(const std::vector<float> &rates, double factor = 1.0, const std::vector<int> &counts = {});

    /// How much of `areas`, one per rate, each entry of a legend holds.
    static QList<double> areasOf(const QList<OrvikTypes::RX_RATECOLOR> &classes, const std::vector<float> &rates,
                                 const std::vector<double> &areas);
};
