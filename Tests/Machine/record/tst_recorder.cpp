#include "fielddrive.h"
#include "files.h"
#include "machinebench.h"
#include "recorder.h"
#include "smalldisk.h"
#include "terminalhost.h"
#include "testbase.h"
#include "vehicle.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
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
    void aRecordOverItselfStartsAnew_data();
    void aRecordOverItselfStartsAnew();
    void whatTheFormerRecordLostIsTold();
    void aRecordGoesOnWhereTheNextCannotBeWritten();
    void whatCannotBeWrittenIsToldInOneLine_data();
    void whatCannotBeWrittenIsToldInOneLine();
    void anotherFieldEndsTheRecord_data();
    void anotherFieldEndsTheRecord();
    void aFullDiskEndsTheRecordWithAWholeSecond_data();
    void aFullDiskEndsTheRecordWithAWholeSecond();

private:
    /// The number of whole steps in a record.
    static int stepsIn(const QString &path);
    /// Drives 5 s over a border at 4 m/s and records it; returns the record's path.
    QString drive(const QString &name);
    /// Records 150 s of what `begin` begins. How the machine stood after each step: heading, speed, whether it worked,
    /// and the implement's place on earth.
    QList<QByteArray> groundOf(const QList<MachineBench::Zone> &zones, const std::function<void(Simulation &)> &begin);
    static QList<QByteArray> lines(const QString &path) { return readFile(path).split('\n'); }

    QScopedPointer<QTemporaryDir> folder;
    QTemporaryDir links;
};

void TestRecorder::init()
{
    TestBase::init();
    folder.reset(new QTemporaryDir);
}

int TestRecorder::stepsIn(const QString &path)
{
    if (path.endsWith(QLatin1String(".gpkg"))) {
        const GDALDatasetUniquePtr file(GDALDataset::Open(path.toLocal8Bit().constData(), GDAL_OF_VECTOR));
        OGRLayer *points = file != nullptr ? file->GetLayerByName("points") : nullptr;
        return points != nullptr ? int(points->GetFeatureCount()) : -1;
    }
    const QList<QByteArray> rows = lines(path);
    const auto isWhole = [&rows](const QByteArray &row) {
        return row.count(',') == rows.first().count(',') && !row.contains('\0');
    };
    const bool areWhole = rows.last().isEmpty() && std::all_of(rows.begin(), rows.end() - 1, isWhole);
    return areWhole ? rows.size() - 2 : -1;
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

void TestRecorder::aRecordOverItselfStartsAnew_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("nextName");
    QTest::newRow("table") << "a.csv"
                           << "a.csv";
    QTest::newRow("package") << "a.gpkg"
                             << "a.gpkg";
    QTest::newRow("table by another name") << "a.csv"
                                           << "link.csv";
}

void TestRecorder::aRecordOverItselfStartsAnew()
{
    QFETCH(QString, name);
    QFETCH(QString, nextName);
    MachineBench bench;
    Recorder recorder(&bench.simulation);
    const QString path = folder->filePath(name);
    QCOMPARE(recorder.start(path), QString());
    bench.simulation.run(5.55);
    QVERIFY(nextName == name || QFile::link(path, folder->filePath(nextName)));
    QCOMPARE(recorder.start(folder->filePath(nextName)), QString());
    bench.simulation.run(1.5);
    QCOMPARE(recorder.stop(), QString());
    QCOMPARE(stepsIn(path), 15);
}

void TestRecorder::whatTheFormerRecordLostIsTold()
{
    MachineBench bench;
    Recorder recorder(&bench.simulation);
    const QString former = folder->filePath(QStringLiteral("former.csv"));
    const QString next = folder->filePath(QStringLiteral("next.csv"));
    QCOMPARE(recorder.start(former), QString());
    bench.simulation.run(5.55);
    {
        const SmallDisk disk(static_cast<rlim_t>(QFileInfo(former).size() + 1));
        const QString told = recorder.start(next);
        QVERIFY2(told.startsWith(former + QStringLiteral(": the record ends early: ")), qPrintable(told));
    }
    QVERIFY(recorder.isRecording());
    bench.simulation.run(1.0);
    QCOMPARE(recorder.stop(), QString());
    QCOMPARE(stepsIn(former), 50);
    QCOMPARE(stepsIn(next), 10);
}

void TestRecorder::aRecordGoesOnWhereTheNextCannotBeWritten()
{
    MachineBench bench;
    Recorder recorder(&bench.simulation);
    const QString path = folder->filePath(QStringLiteral("a.csv"));
    QCOMPARE(recorder.start(path), QString());
    bench.simulation.run(1.55);
    QVERIFY(!recorder.start(QStringLiteral("/nowhere/b.csv")).isEmpty());
    bench.simulation.run(1.0);
    QCOMPARE(recorder.stop(), QString());
    QCOMPARE(stepsIn(path), 25);
}

void TestRecorder::whatCannotBeWrittenIsToldInOneLine_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("reason");
    QTest::newRow("no folder, table") << "/nowhere/a.csv"
                                      << "/nowhere/a.csv: No such file or directory";
    QTest::newRow("no folder, package") << "/nowhere/a.gpkg"
                                        << "/nowhere/a.gpkg: ";
    const QString full = links.filePath(QStringLiteral("full.csv"));
    QVERIFY(QFile::link(QStringLiteral("/dev/full"), full));
    QTest::newRow("full device") << full << full + ": No space left on device";
    QTest::newRow("no known kind") << "/tmp/a.txt"
                                   << "/tmp/a.txt: a record is a .csv or .gpkg file";
}

void TestRecorder::whatCannotBeWrittenIsToldInOneLine()
{
    QFETCH(QString, path);
    QFETCH(QString, reason);
    MachineBench bench;
    Recorder recorder(&bench.simulation);
    const QString error = recorder.start(path);
    QVERIFY2(error.startsWith(reason) && error.size() > path.size() + 2, qPrintable(error));
    QVERIFY(!error.contains(QLatin1Char('\n')));
    QVERIFY(!recorder.isRecording());
}

void TestRecorder::anotherFieldEndsTheRecord_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("table") << "a.csv";
    QTest::newRow("package") << "a.gpkg";
}

void TestRecorder::anotherFieldEndsTheRecord()
{
    QFETCH(QString, name);
    MachineBench bench;
    QVERIFY(bench.loadZones({{-100, 100, 50}}).isOk());
    Recorder recorder(&bench.simulation);
    QSignalSpy failures(&recorder, &Recorder::failed);
    const QString path = folder->filePath(name);
    QCOMPARE(recorder.start(path), QString());
    bench.simulation.run(1.55);
    // The same field once more.
    QVERIFY(bench.loadZones({{-100, 100, 60}}).isOk());
    bench.simulation.run(1.0);
    QCOMPARE(failures.size(), 0);
    QVERIFY(bench.load(TerminalHost::sampleField(), {QStringLiteral("SEED_KS_HA")}).isOk());
    QCOMPARE(failures.size(), 1);
    QVERIFY(!recorder.isRecording());
    bench.simulation.run(1.0);
    QCOMPARE(recorder.stop(), path + QStringLiteral(": the record ends early: another field is open"));
    QCOMPARE(stepsIn(path), 25);
}

void TestRecorder::aFullDiskEndsTheRecordWithAWholeSecond_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("bytes");
    QTest::newRow("table") << "a.csv" << 5000;
    QTest::newRow("package") << "a.gpkg" << 200000;
    QTest::newRow("package, sooner") << "a.gpkg" << 130000;
}

void TestRecorder::aFullDiskEndsTheRecordWithAWholeSecond()
{
    QFETCH(QString, name);
    QFETCH(int, bytes);
    MachineBench bench;
    Recorder recorder(&bench.simulation);
    QSignalSpy failures(&recorder, &Recorder::failed);
    const QString path = folder->filePath(name);
    QCOMPARE(recorder.start(path), QString());
    bench.simulation.vehicle()->drive(3.0);
    {
        const SmallDisk disk(static_cast<rlim_t>(bytes));
        bench.simulation.run(120.0);
    }
    QCOMPARE(failures.size(), 1);
    const QString told = failures.first().first().toString();
    QVERIFY2(told.startsWith(path + QStringLiteral(": the record ends early: ")), qPrintable(told));
    QVERIFY(!told.contains(QLatin1Char('\n')));
    QCOMPARE(recorder.stop(), told);
    int steps = 0;
    if (name.endsWith(QLatin1String(".csv"))) {
        const QList<QByteArray> rows = lines(path);
        steps = rows.size() - 2;
        QCOMPARE(rows.at(rows.size() - 2).count(','), rows.first().count(','));
        QVERIFY(rows.last().isEmpty());
    } else {
        const GDALDatasetUniquePtr file(GDALDataset::Open(path.toLocal8Bit().constData(), GDAL_OF_VECTOR));
        QVERIFY(file != nullptr);
        steps = int(file->GetLayerByName("points")->GetFeatureCount());
        QCOMPARE(int(file->GetLayerByName("strips")->GetFeatureCount()), steps);
        int read = 0;
        for (const OGRFeatureUniquePtr &point : *file->GetLayerByName("points"))
            read += point->GetGeometryRef() != nullptr ? 1 : 0;
        QCOMPARE(read, steps);
    }
    QVERIFY2(steps > 20 && steps < 1200, qPrintable(QString::number(steps)));
    QCOMPARE(steps % 10, 0);
    QCOMPARE(QDir(folder->path()).entryList(QDir::Files), QStringList{name});
}

RXMAP_TEST(TestRecorder, Core)
#include "tst_recorder.moc"
