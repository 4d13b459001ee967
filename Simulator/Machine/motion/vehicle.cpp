#include "vehicle.h"

#include "dbgroupgpssolution.h"
#include "handmotion.h"
#include "pathmotion.h"
#include "shuttlemotion.h"
#include "simulationclock.h"
#include "speedramp.h"
#include "trackmotion.h"

#include <algorithm>
#include <cmath>

Vehicle::Vehicle(DbGroupGpsSolution *givenSolution, const SimulationClock *givenClock, QObject *parent)
    : QObject(parent)
    , solution(givenSolution)
    , clock(givenClock)
    , motion(std::make_unique<ShuttleMotion>(QRectF()))
    , lastAdvance(givenClock->now())
{
    publish();
}

Vehicle::~Vehicle() = default;

void Vehicle::setArea(const QRectF &newArea)
{
    area = newArea;
    if (isStopped() && mode() == Motion::Mode::Shuttle)
        shuttle();
}

void Vehicle::take(std::unique_ptr<Motion> way)
{
    motion = std::move(way);
    state.isOver = false;
    state.hasFix = true;
    state.isWorking = false;
    if (mode() != Motion::Mode::Hand)
        state.speed = 0.0;
    motion->want(state, wanted);
    publish();
}

void Vehicle::shuttle()
{
    auto way = std::make_unique<ShuttleMotion>(area);
    state.pose = way->start();
    take(std::move(way));
}

void Vehicle::follow(const DrivePath &path)
{
    state.pose = path.at(0.0).pose;
    take(std::make_unique<PathMotion>(path));
}

bool Vehicle::steer(double curvature)
{
    if (!(std::fabs(curvature) * machineSize.minRadius <= 1.0))
        return false;
    advance();
    // The speed given to a track only says whether it goes on.
    if (mode() == Motion::Mode::Replay && wanted > 0.0)
        wanted = std::min(state.speed, maxSpeed);
    if (mode() != Motion::Mode::Hand)
        take(std::make_unique<HandMotion>());
    static_cast<HandMotion *>(motion.get())->steer(curvature);
    return true;
}

void Vehicle::replay(std::unique_ptr<TrackReader> track)
{
    constexpr double onItsOwn = 1.0;
    wanted = onItsOwn;
    take(std::make_unique<TrackMotion>(std::move(track), machineSize.antennaOffset));
    motion->advance(state, 0.0, wanted, SpeedRamp(machineSize.acceleration));
    publish();
}

bool Vehicle::drive(double metresPerSecond)
{
    const double least = mode() == Motion::Mode::Hand ? -maxReverseSpeed : 0.0;
    if (!(metresPerSecond >= least) || metresPerSecond > maxSpeed)
        return false;
    advance();
    wanted = metresPerSecond;
    motion->want(state, wanted);
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
    if ((isStopped() && wanted == 0.0) || seconds <= 0.0 || state.isOver)
        return;
    motion->advance(state, seconds, wanted, SpeedRamp(machineSize.acceleration));
    publish();
}

void Vehicle::setSignal(bool isThere)
{
    signalIsThere = isThere;
    publish();
}

void Vehicle::publish()
{
    if (hasPosition()) {
        const QPointF antenna = state.pose.place + machineSize.antennaOffset * state.pose.forward();
        solution->internalSetPosition(OrvikTypes::XYZ(antenna.x(), antenna.y(), 0.0));
        if (solution->getHeading() != heading())
            solution->internalSetHeading(heading());
    }
    // Writing costs more than comparing, and these values seldom change.
    const double speed = std::fabs(state.speed);
    if (solution->getSpeed() != speed)
        solution->internalSetSpeed(speed);
    if (solution->getVehicleIsStopped() != isStopped())
        solution->internalSetVehicleIsStopped(isStopped());
    Q_EMIT moved();
}
