#pragma once

#include "drivepath.h"
#include "machinesize.h"
#include "motion.h"

#include <QObject>
#include <QPointF>
#include <QRectF>

#include <memory>

class DbGroupGpsSolution;
class SimulationClock;
class TrackReader;

/// The vehicle that carries the terminal; it keeps "mainGpsSolution" current. It moves in one of four ways: at first
/// north and south over its area, along a path, by hand, or as a track went.
class Vehicle : public QObject {
    Q_OBJECT

public:
    /// Metres per second; a road speed that no implement exceeds.
    static constexpr double maxSpeed = 40.0;
    /// Metres per second; the fastest backwards.
    static constexpr double maxReverseSpeed = 5.0;

    /// Neither `solution` nor `clock` is owned; both outlive the vehicle.
    Vehicle(DbGroupGpsSolution *solution, const SimulationClock *clock, QObject *parent = nullptr);
    ~Vehicle() override;

    void setSize(const MachineSize &newSize) { machineSize = newSize; }
    const MachineSize &size() const { return machineSize; }

    /// Sets the area in which it shuttles (metres of the local plane); a vehicle that stands and shuttles is put at the
    /// middle of its south border.
    void setArea(const QRectF &area);
    void shuttle();
    /// Goes to the beginning of the path, to drive along it.
    void follow(const DrivePath &path);
    /// Drives by hand from here on a circle of that curvature (per metre, positive to the right), after a track at the
    /// speed reached; false, and nothing changes, where that is tighter than the machine can turn.
    bool steer(double curvature);
    /// Goes where a track goes, which begins at once.
    void replay(std::unique_ptr<TrackReader> track);

    /// Metres per second up to maxSpeed; 0 stops, and by hand down to -maxReverseSpeed drives backwards. False, and
    /// nothing changes, for any other number. While it shuttles the speed is reached at once, else within the limit of
    /// acceleration; a track has speeds of its own, and only waits while the speed is 0.
    bool drive(double metresPerSecond);
    void stop();
    /// The speed that drive() was last given.
    double wantedSpeed() const { return wanted; }
    /// Moves the vehicle by the time that has passed on the clock.
    void advance();

    /// Loses or finds the position signal.
    void setSignal(bool isThere);
    bool hasSignal() const { return signalIsThere; }
    /// Whether there is a position now.
    bool hasPosition() const { return signalIsThere && state.hasFix; }

    Motion::Mode mode() const { return motion->mode(); }
    /// Whether the way that it follows is at its end.
    bool isOver() const { return state.isOver; }
    bool isWorking() const { return state.isWorking; }
    bool isStopped() const { return state.speed == 0.0; }
    /// Metres per second; below 0 backwards.
    double currentSpeed() const { return state.speed; }
    /// The implement's middle and the machine's heading.
    const Pose &pose() const { return state.pose; }
    QPointF position() const { return state.pose.place; }
    /// Degrees clockwise from north.
    double heading() const { return state.pose.degrees(); }

Q_SIGNALS:
    void moved();

private:
    void take(std::unique_ptr<Motion> way);
    void publish();

    DbGroupGpsSolution *solution;
    const SimulationClock *clock;
    MachineSize machineSize;
    QRectF area;
    std::unique_ptr<Motion> motion;
    MotionState state;
    double wanted = 0.0;
    bool signalIsThere = true;
    qint64 lastAdvance;
};
