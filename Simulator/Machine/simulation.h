#pragma once

#include "actuator.h"
#include "pose.h"
#include "simulationclock.h"
#include "trackreader.h"

#include <QObject>
#include <QScopedPointer>

#include <vector>

class Machine;
class QTimer;
class RateController;
class Vehicle;

/// Lets the machine's time pass, in steps of a tenth of a second: with the wall's clock, slower or faster, or at once.
class Simulation : public QObject {
    Q_OBJECT

public:
    static constexpr int stepMs = 100;
    static constexpr double maxTimeFactor = 50.0;

    /// How a product is metered at the end of a step, base units.
    struct Rates {
        RateCommand command;
        double applied = 0.0;
        /// Of the last step.
        double meanApplied = 0.0;
    };

    /// `machine` and `wall` are not owned and outlive the simulation. Without `wall` time passes in run() and step()
    /// alone.
    Simulation(Machine *machine, const SimulationClock *wall, QObject *parent = nullptr);
    ~Simulation() override;

    Machine *machine() const { return machineModel; }
    Vehicle *vehicle() const { return vehicleModel.data(); }
    RateController *controller() const { return rateController.data(); }
    /// Square metres that the implement passed over while it was down.
    double workedArea() const { return worked; }
    /// Where the last step began; it ended where the vehicle is.
    const Pose &stepStart() const { return lastStart; }
    /// Of a product, by number from 1.
    Rates rates(int number) const;
    /// What the product's metering makes of a command in the end, base units.
    double target(int number, const RateCommand &command) const
    {
        return actuators.at(size_t(number - 1)).target(command);
    }

    /// Seconds since it began.
    double seconds() const { return double(clock.now()) / 1000.0; }

    /// Seconds that pass in one of the wall's, from 0 (pause) to maxTimeFactor; false, and nothing changes, for any
    /// other number.
    bool setTimeFactor(double factor);
    double timeFactor() const { return factor; }

    /// Goes where a track went on the plane of the loaded maps, from now on; the reason, and the machine stays as it
    /// is, when that is not possible.
    Result<TrackReader::Summary> replay(const QString &path);
    /// As replay(), with a track that was checked on that plane before.
    void replayChecked(const QString &path);

    /// Lets one step pass.
    void step();
    /// Lets that time pass at once, in whole steps; what is left over counts to the next.
    void run(double seconds);
    /// Lets as much time pass as has passed on the wall's clock, or as much of it as can be driven in a twentieth of a
    /// second: a factor that the computer cannot keep up with has the effect of a smaller one.
    void catchUp();

Q_SIGNALS:
    void timeFactorChanged(double factor);
    /// A step has passed.
    void stepped();

private:
    class Clock : public SimulationClock {
    public:
        qint64 now() const override { return time; }
        qint64 time = 0;
    };

    void takeProducts();
    /// With another map, products of the same name may have other limits.
    void takeLimits();
    void updateCommands();
    /// Looks at the wall's clock as often as a moving machine needs.
    void wake();

    Machine *machineModel;
    Clock clock;
    const SimulationClock *wall;
    qint64 lastWall = 0;
    QTimer *timer = nullptr; ///< Null without `wall`.
    int standingSteps = 0;   ///< Since the vehicle moved last.
    double factor = 1.0;
    /// Milliseconds still to pass, too few for a step.
    double due = 0.0;
    double worked = 0.0;
    Pose lastStart;
    QScopedPointer<Vehicle> vehicleModel;
    QScopedPointer<RateController> rateController;
    std::vector<Actuator> actuators;
    std::vector<double> meanRates;
};
