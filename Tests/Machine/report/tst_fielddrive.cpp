#include "drivereport.h"
#include "dubinspath.h"
#include "machinebench.h"
#include "terminalhost.h"
#include "testbase.h"
#include "vehicle.h"

#include "bePluginRxMap/dbgrouprxmap.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <cmath>

/// A whole field, driven without waiting.
class TestFieldDrive : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void areasAndAmountsAreThoseOfTheField();
    void whatIsAppliedFollowsTheModel();
    void theBestLookAheadIsDeadTimePlusTimeConstant_data();
    void theBestLookAheadIsDeadTimePlusTimeConstant();
    void theSampleFieldIsWorkedAsPlanned();
    void twoDrivesTellTheSame();
    void noFieldIsToldInOneLine();

private:
    static Products oneProduct(double deadTime, double timeConstant)
    {
        Products products = ProductFile::standard();
        products[0].actuator = {deadTime, timeConstant, 0.0, 1000.0};
        return products;
    }
    /// Swaths of 12 m from west to east and back.
    static DrivePath acrossBorders(MachineBench &bench)
    {
        SwathOptions options = FieldDrive::usualOptions(bench.simulation);
        options.angle = 90.0;
        return FieldDrive::plan(bench.simulation, options).value;
    }
    static QJsonObject report(MachineBench &bench, const DrivePath &path)
    {
        FieldDrive drive(&bench.simulation, path);
        const DriveTally tally(&bench.simulation);
        drive.run();
        return DriveReport::make(QStringLiteral("f"), bench.machine, tally, {});
    }
    static QJsonObject product(const QJsonObject &report, int number)
    {
        return report.value(QStringLiteral("products")).toArray().at(number - 1).toObject();
    }
};

void TestFieldDrive::areasAndAmountsAreThoseOfTheField()
{
    MachineBench bench(oneProduct(0.0, 0.0));
    QVERIFY(bench.loadZones({{-90, 0, 50}, {0, 90, 80}}).isOk());
    bench.set(1, 0, false, true);
    const QJsonObject all = report(bench, acrossBorders(bench));
    // 400 m from south to north are 34 swaths, the last of which reaches 8 m beyond.
    const double area = 34 * 12.0 * 180.0;
    // The first metre of each swath belongs to the step in which the implement comes down.
    QVERIFY2(std::fabs(all.value(QStringLiteral("workedArea")).toDouble() - area) < 34 * 12.0 * 0.3,
             qPrintable(QString::number(all.value(QStringLiteral("workedArea")).toDouble())));
    const QJsonArray classes = product(all, 1).value(QStringLiteral("classes")).toArray();
    QCOMPARE(classes.size(), 3);
    for (int i = 0; i < 2; ++i) {
        const QJsonObject ground = classes.at(i).toObject();
        const double rate = i == 0 ? 50.0 : 80.0;
        QCOMPARE(ground.value(QStringLiteral("rate")).toDouble(), rate);
        QVERIFY(std::fabs(ground.value(QStringLiteral("area")).toDouble() - 400.0 * 90.0) < 120.0);
        const double planned = rate * ground.value(QStringLiteral("area")).toDouble() / 10000.0;
        QVERIFY(std::fabs(ground.value(QStringLiteral("planned")).toDouble() - planned) < 1e-6);
        QVERIFY(std::fabs(ground.value(QStringLiteral("applied")).toDouble() / planned - 1.0) < 0.01);
    }
    QVERIFY(classes.at(2).toObject().value(QStringLiteral("rate")).isNull());
    QVERIFY(std::fabs(classes.at(2).toObject().value(QStringLiteral("area")).toDouble() - 8.0 * 180.0) < 120.0);
    // The last swath's middle, where changes are looked for, lies outside the field.
    QCOMPARE(product(all, 1).value(QStringLiteral("changes")).toObject().value(QStringLiteral("count")).toInt(), 33);
    QCOMPARE(product(all, 2).value(QStringLiteral("appliedTotal")).toDouble(), 0.0);
}

void TestFieldDrive::whatIsAppliedFollowsTheModel()
{
    MachineBench bench(oneProduct(0.6, 0.8));
    QVERIFY(bench.loadZones({{-90, 0, 50}, {0, 90, 80}}).isOk());
    bench.set(1, 1000, false, true);
    const QJsonObject all = report(bench, acrossBorders(bench));
    const QJsonObject changes = product(all, 1).value(QStringLiteral("changes")).toObject();
    // Commands change only at steps: up to a tenth of a second after the look-ahead point has crossed the border.
    const double late = changes.value(QStringLiteral("medianSeconds")).toDouble();
    QVERIFY2(late > 0.4 - 1e-3 && late < 0.5 + 1e-3, qPrintable(QString::number(late)));
    QVERIFY(std::fabs(changes.value(QStringLiteral("medianMetres")).toDouble() - FieldDrive::usualSpeed * late) < 1e-3);
}

void TestFieldDrive::theBestLookAheadIsDeadTimePlusTimeConstant_data()
{
    QTest::addColumn<double>("deadTime");
    QTest::addColumn<double>("timeConstant");
    QTest::newRow("lag alone") << 0.0 << 0.9;
    QTest::newRow("both") << 0.6 << 0.8;
    QTest::newRow("slow") << 1.0 << 1.5;
}

void TestFieldDrive::theBestLookAheadIsDeadTimePlusTimeConstant()
{
    QFETCH(double, deadTime);
    QFETCH(double, timeConstant);
    MachineBench bench(oneProduct(deadTime, timeConstant));
    const LoadReport map = bench.loadZones({{-90, 0, 50}, {0, 90, 80}});
    bench.set(1, 1700, false, true);
    // There and back.
    DrivePath path(Pose{{-90, 0}, radiansOf(90.0)});
    path.append(PathPiece{180.0, 0.0, true});
    path.append(dubinsPath(path.end(), Pose{{90, 15}, radiansOf(270.0)}, 7.0));
    path.append(PathPiece{180.0, 0.0, true});
    const auto curves = FieldDrive(&bench.simulation, path).tune();
    const int best = FieldDrive::best(curves.at(0));
    const double expected = 1000.0 * (deadTime + timeConstant);
    QVERIFY2(std::abs(best - expected) <= FieldDrive::lookAheadStep, qPrintable(QString::number(best)));
    // The curve falls by one second for each second of look-ahead.
    QVERIFY(std::fabs(curves.at(0).at(0) - curves.at(0).at(1000) - 1.0) < 0.1);
    QVERIFY(curves.at(1).empty());
    const auto *group = qobject_cast<DbGroupRxMap *>(bench.broker.getGroup(map.group, false));
    QCOMPARE(group->getSettings().at(0).onLookAheadMs, 1700);
}

void TestFieldDrive::theSampleFieldIsWorkedAsPlanned()
{
    MachineBench bench;
    const LoadReport map = bench.load(TerminalHost::sampleField(), {QStringLiteral("SEED_KS_HA")});
    QVERIFY2(map.isOk(), qPrintable(map.error));
    const Result<DrivePath> path = FieldDrive::plan(bench.simulation, FieldDrive::usualOptions(bench.simulation));
    QVERIFY2(path.isOk(), qPrintable(path.error));
    const QJsonObject all = report(bench, path.value);
    const auto *group = qobject_cast<DbGroupRxMap *>(bench.broker.getGroup(map.group, false));
    const auto *record = static_cast<const OrvikTypes::RX_POLYGON *>(group->getPolygonBuffer());
    double total = 0.0;
    for (; record != nullptr; record = record->next)
        total += record->isHole ? -record->area : record->area;
    double planned = 0.0;
    for (const QJsonValue &entry : product(all, 1).value(QStringLiteral("classes")).toArray()) {
        if (!entry.toObject().value(QStringLiteral("rate")).isNull())
            planned += entry.toObject().value(QStringLiteral("area")).toDouble();
    }
    QVERIFY2(std::fabs(planned / total - 1.0) < 0.002, qPrintable(QString::number(planned / total)));
    const double ratio = product(all, 1).value(QStringLiteral("appliedTotal")).toDouble()
        / product(all, 1).value(QStringLiteral("plannedTotal")).toDouble();
    QVERIFY2(ratio > 0.98 && ratio < 1.1, qPrintable(QString::number(ratio)));
}

void TestFieldDrive::twoDrivesTellTheSame()
{
    QByteArray told[2];
    for (QByteArray &once : told) {
        MachineBench bench;
        QVERIFY(bench.loadZones({{-90, 0, 50}, {0, 90, 80}}).isOk());
        once = QJsonDocument(report(bench, acrossBorders(bench))).toJson();
    }
    QVERIFY(told[0].size() > 500);
    QCOMPARE(told[0], told[1]);
}

void TestFieldDrive::noFieldIsToldInOneLine()
{
    MachineBench bench;
    QCOMPARE(FieldDrive::plan(bench.simulation, FieldDrive::usualOptions(bench.simulation)).error,
             QStringLiteral("there is no field to drive: no prescription is loaded"));
    QVERIFY(bench.loadZones({{-4, 4, 50}}).isOk());
    QVERIFY(acrossBorders(bench).length() > 0.0);
    SwathOptions options = FieldDrive::usualOptions(bench.simulation);
    options.angle = 0.0;
    QCOMPARE(FieldDrive::plan(bench.simulation, options).error,
             QStringLiteral("the field is 8.0 m wide, narrower than the machine's 12 m"));
}

RXMAP_TEST(TestFieldDrive, Core)
#include "tst_fielddrive.moc"
