#include "dbgroupgpssolution.h"
#include "simulationclock.h"
#include "testbase.h"
#include "vehicle.h"

#include <limits>

namespace {

class HandClock : public SimulationClock {
public:
    qint64 now() const override { return time; }
    qint64 time = 1000;
};

} // namespace

/// The vehicle on a clock that the test turns.
class TestVehicle : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void itStandsAtFirst();
    void itMovesNorthWithTheClock();
    void drivingAndStoppingAreSeenInTheGroup();
    void timeThatPassedBeforeDrivingDoesNotCount();
    void itTurnsAboutAtTheBorder();
    void speedsOutOfRangeAreRefused_data();
    void speedsOutOfRangeAreRefused();
    void aMovingVehicleIsNotMovedByANewArea();
    void everyMoveIsTold();

private:
    QScopedPointer<HandClock> clock;
    QScopedPointer<DbGroupGpsSolution> group;
    QScopedPointer<Vehicle> vehicle;
};

void TestVehicle::init()
{
    TestBase::init();
    clock.reset(new HandClock);
    group.reset(new DbGroupGpsSolution(QStringLiteral("mainGpsSolution")));
    vehicle.reset(new Vehicle(group.data(), clock.data()));
    vehicle->setArea(QRectF(-100, -200, 300, 400));
}

void TestVehicle::cleanup()
{
    vehicle.reset();
    group.reset();
    TestBase::cleanup();
}

void TestVehicle::itStandsAtFirst()
{
    QVERIFY(vehicle->isStopped());
    QVERIFY(group->getVehicleIsStopped());
    QCOMPARE(group->getPosition(), OrvikTypes::XYZ(50, -200, 0));
    QCOMPARE(group->getHeading(), 0.0);
    clock->time += 10000;
    vehicle->advance();
    QCOMPARE(group->getPosition(), OrvikTypes::XYZ(50, -200, 0));
}

void TestVehicle::itMovesNorthWithTheClock()
{
    QVERIFY(vehicle->drive(4.0));
    clock->time += 2500;
    vehicle->advance();
    QCOMPARE(vehicle->position(), QPointF(50, -190));
    QCOMPARE(group->getPosition(), OrvikTypes::XYZ(50, -190, 0));
}

void TestVehicle::drivingAndStoppingAreSeenInTheGroup()
{
    vehicle->drive(4.0);
    QVERIFY(!group->getVehicleIsStopped());
    QCOMPARE(group->getSpeed(), 4.0);
    vehicle->stop();
    QVERIFY(group->getVehicleIsStopped());
    QCOMPARE(group->getSpeed(), 0.0);
}

void TestVehicle::timeThatPassedBeforeDrivingDoesNotCount()
{
    clock->time += 60000;
    vehicle->drive(4.0);
    clock->time += 1000;
    vehicle->advance();
    QCOMPARE(vehicle->position(), QPointF(50, -196));
}

void TestVehicle::itTurnsAboutAtTheBorder()
{
    vehicle->drive(20.0);
    clock->time += 30000;
    vehicle->advance();
    QCOMPARE(vehicle->position(), QPointF(50, 200));
    QCOMPARE(group->getHeading(), 180.0);
    clock->time += 1000;
    vehicle->advance();
    QCOMPARE(vehicle->position(), QPointF(50, 180));
    clock->time += 60000;
    vehicle->advance();
    QCOMPARE(group->getHeading(), 0.0);
}

void TestVehicle::speedsOutOfRangeAreRefused_data()
{
    QTest::addColumn<double>("speed");
    QTest::newRow("backwards") << -1.0;
    QTest::newRow("too fast") << Vehicle::maxSpeed + 0.1;
    QTest::newRow("no number") << std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity();
}

void TestVehicle::speedsOutOfRangeAreRefused()
{
    QFETCH(double, speed);
    vehicle->drive(3.0);
    QVERIFY(!vehicle->drive(speed));
    QCOMPARE(vehicle->currentSpeed(), 3.0);
}

void TestVehicle::aMovingVehicleIsNotMovedByANewArea()
{
    vehicle->drive(1.0);
    vehicle->setArea(QRectF(1000, 1000, 10, 10));
    QCOMPARE(vehicle->position(), QPointF(50, -200));
}

void TestVehicle::everyMoveIsTold()
{
    QSignalSpy spy(vehicle.data(), &Vehicle::moved);
    vehicle->drive(1.0);
    QCOMPARE(spy.size(), 1);
    clock->time += 50;
    vehicle->advance();
    QCOMPARE(spy.size(), 2);
    vehicle->advance();
    QCOMPARE(spy.size(), 2);
}

RXMAP_TEST(TestVehicle, Core)
#include "tst_vehicle.moc"
