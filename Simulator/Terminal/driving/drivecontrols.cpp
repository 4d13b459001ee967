#include "drivecontrols.h"

#include "Backend/prescriptionbackend.h"
#include "fielddrive.h"
#include "machine.h"
#include "showndistance.h"
#include "shownnumber.h"
#include "simulation.h"
#include "vehicle.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr double kilometreAnHour = 1.0 / 3.6; // m/s
constexpr double mileAnHour = 0.44704;
constexpr double mostKilometres = 40.0;
constexpr double mostMiles = 25.0;
constexpr std::array<double, 6> paces{1.0, 2.0, 5.0, 10.0, 20.0, 50.0};

} // namespace

DriveControls::DriveControls(Simulation *givenSimulation, QObject *parent)
    : QObject(parent)
    , simulation(givenSimulation)
    , nextSpeed(FieldDrive::usualSpeed)
{
    connect(vehicle(), &Vehicle::moved, this, &DriveControls::changed);
    connect(simulation, &Simulation::timeFactorChanged, this, [this](double factor) {
        if (factor > 0.0) {
            lastPace = factor;
            isPausedHere = false;
        }
        Q_EMIT changed();
    });
    connect(simulation->machine(), &Machine::mapsChanged, this, [this] {
        problem.clear();
        Q_EMIT changed();
    });
}

Vehicle *DriveControls::vehicle() const
{
    return simulation->vehicle();
}

bool DriveControls::isMetric() const
{
    return simulation->machine()->unitSystem() == UnitSystem::Metric;
}

void DriveControls::start()
{
    problem.clear();
    // Asked before a new way replaces a track, whose speed would else pass for that of swaths.
    const double wanted = speed();
    const bool needsWay = vehicle()->mode() == Motion::Mode::Shuttle || vehicle()->isOver();
    if (!needsWay || planSwaths())
        vehicle()->drive(wanted);
    endPause();
    Q_EMIT changed();
}

void DriveControls::stop()
{
    nextSpeed = speed();
    vehicle()->stop();
    endPause();
}

void DriveControls::endPause()
{
    if (isPausedHere)
        setPaused(false);
}

bool DriveControls::isUnderWay() const
{
    return vehicle()->wantedSpeed() != 0.0 && !vehicle()->isOver();
}

double DriveControls::speed() const
{
    // A speed reached by pedals does not count for the next start, and a track has speeds of its own.
    const bool isGiven = !isByHand() && !isReplay() && vehicle()->wantedSpeed() > 0.0;
    return isGiven ? vehicle()->wantedSpeed() : nextSpeed;
}

QString DriveControls::speedText() const
{
    return isMetric() ? tr("%1 km/h").arg(ShownNumber::text(speed() / kilometreAnHour, 1))
                      : tr("%1 mph").arg(ShownNumber::text(speed() / mileAnHour, 1));
}

void DriveControls::faster()
{
    changeSpeed(1);
}

void DriveControls::slower()
{
    changeSpeed(-1);
}

void DriveControls::changeSpeed(int steps)
{
    constexpr double rounding = 1e-6;
    const double unit = isMetric() ? kilometreAnHour : mileAnHour;
    const double now = speed() / unit;
    const double next = steps > 0 ? std::floor(now + rounding) + 1.0 : std::ceil(now - rounding) - 1.0;
    nextSpeed = unit * std::clamp(next, 1.0, isMetric() ? mostKilometres : mostMiles);
    if (vehicle()->wantedSpeed() > 0.0 && !isReplay())
        vehicle()->drive(nextSpeed);
    Q_EMIT changed();
}

double DriveControls::pace() const
{
    return isPaused() ? lastPace : simulation->timeFactor();
}

void DriveControls::paceUp()
{
    changePace(1);
}

void DriveControls::paceDown()
{
    changePace(-1);
}

void DriveControls::changePace(int steps)
{
    const auto above = std::upper_bound(paces.begin(), paces.end(), pace());
    const auto from = std::lower_bound(paces.begin(), paces.end(), pace());
    if (steps > 0)
        lastPace = above != paces.end() ? *above : paces.back();
    else
        lastPace = from != paces.begin() ? *(from - 1) : paces.front();
    if (!isPaused())
        simulation->setTimeFactor(lastPace);
    Q_EMIT changed();
}

bool DriveControls::isPaused() const
{
    return simulation->timeFactor() == 0.0;
}

void DriveControls::setPaused(bool pauses)
{
    simulation->setTimeFactor(pauses ? 0.0 : pace());
    isPausedHere = pauses;
}

bool DriveControls::planSwaths()
{
    const SwathOptions options = FieldDrive::usualOptions(*simulation);
    const Result<DrivePath> path = FieldDrive::plan(*simulation, options);
    if (path.isOk())
        vehicle()->follow(path.value);
    else
        problem = whyNot(options);
    return path.isOk();
}

/// In the operator's language and units; the reason with which planning refuses the way is meant for scripts.
QString DriveControls::whyNot(const SwathOptions &options) const
{
    const FieldArea field = FieldDrive::field(*simulation);
    if (field.rings().empty())
        return tr("No prescription is loaded that could be driven.");
    const double width = SwathPlan::widthAcross(field, options);
    if (width >= options.width)
        return tr("The field cannot be driven in swaths.");
    const UnitSystem units = simulation->machine()->unitSystem();
    return tr("The field is %1 wide, narrower than the machine (%2).")
        .arg(ShownDistance::width(width, units), ShownDistance::width(options.width, units));
}

void DriveControls::takeSwaths()
{
    problem.clear();
    const double present = std::max(0.0, vehicle()->wantedSpeed());
    const double wanted = isReplay() && present > 0.0 ? speed() : present;
    if (planSwaths())
        vehicle()->drive(wanted);
    Q_EMIT changed();
}

void DriveControls::takeHand()
{
    problem.clear();
    const double before = speed();
    const bool wasByHand = isByHand();
    vehicle()->steer(0.0);
    // From now on the controls change the speed that the machine has.
    if (!wasByHand)
        nextSpeed = vehicle()->wantedSpeed() >= kilometreAnHour ? vehicle()->wantedSpeed() : before;
    Q_EMIT changed();
}

bool DriveControls::isByHand() const
{
    return vehicle()->mode() == Motion::Mode::Hand;
}

bool DriveControls::isReplay() const
{
    return vehicle()->mode() == Motion::Mode::Replay;
}

void DriveControls::replay(const QString &path)
{
    const double set = speed();
    simulation->replayChecked(path);
    nextSpeed = set;
    problem.clear();
    endPause();
    Q_EMIT changed();
}

void DriveControls::pressThrottle(bool isPressed)
{
    if (isByHand())
        vehicle()->drive(isPressed ? nextSpeed : vehicle()->currentSpeed());
}

void DriveControls::pressBrake(bool isPressed)
{
    if (!isByHand())
        return;
    const double backwards = -std::min(nextSpeed, Vehicle::maxReverseSpeed);
    const double pressed = vehicle()->currentSpeed() > 0.0 ? 0.0 : backwards;
    vehicle()->drive(isPressed ? pressed : vehicle()->currentSpeed());
}

void DriveControls::turnWheel(double turn)
{
    // Rounding must not make it tighter than the machine can turn.
    constexpr double justWithin = 1.0 - 1e-9;
    if (isByHand())
        vehicle()->steer(justWithin * std::clamp(turn, -1.0, 1.0) / vehicle()->size().minRadius);
}

void DriveControls::setSignal(bool isThere)
{
    vehicle()->setSignal(isThere);
}

bool DriveControls::hasSignal() const
{
    return vehicle()->hasSignal();
}

QString DriveControls::message() const
{
    if (!problem.isEmpty())
        return problem;
    return vehicle()->isOver() ? tr("The end of the way is reached.") : QString();
}
