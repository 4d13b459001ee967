#include "simulation.h"

#include "machine.h"
#include "ratecontroller.h"
#include "vehicle.h"

#include <QTimer>

#include <algorithm>
#include <cmath>

namespace {

/// How often the wall's clock is looked at, milliseconds; seldom, so that a terminal at rest leaves the processor
/// alone.
constexpr int movingInterval = Simulation::stepMs / 2;
constexpr int restingInterval = 1000;
/// By then metering has come to rest, too.
constexpr int stepsUntilRest = 100;

} // namespace

Simulation::Simulation(Machine *machine, const SimulationClock *givenWall, QObject *parent)
    : QObject(parent)
    , machineModel(machine)
    , wall(givenWall)
    , lastWall(givenWall != nullptr ? givenWall->now() : 0)
    , vehicleModel(new Vehicle(machine->gpsSolution(), &clock))
    , rateController(new RateController(machine))
{
    takeProducts();
    connect(machine, &Machine::productsChanged, this, &Simulation::takeProducts);
    connect(machine, &Machine::mapsChanged, this, &Simulation::takeLimits);
    // At once, so that nobody sees commands from a map that is gone.
    connect(machine, &Machine::mapsChanged, this, &Simulation::updateCommands);
    updateCommands();
    if (wall == nullptr)
        return;
    timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this, &Simulation::catchUp);
    connect(vehicleModel.data(), &Vehicle::moved, this, &Simulation::wake);
    timer->start(movingInterval);
}

Simulation::~Simulation() = default;

void Simulation::takeProducts()
{
    actuators.clear();
    for (const Product &product : machineModel->products())
        actuators.emplace_back(product.actuator);
    meanRates.assign(actuators.size(), 0.0);
}

void Simulation::takeLimits()
{
    for (size_t i = 0; i < actuators.size(); ++i) {
        const ActuatorSettings &settings = machineModel->products().at(int(i)).actuator;
        actuators[i].setLimits(settings.minRate, settings.maxRate);
    }
}

bool Simulation::setTimeFactor(double newFactor)
{
    if (!(newFactor >= 0.0) || newFactor > maxTimeFactor)
        return false;
    wake();
    // Time since the clock was last looked at is not counted, so that a simulation that is paused right away begins at
    // zero.
    if (wall != nullptr)
        lastWall = wall->now();
    factor = newFactor;
    Q_EMIT timeFactorChanged(factor);
    return true;
}

Result<TrackReader::Summary> Simulation::replay(const QString &path)
{
    const std::optional<QPointF> origin = machineModel->planeOrigin();
    const auto plane = origin ? std::make_shared<FieldPlane>(*origin) : nullptr;
    auto checked = TrackReader::check(path, plane);
    if (checked.isOk())
        replayChecked(path);
    return checked;
}

void Simulation::replayChecked(const QString &path)
{
    const std::optional<QPointF> origin = machineModel->planeOrigin();
    vehicleModel->replay(std::make_unique<TrackReader>(path, origin ? std::make_shared<FieldPlane>(*origin) : nullptr));
}

void Simulation::step()
{
    // A command holds from one step to the next.
    for (size_t i = 0; i < actuators.size(); ++i)
        meanRates[i] = actuators[i].step(rateController->command(int(i) + 1), stepMs / 1000.0);
    clock.time += stepMs;
    lastStart = vehicleModel->pose();
    vehicleModel->advance();
    const QPointF moved = vehicleModel->position() - lastStart.place;
    if (vehicleModel->isWorking())
        worked += std::hypot(moved.x(), moved.y()) * vehicleModel->size().width;
    updateCommands();
    if (timer != nullptr && ++standingSteps == stepsUntilRest)
        timer->setInterval(restingInterval);
    Q_EMIT stepped();
}

void Simulation::wake()
{
    standingSteps = 0;
    if (timer == nullptr || timer->interval() == movingInterval)
        return;
    timer->setInterval(movingInterval);
    // The machine has stood until now.
    lastWall = wall->now();
    due = 0.0;
}

void Simulation::updateCommands()
{
    rateController->update(
        {vehicleModel->pose(), vehicleModel->currentSpeed(), vehicleModel->hasPosition(), seconds()});
}

Simulation::Rates Simulation::rates(int number) const
{
    const auto index = size_t(number - 1);
    return {rateController->command(number), actuators.at(index).applied(), meanRates.at(index)};
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
    // A terminal that was busy for long does not make up for all that it missed.
    constexpr qint64 maxMissed = 2000;
    constexpr qint64 maxBusy = 50;
    const qint64 now = wall->now();
    const qint64 passed = std::min(now - lastWall, maxMissed);
    lastWall = now;
    for (due += factor * double(passed); due >= stepMs; due -= stepMs) {
        if (wall->now() - now > maxBusy) {
            due = 0.0;
            return;
        }
        step();
    }
}
