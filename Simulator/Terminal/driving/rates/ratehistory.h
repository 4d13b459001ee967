#pragma once

#include "product.h"

#include <QObject>

#include <deque>
#include <vector>

class Simulation;

/// What was prescribed where the implement was, and what was applied there, over the last half minute of simulated
/// time. A product that becomes another one begins anew.
class RateHistory : public QObject {
    Q_OBJECT

public:
    /// Seconds.
    static constexpr double span = 30.0;

    struct Sample {
        double time = 0.0;
        /// Base units; not a number where nothing is prescribed under the implement.
        double prescribed = 0.0;
        double applied = 0.0;
    };

    /// `simulation` is not owned and outlives the history.
    explicit RateHistory(Simulation *simulation, QObject *parent = nullptr);

    /// Starts or stops recording.
    void setKept(bool isKept);
    /// Of a product, by number from 1; oldest first.
    const std::deque<Sample> &samples(int number) const { return all.at(size_t(number - 1)); }

private:
    void take();
    void takeProducts();

    Simulation *simulation;
    /// Those that the samples are of.
    Products products;
    std::vector<std::deque<Sample>> all;
    bool isOn = false;
};
