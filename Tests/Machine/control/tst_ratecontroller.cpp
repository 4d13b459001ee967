#include "machinebench.h"
#include "ratecontroller.h"
#include "terminalhost.h"
#include "testbase.h"
#include "vehicle.h"

#include "bePluginRxMap/dbgrouprxmap.h"
#include "bePluginRxMap/rxmaploader.h"

#include <cmath>

/// What the rate controller commands, and why.
class TestRateController : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aBorderIsMetByTheLookAheadTime_data();
    void aBorderIsMetByTheLookAheadTime();
    void backwardsItLooksBackwards();
    void inATurnItLooksStraightOn();
    void theAntennaDoesNotMoveTheBorder();
    void everySourceFollowsEveryOther_data();
    void everySourceFollowsEveryOther();
    void aRateBelowTheLeastIsNamedSo_data();
    void aRateBelowTheLeastIsNamedSo();
    void flagsAreTakenWhenAskedForAlone();
    void theSettingsOfAMapThatIsGoneDoNotCount();
    void aMasterSpreadsNoShutoffOfItsOwn();
    void defaultRatesAreTakenAtOnce();
    void aPositionHoldsForTwoSeconds();
    void aMachineThatStandsAsksNothingAnew();

private:
    const RateCommand &command() const { return bench->simulation.controller()->command(1); }
    void become(CommandSource source);

    QScopedPointer<MachineBench> bench;
};

void TestRateController::init()
{
    TestBase::init();
    Products products = ProductFile::standard();
    products[0].defaultRate = 40.0;
    products[0].actuator.minRate = 10.0;
    bench.reset(new MachineBench(products));
}

void TestRateController::cleanup()
{
    bench.reset();
    TestBase::cleanup();
}

void TestRateController::aBorderIsMetByTheLookAheadTime_data()
{
    QTest::addColumn<double>("speed");
    QTest::addColumn<int>("lookAheadMs");
    QTest::addColumn<int>("lastStepBefore");
    // The machine starts 60 m before the border. The border belongs to the eastern zone, so the rate changes at the
    // first step that looks at it or beyond it: the last step before has speed * (time + look-ahead) < 60 m.
    QTest::newRow("2 m/s, none") << 2.0 << 0 << 299;
    QTest::newRow("2 m/s, 1 s") << 2.0 << 1000 << 289;
    QTest::newRow("2 m/s, 2.5 s") << 2.0 << 2500 << 274;
    QTest::newRow("2 m/s, 4.05 s") << 2.0 << 4050 << 259;
    QTest::newRow("4.5 m/s, none") << 4.5 << 0 << 133;
    QTest::newRow("4.5 m/s, 1 s") << 4.5 << 1000 << 123;
    QTest::newRow("4.5 m/s, 2.5 s") << 4.5 << 2500 << 108;
    QTest::newRow("4.5 m/s, 4.05 s") << 4.5 << 4050 << 92;
    QTest::newRow("7 m/s, none") << 7.0 << 0 << 85;
    QTest::newRow("7 m/s, 1 s") << 7.0 << 1000 << 75;
    QTest::newRow("7 m/s, 2.5 s") << 7.0 << 2500 << 60;
    QTest::newRow("7 m/s, 4.05 s") << 7.0 << 4050 << 45;
}

void TestRateController::aBorderIsMetByTheLookAheadTime()
{
    QFETCH(double, speed);
    QFETCH(int, lookAheadMs);
    QFETCH(int, lastStepBefore);
    QVERIFY(bench->loadZones({{-100, 0, 50}, {0, 100, 80}}).isOk());
    bench->set(1, lookAheadMs, false, false);
    // A hair further back, so that rounding cannot decide whether a step ends on the border.
    bench->place({-60.001, 10.0}, 90.0, speed);
    bench->simulation.run(0.1 * lastStepBefore + 0.02);
    QCOMPARE(command().prescribed, 50.0);
    QCOMPARE(command().commanded, 50.0);
    bench->simulation.run(0.2);
    QCOMPARE(command().commanded, 80.0);
    QVERIFY(command().source == CommandSource::Prescription);
}

void TestRateController::backwardsItLooksBackwards()
{
    QVERIFY(bench->loadZones({{-100, 0, 50}, {0, 100, 80}}).isOk());
    bench->set(1, 2000, false, false);
    bench->place({9.0, 10.0}, 90.0, -4.0);
    bench->simulation.run(0.2);
    QCOMPARE(command().commanded, 80.0);
    bench->simulation.run(0.1);
    QCOMPARE(command().commanded, 50.0);
}

void TestRateController::inATurnItLooksStraightOn()
{
    QVERIFY(bench->loadZones({{-100, 0, 50}, {0, 100, 80}}).isOk());
    bench->set(1, 3000, false, false);
    bench->place({-10.0, 0.0}, 0.0, 2.0);
    QVERIFY(bench->simulation.vehicle()->steer(1.0 / 20.0));
    // On a circle of 20 m about (10, 0), 0.2 m a step: 10 - 20 cos(a) + 6 sin(a) reaches 0 with a = 0.7796, after 7.796
    // s.
    bench->simulation.run(7.7);
    QCOMPARE(command().commanded, 50.0);
    bench->simulation.run(0.1);
    QCOMPARE(command().commanded, 80.0);
}

void TestRateController::theAntennaDoesNotMoveTheBorder()
{
    MachineSize size;
    size.antennaOffset = 5.0;
    size.acceleration = 1e6;
    bench->simulation.vehicle()->setSize(size);
    QVERIFY(bench->loadZones({{-100, 0, 50}, {0, 100, 80}}).isOk());
    bench->set(1, 0, false, false);
    bench->place({-1.05, 10.0}, 90.0, 1.0);
    bench->simulation.run(1.0);
    QCOMPARE(command().commanded, 50.0);
    bench->simulation.run(0.1);
    QCOMPARE(command().commanded, 80.0);
}

void TestRateController::become(CommandSource source)
{
    const bool isShut = source == CommandSource::ZeroShutoff;
    Vehicle *vehicle = bench->simulation.vehicle();
    if (source == CommandSource::NotControlled) {
        for (const LoadReport &map : bench->backend.maps())
            QVERIFY(bench->backend.unload(map.group));
    } else if (bench->backend.maps().isEmpty()) {
        QVERIFY(bench->loadZones({{-150, -50, 0}, {-50, 50, 60}, {50, 150, 4}}).isOk());
    }
    bench->set(1, 0, isShut, true);
    vehicle->setSignal(true);
    const double x = source == CommandSource::Default ? 500.0
        : source == CommandSource::ZeroShutoff        ? -100.0
        : source == CommandSource::MinRate            ? -90.0
                                                      : 0.0;
    bench->place({x, 0.0}, 0.0, source == CommandSource::Stopped ? 0.0 : 1.0);
    bench->simulation.step();
    if (source == CommandSource::NoPosition) {
        vehicle->setSignal(false);
        bench->simulation.run(2.3);
    }
}

void TestRateController::everySourceFollowsEveryOther_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    for (int from = 0; from <= int(CommandSource::NotControlled); ++from) {
        for (int to = 0; to <= int(CommandSource::NotControlled); ++to)
            QTest::addRow("%s to %s", sourceName(CommandSource(from)), sourceName(CommandSource(to))) << from << to;
    }
}

void TestRateController::everySourceFollowsEveryOther()
{
    QFETCH(int, from);
    QFETCH(int, to);
    struct Expected {
        double prescribed;
        double commanded;
        bool isOn;
        double target;
    };
    constexpr double none = -1.0;
    const Expected table[] = {{60, 60, true, 60},   {none, 40, true, 40}, {0, 0, false, 0},   {0, 0, true, 10},
                              {none, 40, true, 40}, {60, 0, false, 0},    {none, 0, false, 0}};
    become(CommandSource(from));
    QCOMPARE(int(command().source), from);
    become(CommandSource(to));
    QCOMPARE(int(command().source), to);
    const Expected &expected = table[to];
    QCOMPARE(std::isnan(command().prescribed) ? none : command().prescribed, expected.prescribed);
    QCOMPARE(command().commanded, expected.commanded);
    QCOMPARE(command().isOn, expected.isOn);
    QCOMPARE(bench->simulation.target(1, command()), expected.target);
}

void TestRateController::aRateBelowTheLeastIsNamedSo_data()
{
    QTest::addColumn<double>("rate");
    QTest::addColumn<QByteArray>("source");
    QTest::newRow("below") << 9.0 << QByteArray("minRate");
    QTest::newRow("the least itself") << 10.0 << QByteArray("prescription");
}

void TestRateController::aRateBelowTheLeastIsNamedSo()
{
    QFETCH(double, rate);
    QVERIFY(bench->loadZones({{-100, 100, rate}}).isOk());
    bench->place({0, 0}, 0.0, 1.0);
    bench->simulation.step();
    QTEST(QByteArray(sourceName(command().source)), "source");
    QCOMPARE(command().commanded, rate);
}

void TestRateController::flagsAreTakenWhenAskedForAlone()
{
    QVERIFY(bench->loadZones({{-100, 100, 0}}).isOk());
    bench->place({0, 0}, 0.0, 1.0);
    bench->simulation.step();
    QVERIFY(command().source == CommandSource::MinRate);
    bench->set(1, 0, true, false);
    bench->simulation.step();
    QVERIFY(command().source == CommandSource::MinRate);
    bench->broker.setProperty("quillSpan", "reInit", false);
    bench->simulation.step();
    QVERIFY(command().source == CommandSource::MinRate);
    bench->broker.setProperty("quillSpan", "reInit", true);
    bench->simulation.step();
    QVERIFY(command().source == CommandSource::ZeroShutoff);
    // Loading another map is no request.
    bench->set(1, 0, false, false);
    QVERIFY(bench->load(TerminalHost::sampleField(), {QString(), QStringLiteral("SEED_KS_HA")}).isOk());
    bench->simulation.step();
    QVERIFY(command().source == CommandSource::ZeroShutoff);
}

void TestRateController::theSettingsOfAMapThatIsGoneDoNotCount()
{
    const LoadReport former = bench->load(TerminalHost::sampleField(), {QString(), QStringLiteral("SEED_KS_HA")});
    QVERIFY(bench->backend.unload(former.group));
    QVERIFY(bench->loadZones({{-100, 100, 0}}).isOk());
    bench->set(1, 0, true, true);
    bench->place({0, 0}, 0.0, 1.0);
    bench->simulation.step();
    QVERIFY(command().source == CommandSource::ZeroShutoff);
}

void TestRateController::aMasterSpreadsNoShutoffOfItsOwn()
{
    // What the dialog shows for a product counts: it has copied the master's shut-off where that was asked for.
    QVERIFY(bench->loadZones({{-100, 100, 0}}, {1, 2}).isOk());
    const QString name = bench->broker.findGroup(QStringLiteral("rxMap.*"), true, false).value(0);
    auto *group = qobject_cast<DbGroupRxMap *>(bench->broker.getGroup(name, false));
    QList<OrvikTypes::RX_SETTINGS> settings = group->getSettings();
    settings[0].followsMaster = true;
    settings[1].isMaster = true;
    settings[1].zeroRateShutoff = true;
    group->setSettings(settings);
    bench->broker.setProperty("quillSpan", "reInit", true);
    bench->place({0, 0}, 0.0, 1.0);
    bench->simulation.step();
    QVERIFY(command().source == CommandSource::MinRate);
    QVERIFY(bench->simulation.controller()->command(2).source == CommandSource::ZeroShutoff);
}

void TestRateController::defaultRatesAreTakenAtOnce()
{
    QVERIFY(bench->loadZones({{-100, 100, 60}}).isOk());
    bench->backend.loader(0)->defaultRate = 40.0;
    bench->place({500, 0}, 0.0, 1.0);
    bench->simulation.step();
    QCOMPARE(command().commanded, 40.0);
    bench->backend.loader(0)->defaultRate = 55.0;
    bench->simulation.step();
    QCOMPARE(command().commanded, 55.0);
}

void TestRateController::aPositionHoldsForTwoSeconds()
{
    QVERIFY(bench->loadZones({{-100, 0, 50}, {0, 100, 80}}).isOk());
    bench->set(1, 0, false, false);
    bench->place({-0.15, 0}, 90.0, 1.0);
    bench->simulation.step();
    bench->simulation.vehicle()->setSignal(false);
    // The last position counts, not where the machine has gone since.
    bench->simulation.run(2.0);
    QCOMPARE(command().commanded, 50.0);
    QVERIFY(command().source == CommandSource::Prescription);
    bench->simulation.run(0.1);
    QVERIFY(command().source == CommandSource::NoPosition);
    bench->simulation.vehicle()->setSignal(true);
    bench->simulation.step();
    QCOMPARE(command().commanded, 80.0);
}

void TestRateController::aMachineThatStandsAsksNothingAnew()
{
    const LoadReport report = bench->loadZones({{-100, 100, 50}}, {1, 2});
    auto *map = qobject_cast<DbGroupRxMap *>(bench->broker.getGroup(report.group, false));
    QSignalSpy asked(map, &DbGroupRxMap::queryRatesAtXYZSet);
    bench->simulation.run(1.0);
    QCOMPARE(asked.size(), 0);
    // Products with the same look-ahead share their answer.
    bench->place({0, 0}, 0.0, 1.0);
    bench->simulation.run(1.0);
    QCOMPARE(asked.size(), 10);
}

RXMAP_TEST(TestRateController, Core)
#include "tst_ratecontroller.moc"
