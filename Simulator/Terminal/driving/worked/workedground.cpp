#include "workedground.h"

#include "Backend/prescriptionbackend.h"
#include "machine.h"
#include "simulation.h"
#include "vehicle.h"

#include <algorithm>
#include <cmath>

namespace {

WorkedGround::Strip::Corner corner(const QPointF &place)
{
    return {float(place.x()), float(place.y())};
}

bool isSame(const Pose &a, const Pose &b)
{
    return a.place.x() == b.place.x() && a.place.y() == b.place.y() && a.heading == b.heading;
}

} // namespace

WorkedGround::WorkedGround(Simulation *givenSimulation, QObject *parent)
    : QObject(parent)
    , simulation(givenSimulation)
{
    connect(simulation, &Simulation::stepped, this, &WorkedGround::take);
    connect(simulation->machine(), &Machine::mapsChanged, this, &WorkedGround::findLegends);
    connect(simulation->machine(), &Machine::productsChanged, this, &WorkedGround::forget);
    connect(simulation->machine(), &Machine::activeProductChanged, this, [this] {
        firstChanged = oldest();
        findPlane();
    });
    findLegends();
}

void WorkedGround::forget()
{
    // The rates kept belong to other products than these.
    next = 0;
    strips.clear();
    rates.clear();
    planeOf.clear();
    findLegends();
}

void WorkedGround::findLegends()
{
    const Machine &machine = *simulation->machine();
    legends.clear();
    for (int number = 1; number <= machine.products().size(); ++number) {
        Legend legend{ActiveMap::find(*machine.dataBroker(), Machine::productGroupName(number))};
        const QList<LoadReport> reports = machine.backend()->maps();
        for (const LoadReport &report : reports) {
            if (report.group == legend.map.groupName)
                legend.hasSingleRates = report.hasSingleRates.value(legend.map.mapping);
        }
        legends.push_back(legend);
    }
    firstChanged = oldest();
    isOpen = false;
    findPlane();
}

void WorkedGround::findPlane()
{
    const int before = plane;
    const int product = simulation->machine()->activeProduct();
    const QString group = product <= int(legends.size()) ? legends[size_t(product - 1)].map.groupName : QString();
    const QList<LoadReport> maps = simulation->machine()->backend()->maps();
    const auto shown =
        std::find_if(maps.begin(), maps.end(), [&group](const LoadReport &map) { return map.group == group; });
    // A product without a map is driven on the plane shown so far.
    if (shown == maps.end())
        return;
    plane = planes.indexOf(shown->origin);
    if (plane < 0) {
        plane = planes.size();
        planes.append(shown->origin);
    }
    isOpen = isOpen && plane == before;
}

QColor WorkedGround::appliedColor(int product, double rate) const
{
    const Legend &legend = legends[size_t(product - 1)];
    return legend.map.appliedColor(rate, legend.hasSingleRates);
}

std::vector<QColor> WorkedGround::colorsNow() const
{
    std::vector<QColor> now;
    for (int product = 1; product <= int(legends.size()); ++product)
        now.push_back(appliedColor(product, simulation->rates(product).meanApplied));
    return now;
}

void WorkedGround::take()
{
    const Vehicle &vehicle = *simulation->vehicle();
    const Pose &from = simulation->stepStart();
    if (!vehicle.isWorking() || from.place == vehicle.position()) {
        isOpen = false;
        return;
    }
    std::vector<QColor> now = colorsNow();
    const bool goesOn = isOpen && isSame(from, endPose) && vehicle.pose().heading == from.heading
        && vehicle.size().width == width && now == colors;
    colors = std::move(now);
    if (!goesOn)
        begin();
    extend();
    // A strip that turned within its step ends there.
    isOpen = vehicle.pose().heading == from.heading;
}

void WorkedGround::begin()
{
    const size_t products = legends.size();
    width = simulation->vehicle()->size().width;
    length = 0.0;
    const Pose &from = simulation->stepStart();
    const QPointF beside = 0.5 * width * from.rightward();
    const Strip strip{{corner(from.place - beside), corner(from.place + beside), {}, {}}};
    const auto place = size_t(slot(next++));
    if (place == strips.size()) {
        strips.push_back(strip);
        rates.resize(rates.size() + products);
        planeOf.push_back(plane);
    }
    planeOf[place] = plane;
    strips[place] = strip;
    std::fill_n(rates.begin() + std::ptrdiff_t(place * products), products, 0.0F);
}

void WorkedGround::extend()
{
    const qint64 newest = next - 1;
    const Pose &pose = simulation->vehicle()->pose();
    const QPointF beside = 0.5 * width * pose.rightward();
    Strip &strip = strips[size_t(slot(newest))];
    strip.corners[2] = corner(pose.place + beside);
    strip.corners[3] = corner(pose.place - beside);
    const QPointF way = pose.place - simulation->stepStart().place;
    const double added = std::hypot(way.x(), way.y());
    for (size_t i = 0; i < legends.size(); ++i) {
        float &mean = rates[size_t(slot(newest)) * legends.size() + i];
        const double applied = simulation->rates(int(i) + 1).meanApplied;
        mean = float((double(mean) * length + applied * added) / (length + added));
    }
    length += added;
    endPose = pose;
    firstChanged = std::min(firstChanged, newest);
}

double WorkedGround::rate(qint64 number, int product) const
{
    return double(rates[size_t(slot(number)) * legends.size() + size_t(product - 1)]);
}

QColor WorkedGround::color(qint64 number) const
{
    const int where = planeOf[size_t(slot(number))];
    if (where >= 0 && where != plane)
        return {};
    const int product = simulation->machine()->activeProduct();
    return appliedColor(product, rate(number, product));
}

qint64 WorkedGround::takeChanges()
{
    const qint64 first = std::max(firstChanged, oldest());
    firstChanged = next;
    return first;
}
