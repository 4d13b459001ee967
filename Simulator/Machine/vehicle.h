#pragma once

#include <QObject>
#include <QPointF>
#include <QRectF>

class DbGroupGpsSolution;
class SimulationClock;

/// The vehicle that carries the terminal. It drives north and south over its area, turning about at the border, and
/// keeps "mainGpsSolution" current.
class Vehicle : public QObject {
    Q_OBJECT

public:
    /// Metres per second; a road speed that no implement exceeds.
    static constexpr double maxSpeed = 40.0;

    /// Neither `solution` nor `clock` is owned; both outlive the vehicle.
    Vehicle(DbGroupGpsSolution *solution, const SimulationClock *clock, QObject *parent = nullptr);

    /// Puts a standing vehicle at the middle of the area's south border (metres of the local plane).
    void setArea(const QRectF &area);
    /// Metres per second from 0 (stops) to maxSpeed; false, and nothing changes, for any other number.
    bool drive(double metresPerSecond);
    void stop();
    /// Moves the vehicle by the time that has passed on the clock.
    void advance();

    bool isStopped() const { return speed <= 0.0; }
    /// Metres per second.
    double currentSpeed() const { return speed; }
    QPointF position() const { return place; }
    /// Degrees clockwise from north.
    double heading() const { return isNorthbound ? 0.0 : 180.0; }

Q_SIGNALS:
    void moved();

private:
    void publish();

    DbGroupGpsSolution *solution;
    const SimulationClock *clock;
    QRectF area;
    QPointF place;
    double speed = 0.0;
    bool isNorthbound = true;
    qint64 lastAdvance;
};
