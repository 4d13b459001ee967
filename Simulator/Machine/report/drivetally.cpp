#include "drivetally.h"

#include "machine.h"
#include "ratecontroller.h"
#include "simulation.h"
#include "vehicle.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr double squareMetresOfHectare = 10000.0;
/// Metres between the places across the implement at which its ground is looked at.
constexpr double sampleWidth = 1.0;

} // namespace

DriveTally::RateClass &DriveTally::RateClass::operator+=(const RateClass &other)
{
    area += other.area;
    planned += other.planned;
    applied += other.applied;
    return *this;
}

void DriveTally::ProductTally::add(double prescribed, double applied, double squareMetres)
{
    const double hectares = squareMetres / squareMetresOfHectare;
    const bool isPrescribed = !std::isnan(prescribed);
    RateClass &ofRate = isPrescribed ? classes[prescribed] : unprescribed;
    ofRate.area += squareMetres;
    ofRate.applied += applied * hectares;
    if (!isPrescribed)
        return;
    ofRate.planned += prescribed * hectares;
    errors.add(applied - prescribed, squareMetres);
}

DriveTally::DriveTally(Simulation *givenSimulation, Ground givenGround, QObject *parent)
    : QObject(parent)
    , simulation(givenSimulation)
    , ground(givenGround)
    , tallies(size_t(givenSimulation->machine()->products().size()))
    , firstTime(givenSimulation->seconds())
    , lastTime(firstTime)
{
    connect(simulation, &Simulation::stepped, this, &DriveTally::count);
}

std::vector<double> DriveTally::targetsAt(const QPointF &place) const
{
    std::vector<double> result;
    for (const RateCommand &command : simulation->controller()->commandsAt(place))
        result.push_back(simulation->target(int(result.size()) + 1, command));
    return result;
}

void DriveTally::end()
{
    disconnect(simulation, nullptr, this, nullptr);
    for (ProductTally &tally : tallies)
        tally.borders.end();
}

void DriveTally::count()
{
    const Vehicle &vehicle = *simulation->vehicle();
    const QPointF place = vehicle.position();
    const QPointF before = simulation->stepStart().place;
    const QPointF moved = place - before;
    const double length = std::hypot(moved.x(), moved.y());
    lastTime = simulation->seconds();
    if (vehicle.isWorking()) {
        // A swath begins at the field's edge, which is not a change of rate.
        if (wasWorking)
            countBorders(before, place, length);
        else
            beginSwath(place, way + length);
        if (ground == Ground::Counted)
            countGround(length);
    } else if (wasWorking) {
        for (ProductTally &tally : tallies)
            tally.borders.end();
    }
    wasWorking = vehicle.isWorking();
    way += length;
}

void DriveTally::beginSwath(const QPointF &place, double wayThere)
{
    targets = targetsAt(place);
    for (size_t i = 0; i < tallies.size(); ++i)
        tallies[i].borders.begin(lastTime, wayThere, targets[i]);
}

void DriveTally::countGround(double length)
{
    const Vehicle &vehicle = *simulation->vehicle();
    const int samples = std::max(1, int(std::ceil(vehicle.size().width / sampleWidth)));
    const double share = length * vehicle.size().width / samples;
    const QPointF middle = 0.5 * (simulation->stepStart().place + vehicle.position());
    area += length * vehicle.size().width;
    for (int sample = 0; sample < samples; ++sample) {
        const double beside = vehicle.size().width * ((sample + 0.5) / samples - 0.5);
        const auto commands = simulation->controller()->commandsAt(middle + beside * vehicle.pose().rightward());
        for (size_t i = 0; i < tallies.size(); ++i) {
            tallies[i].add(commands[i].prescribed, simulation->rates(int(i) + 1).meanApplied, share);
        }
    }
}

void DriveTally::countBorders(const QPointF &from, const QPointF &to, double length)
{
    const std::vector<double> former = std::exchange(targets, targetsAt(to));
    const double stepTime = Simulation::stepMs / 1000.0;
    for (size_t i = 0; i < tallies.size(); ++i) {
        BorderWatch &borders = tallies[i].borders;
        if (targets[i] != former[i]) {
            // Halving finds the border to a hundredth of a millimetre of a step.
            double before = 0.0;
            double after = 1.0;
            for (int halving = 0; halving < 20; ++halving) {
                const double middle = 0.5 * (before + after);
                (targetsAt(from + middle * (to - from))[i] == former[i] ? before : after) = middle;
            }
            borders.border(lastTime - (1.0 - after) * stepTime, way + after * length, from + after * (to - from),
                           targets[i]);
        }
        borders.step(lastTime, way + length, simulation->rates(int(i) + 1).meanApplied);
    }
}
