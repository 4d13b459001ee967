#include "drivingbench.h"

#include "fielddrive.h"
#include "productfile.h"
#include "ratecontroller.h"
#include "vehicle.h"

#include "bePluginRxMap/dbgrouprxmap.h"

#include <stdexcept>

DrivingBench::DrivingBench(const QString &path)
    : machine(&broker, &backend, ProductFile::standard(), UnitSystem::Metric)
{
    LoadRequest request;
    request.path = path;
    request.products = machine.loadedProducts();
    LoadReport report = backend.loadAndWait(request);
    for (int product = 0; report.isOk() && product < products; ++product)
        request.columns.append(report.columns.at(product % report.columns.size()));
    if (report.isOk())
        report = backend.loadAndWait(request);
    if (!report.isOk())
        throw std::runtime_error(report.error.toStdString());
    polygonCount = report.polygons;
    planeOrigin = report.origin;
    group = qobject_cast<DbGroupRxMap *>(broker.getGroup(report.group, false));
    QList<OrvikTypes::RX_SETTINGS> settings = group->getSettings();
    const int lookAheads[products] = {700, 1000, 1400};
    for (int product = 0; product < products; ++product)
        settings[product].onLookAheadMs = lookAheads[product];
    group->setSettings(settings);
    const Result<DrivePath> planned = FieldDrive::plan(simulation, FieldDrive::usualOptions(simulation));
    if (!planned.isOk())
        throw std::runtime_error(planned.error.toStdString());
    way = planned.value;
}

void DrivingBench::begin(double speed)
{
    simulation.vehicle()->follow(way);
    simulation.vehicle()->drive(speed);
}

std::vector<QPointF> DrivingBench::askedPlaces(int steps)
{
    std::vector<QPointF> places;
    for (int step = 0; step < steps; ++step) {
        simulation.step();
        for (int number = 1; number <= products; ++number)
            places.push_back(simulation.controller()->askedPoint(number));
    }
    return places;
}
