#include "vehicle.h"

#include "dbgroupgpssolution.h"
#include "simulationclock.h"

#include <QTimer>

#include <algorithm>

namespace {

constexpr int frameTime = 50; // Milliseconds.

}

Vehicle::Vehicle(DbGroupGpsSolution *solution, const SimulationClock *clock, QObject *parent)
    : QObject(parent)
    , solution(solution)
    , clock(clock)
    , lastAdvance(clock->now())
{
    auto *timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this, &Vehicle::advance);
    timer->start(frameTime);
    publish();
}

void Vehicle::setArea(const QRectF &newArea)
{
    area = newArea;
    if (!isStopped())
        return;
    place = QPointF(area.center().x(), area.top());
    isNorthbound = true;
    publish();
}

bool Vehicle::drive(double metresPerSecond)
{
    if (!(metresPerSecond >= 0.0) || metresPerSecond > maxSpeed)
        return false;
    advance();
    speed = metresPerSecond;
    publish();
    return true;
}

void Vehicle::stop()
{
    drive(0.0);
}

void Vehicle::advance()
{
    const qint64 now = clock->now();
    const double seconds = double(now - lastAdvance) / 1000.0;
    lastAdvance = now;
    if (isStopped() || seconds <= 0.0)
        return;
    place.ry() += (isNorthbound ? 1.0 : -1.0) * speed * seconds;
    if (!area.isEmpty()) {
        if (place.y() > area.bottom())
            isNorthbound = false;
        else if (place.y() < area.top())
            isNorthbound = true;
        place.setY(std::clamp(place.y(), area.top(), area.bottom()));
    }
    publish();
}

void Vehicle::publish()
{
    solution->internalSetPosition(OrvikTypes::XYZ(place.x(), place.y(), 0.0));
    solution->internalSetHeading(heading());
    solution->internalSetSpeed(speed);
    solution->internalSetVehicleIsStopped(isStopped());
    Q_EMIT moved();
}
