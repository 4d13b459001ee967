#pragma once

#include <QElapsedTimer>

/// What the vehicle takes for the time.
class SimulationClock {
public:
    virtual ~SimulationClock() = default;
    /// Milliseconds since some fixed moment; never runs backwards.
    virtual qint64 now() const = 0;
};

/// Time as it passes.
class RealClock : public SimulationClock {
public:
    RealClock() { timer.start(); }
    qint64 now() const override { return timer.elapsed(); }

private:
    QElapsedTimer timer;
};
