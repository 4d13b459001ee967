#include "machinebench.h"

#include "drivepath.h"
#include "vehicle.h"

#include "bePluginRxMap/dbgrouprxmap.h"

#include <QFile>

MachineBench::MachineBench(const Products &products, UnitSystem units)
    : machine(&broker, &backend, products, units)
{
    MachineSize size;
    size.acceleration = 1e6;
    simulation.vehicle()->setSize(size);
}

LoadReport MachineBench::load(const QString &path, const QStringList &columns)
{
    LoadRequest request;
    request.path = path;
    request.columns = columns;
    request.products = machine.loadedProducts();
    return backend.loadAndWait(request);
}

LoadReport MachineBench::loadZones(const QList<Zone> &zones, const QList<int> &products, const QString &column)
{
    QByteArrayList features;
    for (const Zone &zone : zones) {
        const auto corner = [](double x, double y) {
            return "[" + QByteArray::number(500000.0 + x, 'f', 3) + "," + QByteArray::number(5500000.0 + y, 'f', 3)
                + "]";
        };
        features.append(R"({"type":"Feature","properties":{")" + column.toUtf8() + R"(":)"
                        + QByteArray::number(zone.rate) + R"(},"geometry":{"type":"Polygon","coordinates":[[)"
                        + corner(zone.from, -200) + "," + corner(zone.to, -200) + "," + corner(zone.to, 200) + ","
                        + corner(zone.from, 200) + "," + corner(zone.from, -200) + "]]}}");
    }
    QFile file(folder.filePath(QStringLiteral("zones.geojson")));
    if (!file.open(QIODevice::WriteOnly))
        return {};
    file.write(R"({"type":"FeatureCollection","crs":{"type":"name","properties":)"
               R"({"name":"urn:ogc:def:crs:EPSG::32632"}},"features":[)"
               + features.join(",") + "]}");
    file.close();
    QStringList columns;
    for (int number = 1; number <= machine.products().size(); ++number)
        columns.append(products.contains(number) ? column : QString());
    return load(file.fileName(), columns);
}

void MachineBench::set(int product, int lookAheadMs, bool zeroRateShutoff, bool reInit)
{
    const QString first = broker.findGroup(QStringLiteral("rxMap.*"), true, false).value(0);
    auto *group = qobject_cast<DbGroupRxMap *>(broker.getGroup(first, false));
    if (group == nullptr)
        return;
    QList<OrvikTypes::RX_SETTINGS> settings = group->getSettings();
    settings[product - 1].onLookAheadMs = lookAheadMs;
    settings[product - 1].zeroRateShutoff = zeroRateShutoff;
    group->setSettings(settings);
    if (reInit)
        broker.setProperty("quillSpan", "reInit", true);
}

void MachineBench::place(const QPointF &place, double degrees, double speed)
{
    Vehicle *vehicle = simulation.vehicle();
    vehicle->follow(DrivePath(Pose{place, radiansOf(degrees)}));
    vehicle->steer(0.0);
    vehicle->drive(speed);
}
