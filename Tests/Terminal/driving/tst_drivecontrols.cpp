#include "drivecontrols.h"
#include "machinebench.h"
#include "testbase.h"
#include "trackreader.h"
#include "vehicle.h"

#include <QTemporaryFile>

/// What the operator does in order to drive.
class TestDriveControls : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void startDrivesTheLoadedFieldInSwaths();
    void startGoesOnWhereStopHeld();
    void aWayThatIsAtItsEndBeginsAnew();
    void whyThereIsNoWayIsTold();
    void aFieldThatIsTooNarrowIsToldInTheOperatorsUnits_data();
    void aFieldThatIsTooNarrowIsToldInTheOperatorsUnits();
    void speedGoesByWholeNumbersOfTheOperatorsUnit_data();
    void speedGoesByWholeNumbersOfTheOperatorsUnit();
    void aScriptsSpeedAndPaceAreTakenOver();
    void theSetSpeedHoldsAfterATrack_data();
    void theSetSpeedHoldsAfterATrack();
    void byHandTheMachineKeepsTheSpeedOfTheTrack_data();
    void byHandTheMachineKeepsTheSpeedOfTheTrack();
    void paceGoesByItsSteps();
    void aPauseKeepsThePace();
    void startAndStopEndThePauseOfTheOperatorAlone();
    void pedalsDriveByHandAlone();
    void theWheelTurnsAsFarAsTheMachineCan();
    void theSignalIsLostAndFound();

private:
    Vehicle &vehicle() { return *bench->simulation.vehicle(); }
    void load() { QVERIFY(bench->loadZones({{-100, 0, 50.0}, {0, 100, 80.0}}).isOk()); }

    QScopedPointer<MachineBench> bench;
    QScopedPointer<DriveControls> controls;
};

void TestDriveControls::init()
{
    TestBase::init();
    bench.reset(new MachineBench);
    controls.reset(new DriveControls(&bench->simulation));
}

void TestDriveControls::cleanup()
{
    controls.reset();
    bench.reset();
    TestBase::cleanup();
}

void TestDriveControls::startDrivesTheLoadedFieldInSwaths()
{
    load();
    controls->start();
    QVERIFY(controls->isUnderWay());
    bench->simulation.run(10.0);
    QCOMPARE(vehicle().mode(), Motion::Mode::Swaths);
    QCOMPARE(vehicle().currentSpeed(), 3.0);
    QVERIFY(vehicle().isWorking());
}

void TestDriveControls::startGoesOnWhereStopHeld()
{
    load();
    controls->start();
    controls->faster();
    bench->simulation.run(10.0);
    controls->stop();
    bench->simulation.run(1.0);
    QVERIFY(vehicle().isStopped() && !controls->isUnderWay());
    const QPointF held = vehicle().position();
    controls->start();
    QCOMPARE(vehicle().position(), held);
    bench->simulation.run(1.0);
    QCOMPARE(vehicle().currentSpeed(), 11.0 / 3.6);
}

void TestDriveControls::aWayThatIsAtItsEndBeginsAnew()
{
    load();
    controls->start();
    const QPointF begin = vehicle().position();
    for (int minutes = 0; minutes < 600 && !vehicle().isOver(); ++minutes)
        bench->simulation.run(60.0);
    QVERIFY(!controls->isUnderWay());
    QCOMPARE(controls->message(), QStringLiteral("The end of the way is reached."));
    controls->start();
    QVERIFY(controls->isUnderWay());
    QCOMPARE(vehicle().position(), begin);
    QCOMPARE(controls->message(), QString());
}

void TestDriveControls::whyThereIsNoWayIsTold()
{
    controls->start();
    QVERIFY(!controls->isUnderWay());
    QCOMPARE(controls->message(), QStringLiteral("No prescription is loaded that could be driven."));
    load();
    QCOMPARE(controls->message(), QString());
    MachineSize size = vehicle().size();
    size.minRadius = 1e6;
    vehicle().setSize(size);
    controls->takeSwaths();
    QCOMPARE(controls->message(), QStringLiteral("The field cannot be driven in swaths."));
}

void TestDriveControls::aFieldThatIsTooNarrowIsToldInTheOperatorsUnits_data()
{
    QTest::addColumn<int>("units");
    QTest::addColumn<QString>("message");
    QTest::newRow("metric") << int(UnitSystem::Metric)
                            << "The field is 10.0 m wide, narrower than the machine (199.0 m).";
    QTest::newRow("turf") << int(UnitSystem::Turf)
                          << "The field is 32.8 ft wide, narrower than the machine (652.9 ft).";
}

void TestDriveControls::aFieldThatIsTooNarrowIsToldInTheOperatorsUnits()
{
    QFETCH(int, units);
    controls.reset();
    bench.reset(new MachineBench(ProductFile::standard(), UnitSystem(units)));
    controls.reset(new DriveControls(&bench->simulation));
    MachineSize size = vehicle().size();
    size.width = 199.0;
    vehicle().setSize(size);
    QVERIFY(bench->loadZones({{-5, 5, 50.0}}).isOk());
    controls->takeSwaths();
    QTEST(controls->message(), "message");
}

void TestDriveControls::speedGoesByWholeNumbersOfTheOperatorsUnit_data()
{
    QTest::addColumn<int>("units");
    QTest::addColumn<int>("steps");
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("metresPerSecond");
    const auto row = [](const char *name, UnitSystem units, int steps, const char *text, double speed) {
        QTest::newRow(name) << int(units) << steps << text << speed;
    };
    row("metric", UnitSystem::Metric, 0, "10.8 km/h", 3.0);
    row("metric, faster", UnitSystem::Metric, 1, "11.0 km/h", 11.0 / 3.6);
    row("metric, slower", UnitSystem::Metric, -2, "9.0 km/h", 2.5);
    row("metric, slowest", UnitSystem::Metric, -99, "1.0 km/h", 1.0 / 3.6);
    row("metric, fastest", UnitSystem::Metric, 99, "40.0 km/h", 40.0 / 3.6);
    // A mile is 1609.344 m.
    row("us", UnitSystem::Us, 0, "6.7 mph", 3.0);
    row("us, faster", UnitSystem::Us, 2, "8.0 mph", 8.0 * 1609.344 / 3600.0);
    row("turf, fastest", UnitSystem::Turf, 99, "25.0 mph", 25.0 * 1609.344 / 3600.0);
}

void TestDriveControls::speedGoesByWholeNumbersOfTheOperatorsUnit()
{
    QFETCH(int, units);
    QFETCH(int, steps);
    DataBroker broker;
    PrescriptionBackend backend(&broker);
    Machine machine(&broker, &backend, ProductFile::standard(), UnitSystem(units));
    Simulation simulation(&machine, nullptr);
    DriveControls driving(&simulation);
    for (int i = 0; i < qAbs(steps); ++i)
        steps > 0 ? driving.faster() : driving.slower();
    QTEST(driving.speedText(), "text");
    QTEST(driving.speed(), "metresPerSecond");
}

void TestDriveControls::aScriptsSpeedAndPaceAreTakenOver()
{
    QSignalSpy told(controls.data(), &DriveControls::changed);
    vehicle().drive(5.0);
    bench->simulation.setTimeFactor(7.0);
    QVERIFY(told.size() >= 2);
    QCOMPARE(controls->speed(), 5.0);
    QCOMPARE(controls->pace(), 7.0);
    controls->stop();
    QCOMPARE(controls->speed(), 5.0);
}

void TestDriveControls::theSetSpeedHoldsAfterATrack_data()
{
    QTest::addColumn<double>("seconds");
    QTest::addColumn<bool>("waits");
    QTest::addColumn<bool>("isByStart");
    QTest::addColumn<double>("wanted");
    constexpr double set = 13.0 / 3.6;
    QTest::newRow("swaths on the track") << 1.0 << false << false << set;
    QTest::newRow("swaths while the track waits") << 1.0 << true << false << 0.0;
    QTest::newRow("swaths at the track's end") << 9.0 << false << false << set;
    QTest::newRow("start at the track's end") << 9.0 << false << true << set;
}

void TestDriveControls::theSetSpeedHoldsAfterATrack()
{
    QFETCH(double, seconds);
    QFETCH(bool, waits);
    QFETCH(bool, isByStart);
    QTemporaryFile track;
    QVERIFY(track.open() && track.write("time,x,y\n0,0,0\n2,4,0\n4,8,0\n") > 0);
    track.close();
    load();
    controls->start();
    for (int i = 0; i < 3; ++i)
        controls->faster();
    QCOMPARE(controls->speedText(), QStringLiteral("13.0 km/h"));
    vehicle().replay(std::make_unique<TrackReader>(track.fileName(), nullptr));
    bench->simulation.run(seconds);
    QCOMPARE(vehicle().isOver(), seconds > 4.0);
    if (waits)
        controls->stop();
    isByStart ? controls->start() : controls->takeSwaths();
    QCOMPARE(vehicle().mode(), Motion::Mode::Swaths);
    QTEST(vehicle().wantedSpeed(), "wanted");
    QCOMPARE(controls->speedText(), QStringLiteral("13.0 km/h"));
}

void TestDriveControls::byHandTheMachineKeepsTheSpeedOfTheTrack_data()
{
    QTest::addColumn<double>("trackTime");
    QTest::addColumn<double>("seconds");
    QTest::addColumn<bool>("waits");
    QTest::addColumn<double>("speed");
    QTest::addColumn<QString>("afterPlus");
    QTest::newRow("on the way") << 4.0 << 1.0 << false << 5.0 << "19.0 km/h";
    QTest::newRow("while it waits") << 4.0 << 1.0 << true << 0.0 << "11.0 km/h";
    QTest::newRow("at its end") << 4.0 << 9.0 << false << 0.0 << "11.0 km/h";
    // Slower than the controls can set.
    QTest::newRow("hardly on the way") << 200.0 << 1.0 << false << 0.1 << "11.0 km/h";
}

void TestDriveControls::byHandTheMachineKeepsTheSpeedOfTheTrack()
{
    QFETCH(double, trackTime);
    QFETCH(double, seconds);
    QFETCH(bool, waits);
    QFETCH(double, speed);
    QTemporaryFile track;
    QVERIFY(track.open() && track.write("time,x,y\n0,0,0\n" + QByteArray::number(trackTime) + ",20,0\n") > 0);
    track.close();
    vehicle().replay(std::make_unique<TrackReader>(track.fileName(), nullptr));
    bench->simulation.run(seconds);
    if (waits)
        controls->stop();
    controls->takeHand();
    bench->simulation.run(5.0);
    QCOMPARE(vehicle().currentSpeed(), speed);
    controls->faster();
    QTEST(controls->speedText(), "afterPlus");
    QCOMPARE(vehicle().wantedSpeed(), speed > 0.0 ? controls->speed() : 0.0);
}

void TestDriveControls::paceGoesByItsSteps()
{
    QList<double> up{controls->pace()};
    for (int i = 0; i < 6; ++i) {
        controls->paceUp();
        up.append(bench->simulation.timeFactor());
    }
    QCOMPARE(up, (QList<double>{1.0, 2.0, 5.0, 10.0, 20.0, 50.0, 50.0}));
    bench->simulation.setTimeFactor(7.0);
    controls->paceDown();
    QCOMPARE(controls->pace(), 5.0);
    bench->simulation.setTimeFactor(0.5);
    controls->paceDown();
    QCOMPARE(controls->pace(), 1.0);
}

void TestDriveControls::aPauseKeepsThePace()
{
    bench->simulation.setTimeFactor(10.0);
    controls->setPaused(true);
    QCOMPARE(bench->simulation.timeFactor(), 0.0);
    QVERIFY(controls->isPaused());
    controls->paceUp();
    QCOMPARE(bench->simulation.timeFactor(), 0.0);
    QCOMPARE(controls->pace(), 20.0);
    controls->setPaused(false);
    QCOMPARE(bench->simulation.timeFactor(), 20.0);
}

void TestDriveControls::startAndStopEndThePauseOfTheOperatorAlone()
{
    load();
    bench->simulation.setTimeFactor(5.0);
    controls->setPaused(true);
    controls->start();
    QCOMPARE(bench->simulation.timeFactor(), 5.0);
    controls->setPaused(true);
    controls->stop();
    QCOMPARE(bench->simulation.timeFactor(), 5.0);
    bench->simulation.setTimeFactor(0.0);
    controls->start();
    controls->stop();
    QCOMPARE(bench->simulation.timeFactor(), 0.0);
}

void TestDriveControls::pedalsDriveByHandAlone()
{
    MachineSize size = vehicle().size();
    size.acceleration = 1.0;
    vehicle().setSize(size);
    const auto speedAfter = [this](double seconds) {
        bench->simulation.run(seconds);
        return vehicle().currentSpeed();
    };
    controls->pressThrottle(true);
    QCOMPARE(speedAfter(2.0), 0.0);
    controls->takeHand();
    QVERIFY(controls->isByHand());
    controls->pressThrottle(true);
    QVERIFY(qAbs(speedAfter(2.0) - 2.0) < 1e-9);
    controls->pressThrottle(false);
    QVERIFY(qAbs(speedAfter(2.0) - 2.0) < 1e-9);
    controls->pressThrottle(true);
    QCOMPARE(speedAfter(5.0), 3.0);
    controls->pressBrake(true);
    QVERIFY(qAbs(speedAfter(1.0) - 2.0) < 1e-9);
    // Held, it stops; pressed again, it drives backwards.
    QCOMPARE(speedAfter(5.0), 0.0);
    controls->pressBrake(false);
    controls->pressBrake(true);
    QVERIFY(qAbs(speedAfter(1.0) + 1.0) < 1e-9);
    controls->pressBrake(false);
    QVERIFY(qAbs(speedAfter(1.0) + 1.0) < 1e-9);
}

void TestDriveControls::theWheelTurnsAsFarAsTheMachineCan()
{
    controls->takeHand();
    controls->turnWheel(1.0);
    vehicle().drive(3.0);
    // A quarter of the tightest circle, 6 m to the right.
    bench->simulation.run(M_PI * 3.0 / 3.0);
    QVERIFY2(qAbs(vehicle().heading() - 90.0) < 3.0, qPrintable(QString::number(vehicle().heading())));
    controls->turnWheel(-5.0);
    bench->simulation.run(2.0 * M_PI);
    QVERIFY2(qAbs(vehicle().heading() - 270.0) < 6.0, qPrintable(QString::number(vehicle().heading())));
}

void TestDriveControls::theSignalIsLostAndFound()
{
    QVERIFY(controls->hasSignal());
    controls->setSignal(false);
    QVERIFY(!vehicle().hasSignal() && !controls->hasSignal());
    controls->setSignal(true);
    QVERIFY(vehicle().hasSignal());
}

RXMAP_TEST(TestDriveControls, Core)
#include "tst_drivecontrols.moc"
