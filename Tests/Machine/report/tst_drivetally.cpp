#include "drivetally.h"
#include "fielddrive.h"
#include "files.h"
#include "machinebench.h"
#include "testbase.h"
#include "vehicle.h"

#include "bePluginRxMap/dbgrouprxmap.h"

#include <QFile>

#include <cmath>
#include <map>
#include <memory>
#include <ogr_api.h>
#include <ogr_geometry.h>
#include <random>

/// The totals of a drive.
class TestDriveTally : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void areasAreThoseOfTheStripsCutWithTheMap_data();
    void areasAreThoseOfTheStripsCutWithTheMap();
    void whereTheMachineIsPutIsNoWay();

private:
    using Geometry = std::unique_ptr<OGRGeometry>;

    /// Overlapping polygons with any number of corners and a few rates.
    static QByteArray randomMap(std::mt19937 &random);
    /// The ground that a strip of the drive covers.
    static Geometry strip(const Pose &from, double length, double width);
    /// The ground of each rate: a later polygon covers those before it.
    static std::map<double, Geometry> groundByRate(const DbGroupRxMap &map);

    QTemporaryDir folder;
};

QByteArray TestDriveTally::randomMap(std::mt19937 &random)
{
    std::uniform_real_distribution<double> part(0.0, 1.0);
    QByteArrayList features;
    for (int polygon = 0; polygon < 14; ++polygon) {
        const double x = 500000.0 + 160.0 * part(random);
        const double y = 5500000.0 + 160.0 * part(random);
        const int corners = 3 + int(6.0 * part(random));
        QByteArrayList ring;
        for (int corner = 0; corner <= corners; ++corner) {
            const double angle = 2.0 * std::acos(-1.0) * (corner % corners) / corners;
            const double radius = corner == corners ? 0.0 : 15.0 + 45.0 * part(random);
            ring.append(corner == corners ? ring.first()
                                          : "[" + QByteArray::number(x + radius * std::cos(angle), 'f', 3) + ","
                                + QByteArray::number(y + radius * std::sin(angle), 'f', 3) + "]");
        }
        features.append(R"({"type":"Feature","properties":{"A":)" + QByteArray::number(10 * (1 + polygon % 5))
                        + R"(},"geometry":{"type":"Polygon","coordinates":[[)" + ring.join(",") + "]]}}");
    }
    return R"({"type":"FeatureCollection","crs":{"type":"name","properties":)"
           R"({"name":"urn:ogc:def:crs:EPSG::32632"}},"features":[)"
        + features.join(",") + "]}";
}

TestDriveTally::Geometry TestDriveTally::strip(const Pose &from, double length, double width)
{
    const QPointF beside = 0.5 * width * from.rightward();
    const QPointF end = from.place + length * from.forward();
    OGRLinearRing ring;
    for (const QPointF &corner : {from.place - beside, from.place + beside, end + beside, end - beside})
        ring.addPoint(corner.x(), corner.y());
    ring.closeRings();
    auto polygon = std::make_unique<OGRPolygon>();
    polygon->addRing(&ring);
    return polygon;
}

std::map<double, TestDriveTally::Geometry> TestDriveTally::groundByRate(const DbGroupRxMap &map)
{
    std::map<double, Geometry> ground;
    const auto *record = static_cast<const OrvikTypes::RX_POLYGON *>(map.getPolygonBuffer());
    for (; record != nullptr; record = record->next) {
        OGRLinearRing ring;
        for (quint32 i = 0; i < record->vertexCount; ++i)
            ring.addPoint(record->vertices[i].x, record->vertices[i].y);
        ring.closeRings();
        OGRPolygon polygon;
        polygon.addRing(&ring);
        for (auto &[rate, area] : ground)
            area.reset(area->Difference(&polygon));
        Geometry &own = ground[double(record->rates[0])];
        own.reset(own ? own->Union(&polygon) : polygon.clone());
    }
    return ground;
}

void TestDriveTally::areasAreThoseOfTheStripsCutWithTheMap_data()
{
    QTest::addColumn<int>("seed");
    for (int seed = 1; seed <= 12; ++seed)
        QTest::addRow("map and drive %d", seed) << seed;
}

void TestDriveTally::areasAreThoseOfTheStripsCutWithTheMap()
{
    QFETCH(int, seed);
    std::mt19937 random(static_cast<unsigned>(seed));
    const QString file = writeFile(folder.filePath(QStringLiteral("map.geojson")), randomMap(random));
    MachineBench bench;
    const LoadReport report = bench.load(file, {QStringLiteral("A")});
    QVERIFY2(report.isOk(), qPrintable(report.error));
    const auto *map = qobject_cast<DbGroupRxMap *>(bench.broker.getGroup(report.group, false));
    MachineSize size = bench.simulation.vehicle()->size();
    size.width = 4.0 + double(random() % 14);
    bench.simulation.vehicle()->setSize(size);
    SwathOptions options = FieldDrive::usualOptions(bench.simulation);
    options.angle = double(random() % 360);
    const Result<DrivePath> path = FieldDrive::plan(bench.simulation, options);
    QVERIFY2(path.isOk(), qPrintable(path.error));

    FieldDrive drive(&bench.simulation, path.value);
    DriveTally tally(&bench.simulation);
    drive.run();
    tally.end();

    const std::map<double, Geometry> ground = groundByRate(*map);
    std::map<double, double> expected;
    double stripArea = 0.0;
    // A strip may begin and end a step too early or too late.
    const double step = FieldDrive::usualSpeed * Simulation::stepMs / 1000.0 * size.width;
    int strips = 0;
    double way = 0.0;
    for (const PathPiece &piece : path.value.pieces()) {
        if (piece.isWorked) {
            const Geometry passed = strip(path.value.at(way).pose, piece.length, size.width);
            stripArea += piece.length * size.width;
            ++strips;
            for (const auto &[rate, area] : ground)
                expected[rate] += OGR_G_Area(OGRGeometry::ToHandle(Geometry(area->Intersection(passed.get())).get()));
        }
        way += piece.length;
    }
    const DriveTally::ProductTally &product = tally.products().front();
    double counted = product.unprescribed.area;
    for (const auto &[rate, area] : expected) {
        const auto found = product.classes.find(rate);
        const double worked = found != product.classes.end() ? found->second.area : 0.0;
        // Steps that cross a border too early and too late even out.
        QVERIFY2(std::fabs(worked - area) < step + 0.003 * area,
                 qPrintable(QStringLiteral("%1: %2 m2 instead of %3").arg(rate).arg(worked).arg(area)));
        counted += worked;
    }
    QCOMPARE(product.classes.size(), expected.size());
    QVERIFY(std::fabs(counted - tally.workedArea()) < 1e-6 * stripArea);
    QVERIFY(std::fabs(tally.workedArea() - stripArea) < strips * step);
}

void TestDriveTally::whereTheMachineIsPutIsNoWay()
{
    MachineBench bench;
    QVERIFY(bench.loadZones({{-100, 0, 50}, {0, 100, 80}}).isOk());
    bench.place({-90, 0}, 90.0, 3.0);
    bench.simulation.step();
    const DriveTally tally(&bench.simulation);
    bench.simulation.run(2.0);
    bench.place({60, 0}, 90.0, 3.0);
    bench.simulation.run(2.0);
    QVERIFY2(std::fabs(tally.distance() - 12.0) < 1e-3, qPrintable(QString::number(tally.distance())));
    QVERIFY(std::fabs(tally.workedArea() - 12.0 * 12.0) < 0.02);
}

RXMAP_TEST(TestDriveTally, Core)
#include "tst_drivetally.moc"
