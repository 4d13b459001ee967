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
#include <QTemporaryDir>

#include <algorithm>
#include <ogrsf_frmts.h>

/// How one record follows another, and what ends one before its time.
class TestRecorderEnds : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aRecordOverItselfStartsAnew_data();
    void aRecordOverItselfStartsAnew();
    void whatTheFormerRecordLostIsTold();
    void aRecordGoesOnWhereTheNextCannotBeWritten();
    void whatCannotBeWrittenIsToldInOneLine_data();
    void whatCannotBeWrittenIsToldInOneLine();
    void anotherFieldEndsTheRecord_data();
    void anotherFieldEndsTheRecord();
    void whoIsToldOfTheEndMayForgetTheRecord();
    void aFullDiskEndsTheRecordWithAWholeSecond_data();
    void aFullDiskEndsTheRecordWithAWholeSecond();

private:
    /// The number of whole steps in a record.
    static int stepsIn(const QString &path);

    QScopedPointer<QTemporaryDir> folder;
    QTemporaryDir links;
};

void TestRecorderEnds::init()
{
    TestBase::init();
    folder.reset(new QTemporaryDir);
}

int TestRecorderEnds::stepsIn(const QString &path)
{
    if (path.endsWith(QLatin1String(".gpkg"))) {
        const GDALDatasetUniquePtr file(GDALDataset::Open(path.toLocal8Bit().constData(), GDAL_OF_VECTOR));
        OGRLayer *points = file != nullptr ? file->GetLayerByName("points") : nullptr;
        return points != nullptr ? int(points->GetFeatureCount()) : -1;
    }
    const QList<QByteArray> rows = readFile(path).split('\n');
    const auto isWhole = [&rows](const QByteArray &row) {
        return row.count(',') == rows.first().count(',') && !row.contains('\0');
    };
    const bool areWhole = rows.last().isEmpty() && std::all_of(rows.begin(), rows.end() - 1, isWhole);
    return areWhole ? rows.size() - 2 : -1;
}

void TestRecorderEnds::aRecordOverItselfStartsAnew_data()
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

void TestRecorderEnds::aRecordOverItselfStartsAnew()
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

void TestRecorderEnds::whatTheFormerRecordLostIsTold()
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

void TestRecorderEnds::aRecordGoesOnWhereTheNextCannotBeWritten()
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

void TestRecorderEnds::whatCannotBeWrittenIsToldInOneLine_data()
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

void TestRecorderEnds::whatCannotBeWrittenIsToldInOneLine()
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

void TestRecorderEnds::anotherFieldEndsTheRecord_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("table") << "a.csv";
    QTest::newRow("package") << "a.gpkg";
}

void TestRecorderEnds::anotherFieldEndsTheRecord()
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

void TestRecorderEnds::whoIsToldOfTheEndMayForgetTheRecord()
{
    MachineBench bench;
    QVERIFY(bench.loadZones({{-100, 100, 50}}).isOk());
    Recorder recorder(&bench.simulation);
    QSignalSpy failures(&recorder, &Recorder::failed);
    QCOMPARE(recorder.start(folder->filePath(QStringLiteral("a.csv"))), QString());
    connect(&recorder, &Recorder::switched, &recorder, &Recorder::stop);
    QVERIFY(bench.load(TerminalHost::sampleField(), {QStringLiteral("SEED_KS_HA")}).isOk());
    QCOMPARE(failures.size(), 1);
}

void TestRecorderEnds::aFullDiskEndsTheRecordWithAWholeSecond_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("bytes");
    QTest::newRow("table") << "a.csv" << 5000;
    QTest::newRow("package") << "a.gpkg" << 200000;
    QTest::newRow("package, sooner") << "a.gpkg" << 130000;
}

void TestRecorderEnds::aFullDiskEndsTheRecordWithAWholeSecond()
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
        const QList<QByteArray> rows = readFile(path).split('\n');
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

RXMAP_TEST(TestRecorderEnds, Core)
#include "tst_recorder_ends.moc"
