#include "fielddrive.h"
#include "files.h"
#include "machinebench.h"
#include "recorder.h"
#include "testbase.h"
#include "vehicle.h"

#include <QFile>
#include <QSet>
#include <QTemporaryDir>

#include <algorithm>
#include <cmath>
#include <functional>
#include <ogrsf_frmts.h>

/// What is kept of a drive.
class TestRecorder : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aRowIsWrittenForEveryStep();
    void twoDrivesAreTheSameToTheByte_data();
    void twoDrivesAreTheSameToTheByte();
    void whatIsReadBackIsTheDrive();
    void aReplayedRecordGoesOverTheSameGround();
    void aGeoPackageHoldsPointsAndStrips();
    void whereTheMachineIsPutElsewhereNoStripIs();
    void aDriveThatGoesOnCanBeRead();

private:
    /// Drives 5 s over a border at 4 m/s and records it; returns the record's path.
    QString drive(const QString &name);
    /// Records 150 s of what `begin` begins. How the machine stood after each step: heading, speed, whether it worked,
    /// and the implement's place on earth.
    QList<QByteArray> groundOf(const QList<MachineBench::Zone> &zones, const std::function<void(Simulation &)> &begin);
    static QList<QByteArray> lines(const QString &path) { return readFile(path).split('\n'); }

    QScopedPointer<QTemporaryDir> folder;
};

void TestRecorder::init()
{
    TestBase::init();
    folder.reset(new QTemporaryDir);
}

QList<QByteArray> TestRecorder::groundOf(const QList<MachineBench::Zone> &zones,
                                         const std::function<void(Simulation &)> &begin)
{
    MachineBench bench;
    bench.loadZones(zones);
    MachineSize size = bench.simulation.vehicle()->size();
    size.antennaOffset = 2.0;
    bench.simulation.vehicle()->setSize(size);
    Recorder recorder(&bench.simulation);
    const QString path = folder->filePath(QStringLiteral("ground.csv"));
    recorder.start(path);
    begin(bench.simulation);
    bench.simulation.run(150.0);
    recorder.stop();
    QList<QByteArray> ground;
    const QList<QByteArray> rows = lines(path).mid(1);
    for (const QByteArray &row : rows) {
        const QByteArrayList fields = row.split(',');
        if (fields.size() > 1)
            ground.append((fields.mid(3, 3) + fields.mid(fields.size() - 2)).join(','));
    }
    return ground;
}

QString TestRecorder::drive(const QString &name)
{
    MachineBench bench;
    const LoadReport report = bench.loadZones({{-100, 0, 50}, {0, 100, 80}});
    Recorder recorder(&bench.simulation);
    const QString path = folder->filePath(name);
    const QString error = recorder.start(path);
    if (!error.isEmpty())
        return error;
    bench.place({-10, 3}, 90.0, 4.0);
    bench.simulation.run(5.05);
    const QString ended = recorder.stop();
    return ended.isEmpty() ? path : ended;
}

void TestRecorder::aRowIsWrittenForEveryStep()
{
    const QList<QByteArray> rows = lines(drive(QStringLiteral("a.csv")));
    QCOMPARE(rows.size(), 50 + 2);
    QCOMPARE(rows.first().left(74),
             QByteArray("time,x,y,heading,speed,working,prescribed_1,commanded_1,applied_1,source_1"));
    const QList<QByteArray> fields = rows.at(20).split(',');
    QCOMPARE(fields.size(), 6 + 3 * 4 + 2);
    QCOMPARE(fields.mid(0, 6), QList<QByteArray>({"2.000", "-2.000", "3.000", "90.000", "4.000", "1"}));
    // The look-ahead is one second.
    QCOMPARE(fields.mid(6, 2), QList<QByteArray>({"80.000", "80.000"}));
    QCOMPARE(fields.at(9), QByteArray("prescription"));
    QCOMPARE(fields.mid(10, 4), QList<QByteArray>({"", "0.000", "0.000", "notControlled"}));
    QVERIFY(rows.last().isEmpty());
}

void TestRecorder::twoDrivesAreTheSameToTheByte_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("table") << "a.csv";
    QTest::newRow("package") << "a.gpkg";
}

void TestRecorder::twoDrivesAreTheSameToTheByte()
{
    QFETCH(QString, name);
    QByteArray records[2];
    for (QByteArray &record : records) {
        record = readFile(drive(name));
        // Had the record a clock's time in it, it would differ after a second.
        QTest::qWait(&record == &records[0] ? 1100 : 0);
    }
    QVERIFY(records[0].size() > 3000);
    QVERIFY(records[0] == records[1]);
}

void TestRecorder::whatIsReadBackIsTheDrive()
{
    Products products = ProductFile::standard();
    products[0].defaultRate = 33.0;
    MachineBench bench(products);
    const LoadReport report = bench.loadZones({{-40, -20, 0}, {-20, 0, 3}, {0, 20, 50}, {20, 40, 80}}, {1, 3});
    bench.set(1, 1300, true, true);
    std::vector<RecordEntry> driven;
    connect(&bench.simulation, &Simulation::stepped, [&] { driven.push_back(Recorder::entryOf(bench.simulation)); });
    Recorder package(&bench.simulation);
    Recorder table(&bench.simulation);
    const QString packagePath = folder->filePath(QStringLiteral("a.gpkg"));
    const QString tablePath = folder->filePath(QStringLiteral("a.csv"));
    QCOMPARE(package.start(packagePath), QString());
    QCOMPARE(table.start(tablePath), QString());
    // Over all zones and off the map, in a turn, without a signal, and standing still.
    bench.place({-45, 3}, 90.0, 4.0);
    bench.simulation.run(25.0);
    QVERIFY(bench.simulation.vehicle()->steer(0.05));
    bench.simulation.vehicle()->setSignal(false);
    bench.simulation.run(5.0);
    bench.simulation.vehicle()->stop();
    bench.simulation.run(1.0);
    QCOMPARE(package.stop() + table.stop(), QString());

    const GDALDatasetUniquePtr file(GDALDataset::Open(packagePath.toLocal8Bit().constData(), GDAL_OF_VECTOR));
    OGRLayer *points = file->GetLayerByName("points");
    const QList<QByteArray> rows = lines(tablePath);
    QCOMPARE(points->GetFeatureCount(), GIntBig(driven.size()));
    QCOMPARE(rows.size(), int(driven.size()) + 2);
    const auto isRounded = [](const QByteArray &field, double value) {
        return std::isnan(value) ? field.isEmpty() : std::fabs(field.toDouble() - value) <= 0.000501;
    };
    QSet<QString> sources;
    for (size_t i = 0; i < driven.size(); ++i) {
        const RecordEntry &step = driven[i];
        const OGRFeatureUniquePtr point(points->GetFeature(GIntBig(i) + 1));
        QCOMPARE(point->GetFieldAsDouble("time"), step.time);
        QCOMPARE(point->GetGeometryRef()->toPoint()->getX(), step.pose.place.x());
        QCOMPARE(point->GetGeometryRef()->toPoint()->getY(), step.pose.place.y());
        QCOMPARE(point->GetFieldAsDouble("heading"), step.pose.degrees());
        QCOMPARE(point->GetFieldAsDouble("speed"), step.speed);
        QCOMPARE(point->GetFieldAsInteger("working"), step.isWorking ? 1 : 0);
        const QList<QByteArray> row = rows.at(int(i) + 1).split(',');
        const double place[] = {step.time, step.pose.place.x(), step.pose.place.y(), step.pose.degrees(), step.speed};
        for (int column = 0; column < 5; ++column)
            QVERIFY(isRounded(row.at(column), place[column]));
        for (int number = 1; number <= 3; ++number) {
            const RecordEntry::Channel &channel = step.channels[size_t(number - 1)];
            const auto field = [&](const char *name) {
                return point->GetFieldIndex((name + QByteArray::number(number)).constData());
            };
            QCOMPARE(!point->IsFieldSetAndNotNull(field("prescribed_")), std::isnan(channel.command.prescribed));
            if (!std::isnan(channel.command.prescribed))
                QCOMPARE(point->GetFieldAsDouble(field("prescribed_")), channel.command.prescribed);
            QCOMPARE(point->GetFieldAsDouble(field("commanded_")), channel.command.commanded);
            QCOMPARE(point->GetFieldAsDouble(field("applied_")), channel.applied);
            const QByteArray source = point->GetFieldAsString(field("source_"));
            QCOMPARE(source, QByteArray(sourceName(channel.command.source)));
            sources.insert(QString::fromLatin1(source));
            const int column = 6 + 4 * (number - 1);
            QVERIFY(isRounded(row.at(column), channel.command.prescribed));
            QVERIFY(isRounded(row.at(column + 1), channel.command.commanded));
            QVERIFY(isRounded(row.at(column + 2), channel.applied));
            QCOMPARE(row.at(column + 3), source);
        }
    }
    QCOMPARE(sources.size(), int(CommandSource::NotControlled) + 1);
}

void TestRecorder::aReplayedRecordGoesOverTheSameGround()
{
    const QList<QByteArray> driven = groundOf({{-100, 0, 50}, {0, 100, 80}}, [](Simulation &simulation) {
        simulation.vehicle()->follow(FieldDrive::plan(simulation, FieldDrive::usualOptions(simulation)).value);
        simulation.vehicle()->drive(4.0);
    });
    QVERIFY(std::any_of(driven.begin(), driven.end(), [](const QByteArray &row) { return row.contains(",4.000,0,"); }));
    QVERIFY(QFile::rename(folder->filePath(QStringLiteral("ground.csv")), folder->filePath(QStringLiteral("a.csv"))));
    // On the plane of a map that lies elsewhere.
    const QList<QByteArray> replayed = groundOf({{-100, 0, 50}, {0, 300, 80}}, [this](Simulation &simulation) {
        QVERIFY(simulation.replay(folder->filePath(QStringLiteral("a.csv"))).isOk());
    });
    QCOMPARE(driven.size(), 1500);
    // The replay begins at the end of the first step, and stands at the end of the last.
    QCOMPARE(replayed.mid(0, 1498), driven.mid(1, 1498));
}

void TestRecorder::aGeoPackageHoldsPointsAndStrips()
{
    const QString path = drive(QStringLiteral("a.gpkg"));
    const GDALDatasetUniquePtr file(GDALDataset::Open(path.toLocal8Bit().constData(), GDAL_OF_VECTOR));
    QVERIFY2(file != nullptr, qPrintable(path));
    OGRLayer *points = file->GetLayerByName("points");
    QCOMPARE(points->GetFeatureCount(), GIntBig(50));
    const OGRFeatureUniquePtr point(points->GetFeature(20));
    // The machine gets up to speed within some microseconds.
    QVERIFY(std::fabs(point->GetGeometryRef()->toPoint()->getX() + 2.0) < 1e-4);
    QCOMPARE(point->GetFieldAsDouble("prescribed_1"), 80.0);
    QCOMPARE(QString::fromUtf8(point->GetFieldAsString("source_2")), QStringLiteral("notControlled"));
    QVERIFY(!point->IsFieldSetAndNotNull(point->GetFieldIndex("prescribed_2")));
    double area = 0.0;
    for (const OGRFeatureUniquePtr &strip : *file->GetLayerByName("strips"))
        area += strip->GetGeometryRef()->toPolygon()->get_Area();
    // The machine gets up to speed within some microseconds.
    QVERIFY2(std::fabs(area - 50 * 0.4 * 12.0) < 1e-3, qPrintable(QString::number(area)));
    // The place on earth: the map's middle lies on the zone's middle meridian.
    OGRSpatialReference earth;
    earth.SetWellKnownGeogCS("WGS84");
    earth.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    OGRCoordinateTransformation *toEarth = OGRCreateCoordinateTransformation(points->GetSpatialRef(), &earth);
    double x = 0.0;
    double y = 0.0;
    QVERIFY(toEarth != nullptr && toEarth->Transform(1, &x, &y));
    OGRCoordinateTransformation::DestroyCT(toEarth);
    QVERIFY(std::fabs(x - 9.0) < 1e-9);
}

void TestRecorder::whereTheMachineIsPutElsewhereNoStripIs()
{
    MachineBench bench;
    const LoadReport report = bench.loadZones({{-100, 100, 50}});
    Recorder recorder(&bench.simulation);
    const QString path = folder->filePath(QStringLiteral("a.gpkg"));
    QCOMPARE(recorder.start(path), QString());
    for (const double x : {-90.0, 60.0}) {
        bench.place({x, 3}, 90.0, 4.0);
        bench.simulation.run(1.05);
    }
    QCOMPARE(recorder.stop(), QString());
    const GDALDatasetUniquePtr file(GDALDataset::Open(path.toLocal8Bit().constData(), GDAL_OF_VECTOR));
    for (const OGRFeatureUniquePtr &strip : *file->GetLayerByName("strips"))
        QVERIFY(strip->GetGeometryRef()->toPolygon()->get_Area() < 0.4 * 12.0 + 1e-6);
}

void TestRecorder::aDriveThatGoesOnCanBeRead()
{
    MachineBench bench;
    const LoadReport report = bench.loadZones({{-100, 100, 50}});
    Recorder recorder(&bench.simulation);
    const QString table = folder->filePath(QStringLiteral("a.csv"));
    QCOMPARE(recorder.start(table), QString());
    bench.simulation.run(3.55);
    // All steps except those that began in the last second.
    QCOMPARE(lines(table).size(), 30 + 2);
    const QString package = folder->filePath(QStringLiteral("a.gpkg"));
    QCOMPARE(recorder.start(package), QString());
    bench.simulation.run(3.55);
    const GDALDatasetUniquePtr file(GDALDataset::Open(package.toLocal8Bit().constData(), GDAL_OF_VECTOR));
    QVERIFY(file != nullptr);
    QCOMPARE(file->GetLayerByName("points")->GetFeatureCount(), GIntBig(30));
}

RXMAP_TEST(TestRecorder, Core)
#include "tst_recorder.moc"
