#pragma once

#include "simulationclock.h"

#include <QObject>
#include <QScopedPointer>

class DbGroupGpsSolution;
class Vehicle;

/// Lets the machine's time pass, in steps of a tenth of a second: with the wall's clock, slower or faster, or at once.
class Simulation : public QObject {
    Q_OBJECT

public:
    static constexpr int stepMs = 100;
    static constexpr double mostTimeFactor = 50.0;

    /// `solution` and `wall` are not owned and outlive the simulation. Without `wall` time passes in run() and step()
    /// alone.
    Simulation(DbGroupGpsSolution *solution, const SimulationClock *wall, QObject *parent = nullptr);
    ~Simulation() override;

    Vehicle *vehicle() const { return machine.data(); }
    /// Seconds since it began.
    double seconds() const { return double(clock.now()) / 1000.0; }

    /// Seconds that pass in one of the wall's, from 0 (pause) to mostTimeFactor; false, and nothing changes, for any
    /// other number.
    bool setTimeFactor(double factor);
    double timeFactor() const { return factor; }

    /// Lets one step pass.
    void step();
    /// Lets that time pass at once, in whole steps; what is left over counts to the next.
    void run(double seconds);
    /// Lets the time pass that has passed on the wall.
    void catchUp();

Q_SIGNALS:
    /// A step has passed.
    void stepped();

private:
    class Clock : public SimulationClock {
    public:
        qint64 now() const override { return time; }
        qint64 time = 0;
    };

    Clock clock;
    const SimulationClock *wall;
    qint64 lastWall = 0;
    double factor = 1.0;
    /// Milliseconds that are to pass and make no step yet.
    double due = 0.0;
    QScopedPointer<Vehicle> machine;
};
