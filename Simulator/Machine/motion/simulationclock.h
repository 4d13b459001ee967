#pragma once

#include <QElapsedTimer>

/// The clock that the vehicle moves by.
class SimulationClock {
public:
    virtual ~SimulationClock() = default;
    /// Milliseconds since some fixed moment; never runs backwards.
    virtual qint64 now() const = 0;
};

/// Real time.
class RealClock : public SimulationClock {
public:
    RealClock() { timer.start(); }
    qint64 now() const override { return timer.elapsed(); }

private:
    QElapsedTimer timer;
};
