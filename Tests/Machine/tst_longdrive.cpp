#include "allocationmeter.h"
#include "fielddrive.h"
#include "machinebench.h"
#include "recorder.h"
#include "testbase.h"
#include "vehicle.h"

/// Hours of driving.
class TestLongDrive : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void memoryStaysFlat_data();
    void memoryStaysFlat();

private:
    /// Drives swaths over and over.
    static void drive(MachineBench &bench, const DrivePath &path, double hours);
};

void TestLongDrive::drive(MachineBench &bench, const DrivePath &path, double hours)
{
    Vehicle *vehicle = bench.simulation.vehicle();
    const double end = bench.simulation.seconds() + 3600.0 * hours;
    while (bench.simulation.seconds() < end) {
        if (vehicle->isOver() || vehicle->mode() != Motion::Mode::Swaths) {
            vehicle->follow(path);
            vehicle->drive(8.0);
        }
        bench.simulation.run(10.0);
    }
}

void TestLongDrive::memoryStaysFlat_data()
{
    QTest::addColumn<QString>("record");
    QTest::addColumn<int>("leeway");
    QTest::newRow("table") << "a.csv" << 64 * 1024;
    // SQLite's page cache fills within some hours; a hundred bytes a step would be 3.6 million bytes in one hour.
    QTest::newRow("package") << "a.gpkg" << 6 * 1024 * 1024;
}

void TestLongDrive::memoryStaysFlat()
{
    QFETCH(QString, record);
    QFETCH(int, leeway);
    // RXMAP_DRIVE_HOURS makes it longer, such as 10.
    const int hours = qMax(2, qEnvironmentVariableIntValue("RXMAP_DRIVE_HOURS"));
    MachineBench bench;
    const LoadReport report = bench.loadZones({{-90, 0, 50}, {0, 90, 80}}, {1, 2, 3});
    QVERIFY2(report.isOk(), qPrintable(report.error));
    const Result<DrivePath> path = FieldDrive::plan(bench.simulation, FieldDrive::usualOptions(bench.simulation));
    QTemporaryDir folder;
    Recorder recorder(&bench.simulation);
    QCOMPARE(recorder.start(folder.filePath(record)), QString());
    drive(bench, path.value, 1.0);
    const AllocationMeter meter;
    drive(bench, path.value, hours - 1.0);
    QVERIFY2(meter.peak() < size_t(leeway), qPrintable(QString::number(meter.peak())));
    QCOMPARE(recorder.stop(), QString());
}

RXMAP_TEST(TestLongDrive, Core)
#include "tst_longdrive.moc"
