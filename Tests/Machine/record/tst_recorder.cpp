#include "machinebench.h"
#include "recorder.h"
#include "testbase.h"
#include "vehicle.h"

#include <QFile>
#include <QTemporaryDir>

#include <cmath>
#include <csignal>
#include <ogrsf_frmts.h>
#include <sys/resource.h>

/// What is kept of a drive.
class TestRecorder : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aRowIsWrittenForEveryStep();
    void twoDrivesAreTheSameToTheByte();
    void aGeoPackageHoldsPointsAndStrips();
    void whereTheMachineIsPutElsewhereNoStripIs();
    void aDriveThatGoesOnCanBeRead();
    void whatCannotBeWrittenIsToldInOneLine_data();
    void whatCannotBeWrittenIsToldInOneLine();
    void aFullDiskEndsTheRecordWithAWholeRow();

private:
    /// Drives 5 s over a border, 4 m/s, and records it.
    QString drive(const QString &name);
    static QList<QByteArray> lines(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll().split('\n') : QList<QByteArray>();
    }

    QScopedPointer<QTemporaryDir> folder;
};

void TestRecorder::init()
{
    TestBase::init();
    folder.reset(new QTemporaryDir);
}

QString TestRecorder::drive(const QString &name)
{
    MachineBench bench;
    const LoadReport report = bench.loadZones({{-100, 0, 50}, {0, 100, 80}});
    Recorder recorder(&bench.simulation);
    const QString path = folder->filePath(name);
    const QString error = recorder.start(path, report.origin);
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
    QCOMPARE(fields.size(), 6 + 3 * 4);
    QCOMPARE(fields.mid(0, 6), QList<QByteArray>({"2.000", "-2.000", "3.000", "90.000", "4.000", "1"}));
    // The look-ahead is a second.
    QCOMPARE(fields.mid(6, 2), QList<QByteArray>({"80.000", "80.000"}));
    QCOMPARE(fields.at(9), QByteArray("prescription"));
    QCOMPARE(fields.mid(10, 4), QList<QByteArray>({"", "0.000", "0.000", "notControlled"}));
    QVERIFY(rows.last().isEmpty());
}

void TestRecorder::twoDrivesAreTheSameToTheByte()
{
    const QList<QByteArray> first = lines(drive(QStringLiteral("a.csv")));
    QVERIFY(first.size() > 50);
    QCOMPARE(lines(drive(QStringLiteral("b.csv"))), first);
}

void TestRecorder::aGeoPackageHoldsPointsAndStrips()
{
    const QString path = drive(QStringLiteral("a.gpkg"));
    const GDALDatasetUniquePtr file(GDALDataset::Open(path.toLocal8Bit().constData(), GDAL_OF_VECTOR));
    QVERIFY2(file != nullptr, qPrintable(path));
    OGRLayer *points = file->GetLayerByName("points");
    QCOMPARE(points->GetFeatureCount(), GIntBig(50));
    const OGRFeatureUniquePtr point(points->GetFeature(20));
    // It speeds up within some microseconds.
    QVERIFY(std::fabs(point->GetGeometryRef()->toPoint()->getX() + 2.0) < 1e-4);
    QCOMPARE(point->GetFieldAsDouble("prescribed_1"), 80.0);
    QCOMPARE(QString::fromUtf8(point->GetFieldAsString("source_2")), QStringLiteral("notControlled"));
    QVERIFY(!point->IsFieldSetAndNotNull(point->GetFieldIndex("prescribed_2")));
    double area = 0.0;
    for (const OGRFeatureUniquePtr &strip : *file->GetLayerByName("strips"))
        area += strip->GetGeometryRef()->toPolygon()->get_Area();
    // It speeds up within some microseconds.
    QVERIFY2(std::fabs(area - 50 * 0.4 * 12.0) < 1e-3, qPrintable(QString::number(area)));
    // Where on earth: the map's middle lies on the zone's middle meridian.
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
    QCOMPARE(recorder.start(path, report.origin), QString());
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
    QCOMPARE(recorder.start(table, report.origin), QString());
    bench.simulation.run(3.55);
    // All but what began in the last second.
    QCOMPARE(lines(table).size(), 30 + 2);
    const QString package = folder->filePath(QStringLiteral("a.gpkg"));
    QCOMPARE(recorder.start(package, report.origin), QString());
    bench.simulation.run(3.55);
    const GDALDatasetUniquePtr file(GDALDataset::Open(package.toLocal8Bit().constData(), GDAL_OF_VECTOR));
    QVERIFY(file != nullptr);
    QCOMPARE(file->GetLayerByName("points")->GetFeatureCount(), GIntBig(30));
}

void TestRecorder::whatCannotBeWrittenIsToldInOneLine_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("reason");
    QTest::newRow("no folder, table") << "/nowhere/a.csv"
                                      << "/nowhere/a.csv: No such file or directory";
    QTest::newRow("no folder, package") << "/nowhere/a.gpkg"
                                        << "/nowhere/a.gpkg: ";
    QTest::newRow("no known kind") << "/tmp/a.txt"
                                   << "/tmp/a.txt: a record is a .csv or .gpkg file";
}

void TestRecorder::whatCannotBeWrittenIsToldInOneLine()
{
    QFETCH(QString, path);
    QFETCH(QString, reason);
    MachineBench bench;
    Recorder recorder(&bench.simulation);
    const QString error = recorder.start(path, QPointF(9, 50));
    QVERIFY2(error.startsWith(reason) && error.size() > path.size() + 2, qPrintable(error));
    QVERIFY(!error.contains(QLatin1Char('\n')));
    QVERIFY(!recorder.isRecording());
}

void TestRecorder::aFullDiskEndsTheRecordWithAWholeRow()
{
    MachineBench bench;
    Recorder recorder(&bench.simulation);
    QSignalSpy failures(&recorder, &Recorder::failed);
    const QString path = folder->filePath(QStringLiteral("a.csv"));
    QCOMPARE(recorder.start(path, QPointF(9, 50)), QString());
    // A limit on the size of files stands for the disk's.
    rlimit before{};
    QVERIFY(getrlimit(RLIMIT_FSIZE, &before) == 0);
    const auto formerAction = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit small = {5000, before.rlim_max};
    QVERIFY(setrlimit(RLIMIT_FSIZE, &small) == 0);
    bench.simulation.run(60.0);
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, formerAction);
    QCOMPARE(failures.size(), 1);
    const QString told = failures.first().first().toString();
    QVERIFY2(told.startsWith(path + QStringLiteral(": the record ends early: ")), qPrintable(told));
    const QList<QByteArray> rows = lines(path);
    QVERIFY(rows.size() > 20);
    QCOMPARE((rows.size() - 2) % 10, 0);
    QCOMPARE(rows.at(rows.size() - 2).count(','), rows.first().count(','));
    QVERIFY(rows.last().isEmpty());
    QCOMPARE(recorder.stop(), told);
}

RXMAP_TEST(TestRecorder, Core)
#include "tst_recorder.moc"
