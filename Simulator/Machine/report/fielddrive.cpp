#include "fielddrive.h"

#include "Backend/prescriptionbackend.h"
#include "machine.h"
#include "simulation.h"
#include "vehicle.h"

#include "Framework/databroker.h"
#include "bePluginRxMap/dbgrouprxmap.h"

#include <algorithm>
#include <cmath>
#include <set>

namespace {

DbGroupRxMap *mapGroup(const Machine &machine, const QString &name)
{
    return qobject_cast<DbGroupRxMap *>(machine.dataBroker()->getGroup(name, false));
}

/// The group that the dialog writes the settings to.
DbGroupRxMap *settingsGroup(const Machine &machine)
{
    return mapGroup(machine, machine.dataBroker()->findGroup(QStringLiteral("rxMap.*"), true, false).value(0));
}

void setLookAhead(DbGroupRxMap *group, int milliseconds)
{
    QList<OrvikTypes::RX_SETTINGS> settings = group->getSettings();
    for (OrvikTypes::RX_SETTINGS &product : settings)
        product.onLookAheadMs = milliseconds;
    group->setSettings(settings);
}

/// The look-ahead times to try, when the changes are that late without any (seconds, by product).
std::set<int> candidates(const std::vector<FieldDrive::Curve> &curves)
{
    constexpr int coarseStep = 500;
    constexpr int fineSteps = 2;
    constexpr int step = FieldDrive::lookAheadStep;
    std::set<int> times;
    int last = 2 * coarseStep;
    for (const FieldDrive::Curve &curve : curves) {
        if (curve.empty())
            continue;
        const int middle = step * int(std::lround(1000.0 * curve.at(0) / step));
        for (int i = -fineSteps; i <= fineSteps; ++i)
            times.insert(std::max(0, middle + i * step));
        last = std::max(last, middle + coarseStep);
    }
    for (int time = coarseStep; time <= last; time += coarseStep)
        times.insert(time);
    times.erase(0);
    return times;
}

} // namespace

SwathOptions FieldDrive::usualOptions(const Simulation &simulation)
{
    const MachineSize &size = simulation.vehicle()->size();
    SwathOptions options;
    options.width = size.width;
    options.minRadius = size.minRadius;
    return options;
}

FieldArea FieldDrive::field(const Simulation &simulation)
{
    const Machine &machine = *simulation.machine();
    const std::optional<QPointF> origin = machine.planeOrigin();
    if (!origin)
        return FieldArea(std::vector<QPolygonF>());
    std::vector<QPolygonF> rings;
    const QList<LoadReport> maps = machine.backend()->maps();
    for (const LoadReport &map : maps) {
        const DbGroupRxMap *group = mapGroup(machine, map.group);
        if (group == nullptr || map.origin != *origin)
            continue;
        const FieldArea area = FieldArea::ofMap(*group);
        rings.insert(rings.end(), area.rings().begin(), area.rings().end());
    }
    return FieldArea(std::move(rings));
}

Result<DrivePath> FieldDrive::plan(const Simulation &simulation, const SwathOptions &options)
{
    if (simulation.machine()->backend()->maps().isEmpty())
        return Result<DrivePath>::failure(QStringLiteral("there is no field to drive: no prescription is loaded"));
    return SwathPlan::make(field(simulation), options);
}

FieldDrive::FieldDrive(Simulation *givenSimulation, DrivePath givenPath)
    : simulation(givenSimulation)
    , path(std::move(givenPath))
{
    simulation->vehicle()->follow(this->path);
}

QRectF FieldDrive::workedBounds() const
{
    // Metres; no arc leaves the chord by more than half of it.
    constexpr double step = 2.0;
    const double reach = 0.5 * simulation->vehicle()->size().width + step;
    QRectF bounds;
    for (double way = 0.0; way < path.length() + step; way += step) {
        const DrivePath::Point point = path.at(way);
        const QPointF place = point.pose.place;
        if (point.isWorked)
            bounds |= QRectF(place.x() - reach, place.y() - reach, 2.0 * reach, 2.0 * reach);
    }
    return bounds;
}

void FieldDrive::run(const Progress &progress)
{
    constexpr int stepsToTell = 1000;
    Vehicle *vehicle = simulation->vehicle();
    vehicle->follow(path);
    vehicle->drive(usualSpeed);
    for (int step = 1; !vehicle->isOver(); ++step) {
        simulation->step();
        const double done = std::min(1.0, step * Simulation::stepMs / 1000.0 * usualSpeed / path.length());
        if (progress && step % stepsToTell == 0 && !progress(done))
            return;
    }
}

std::vector<FieldDrive::Curve> FieldDrive::tune(const Progress &progress)
{
    // Long enough for every rate to have come to rest.
    constexpr double rest = 300.0;
    std::vector<Curve> curves(size_t(simulation->machine()->products().size()));
    DbGroupRxMap *group = settingsGroup(*simulation->machine());
    if (group == nullptr)
        return curves;
    const QList<OrvikTypes::RX_SETTINGS> before = group->getSettings();
    const auto driveWith = [&](int lookAhead) {
        setLookAhead(group, lookAhead);
        simulation->vehicle()->follow(path);
        simulation->vehicle()->stop();
        simulation->run(rest);
        DriveTally tally(simulation, DriveTally::Ground::LeftOut);
        run();
        for (size_t i = 0; i < curves.size(); ++i) {
            const BorderWatch &borders = tally.products()[i].borders;
            if (!borders.changes().empty())
                curves[i][lookAhead] = borders.median().seconds;
        }
    };
    driveWith(0);
    const std::set<int> times = candidates(curves);
    int done = 1;
    for (const int lookAhead : times) {
        if (progress && !progress(double(done++) / double(times.size() + 1)))
            break;
        driveWith(lookAhead);
    }
    group->setSettings(before);
    return curves;
}

int FieldDrive::best(const Curve &curve)
{
    const auto nearer = [](const auto &a, const auto &b) { return std::fabs(a.second) < std::fabs(b.second); };
    const auto found = std::min_element(curve.begin(), curve.end(), nearer);
    return found != curve.end() ? found->first : -1;
}
