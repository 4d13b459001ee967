#include "simulation.h"

#include "vehicle.h"

#include <QTimer>

#include <algorithm>

Simulation::Simulation(DbGroupGpsSolution *solution, const SimulationClock *wall, QObject *parent)
    : QObject(parent)
    , wall(wall)
    , lastWall(wall != nullptr ? wall->now() : 0)
    , machine(new Vehicle(solution, &clock))
{
    if (wall == nullptr)
        return;
    auto *timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this, &Simulation::catchUp);
    timer->start(stepMs / 2);
}

Simulation::~Simulation() = default;

bool Simulation::setTimeFactor(double newFactor)
{
    if (!(newFactor >= 0.0) || newFactor > mostTimeFactor)
        return false;
    catchUp();
    factor = newFactor;
    return true;
}

void Simulation::step()
{
    clock.time += stepMs;
    machine->advance();
    Q_EMIT stepped();
}

void Simulation::run(double seconds)
{
    for (due += 1000.0 * seconds; due >= stepMs; due -= stepMs)
        step();
}

void Simulation::catchUp()
{
    if (wall == nullptr)
        return;
    // What a terminal that was busy for long has missed is not made up for.
    constexpr qint64 mostMissed = 2000;
    const qint64 now = wall->now();
    const qint64 passed = std::min(now - lastWall, mostMissed);
    lastWall = now;
    run(factor * double(passed) / 1000.0);
}
