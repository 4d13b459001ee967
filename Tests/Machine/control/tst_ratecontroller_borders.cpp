#include "countedmap.h"
#include "machinebench.h"
#include "paths.h"
#include "ratecontroller.h"
#include "terminalhost.h"
#include "testbase.h"
#include "vehicle.h"

#include "bePluginRxMap/dbgrouprxmap.h"

#include <QDir>
#include <QDirIterator>

#include <cmath>

/// What the rate controller commands where maps change their rates, compared with what their polygons say there.
class TestRateControllerBorders : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void everyBorderIsMetWhereThePolygonsSay_data();
    void everyBorderIsMetWhereThePolygonsSay();
    void cleanupTestCase();

private:
    static QStringList realMaps();
    void open(const QString &path);
    /// The rate to be commanded: the map's default rate where the polygons give none.
    double expectedAt(const QPointF &place) const;
    /// Whether rounding may cause a difference between the commanded and the expected rate there.
    bool isOnBorder(const QPointF &place) const;
    double commanded() const { return bench->simulation.controller()->command(1).commanded; }

    // About the open map, for all of its rows.
    QString opened;
    QScopedPointer<MachineBench> bench;
    QScopedPointer<CountedMap> map;
    double defaultRate = 0.0;
    std::vector<CountedMap::Border> borders;
};

QStringList TestRateControllerBorders::realMaps()
{
    QStringList maps;
    QDirIterator files(realDataFolder(), {"*.shp", "*.gpkg", "*.geojson", "TASKDATA.XML"}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        // The parcels have no rates.
        if (!files.next().endsWith(QLatin1String("/parcels.shp")))
            maps.append(files.filePath());
    }
    maps.sort();
    return maps;
}

void TestRateControllerBorders::everyBorderIsMetWhereThePolygonsSay_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<double>("speed");
    QTest::addColumn<double>("curvature");
    QTest::addColumn<int>("lookAheadMs");
    QStringList maps{TerminalHost::sampleField()};
    if (realData(QString()).isEmpty())
        QTest::newRow("real maps") << QString() << 0.0 << 0.0 << 0;
    else
        maps += realMaps();
    for (const QString &path : qAsConst(maps)) {
        const QByteArray name = path.section(QLatin1Char('/'), -2).toUtf8();
        for (const int lookAheadMs : {0, 700, 1400, 3000}) {
            for (const double speed : {1.5, 3.0, 6.0})
                QTest::addRow("%s, %g m/s, %d ms", name.constData(), speed, lookAheadMs)
                    << path << speed << 0.0 << lookAheadMs;
        }
        QTest::addRow("%s, reversing", name.constData()) << path << -3.0 << 0.0 << 1400;
        QTest::addRow("%s, turning", name.constData()) << path << 3.0 << 0.02 << 1400;
    }
}

void TestRateControllerBorders::open(const QString &path)
{
    // Maps have up to 85,000 edges, most of them between places with the same rate.
    constexpr int mostEdges = 5000;
    opened.clear();
    map.reset();
    Products products = ProductFile::standard();
    products[0].defaultRate = 40.0;
    bench.reset(new MachineBench(products));
    LoadReport report = bench->load(path, {});
    QVERIFY2(report.isOk(), qPrintable(report.error));
    report = bench->load(path, {report.columns.first()});
    QVERIFY2(report.isOk(), qPrintable(report.error));
    const auto *group = qobject_cast<DbGroupRxMap *>(bench->broker.getGroup(report.group, false));
    map.reset(new CountedMap(*group));
    // Some formats give a default rate of their own.
    defaultRate = group->getRateCalMappings().first().defaultRate;
    borders = map->borders(mostEdges);
    opened = path;
}

double TestRateControllerBorders::expectedAt(const QPointF &place) const
{
    const double rate = map->rateAt(place);
    return std::isnan(rate) ? defaultRate : rate;
}

bool TestRateControllerBorders::isOnBorder(const QPointF &place) const
{
    // More than a machine loses while it gets up to its speed within a step.
    constexpr double aside = 1e-4;
    for (const QPointF &beside : {QPointF(aside, 0), QPointF(-aside, 0), QPointF(0, aside), QPointF(0, -aside)}) {
        if (expectedAt(place + beside) == commanded())
            return true;
    }
    return false;
}

/// Where the controller looks when its machine drives on a circle, or straight on.
static QPointF pointAhead(const Pose &start, double seconds, double speed, double curvature, double lookAhead)
{
    const double driven = seconds * speed;
    const double turned = driven * curvature;
    const double right = curvature != 0.0 ? (1.0 - std::cos(turned)) / curvature : 0.0;
    const double along = curvature != 0.0 ? std::sin(turned) / curvature : driven;
    const double heading = start.heading + turned;
    return start.place + right * start.rightward() + along * start.forward()
        + speed * lookAhead * QPointF(std::sin(heading), std::cos(heading));
}

void TestRateControllerBorders::everyBorderIsMetWhereThePolygonsSay()
{
    QFETCH(QString, path);
    QFETCH(double, speed);
    QFETCH(double, curvature);
    QFETCH(int, lookAheadMs);
    if (path.isEmpty())
        QSKIP("RXMAP_REAL_DATA names no folder with real prescriptions");
    if (opened != path)
        open(path);
    QCOMPARE(opened, path);
    bench->set(1, lookAheadMs, false, false);
    constexpr int steps = 5;
    const double lookAhead = lookAheadMs / 1000.0;
    int changes = 0;
    for (const CountedMap::Border &border : borders) {
        // The controller looks across the border between the second step and the third.
        Pose start{{}, std::atan2(border.across.x(), border.across.y())};
        start.place = border.middle - pointAhead(start, 0.25, speed, curvature, lookAhead);
        bench->place(start.place, start.degrees(), speed);
        QVERIFY(bench->simulation.vehicle()->steer(curvature));
        double before = 0.0;
        for (int step = 1; step <= steps; ++step) {
            bench->simulation.step();
            const QPointF place = pointAhead(start, 0.1 * step, speed, curvature, lookAhead);
            const double expected = expectedAt(place);
            QVERIFY2(commanded() == expected || isOnBorder(place),
                     qPrintable(QStringLiteral("(%1, %2): %3 instead of %4")
                                    .arg(place.x())
                                    .arg(place.y())
                                    .arg(commanded())
                                    .arg(expected)));
            changes += step == 3 && commanded() != before ? 1 : 0;
            before = commanded();
        }
    }
    // Some edges belong to slivers that lie between two steps.
    QVERIFY2(changes > 0 && 2 * changes > int(borders.size()),
             qPrintable(QStringLiteral("%1 of %2").arg(changes).arg(borders.size())));
}

void TestRateControllerBorders::cleanupTestCase()
{
    map.reset();
    bench.reset();
}

RXMAP_TEST(TestRateControllerBorders, Core)
#include "tst_ratecontroller_borders.moc"
