#include "dbgroupgpssolution.h"
#include "simulationclock.h"
#include "testbase.h"
#include "trackreader.h"
#include "vehicle.h"

#include <QTemporaryFile>

#include <cmath>
#include <limits>

namespace {

class HandClock : public SimulationClock {
public:
    qint64 now() const override { return time; }
    qint64 time = 1000;
};

} // namespace

/// The vehicle, on a clock that the test sets.
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
    void speedChangesWithinTheLimit();
    void itStopsAtTheEndOfAPath();
    void byHandItDrivesACircleAndBackwards();
    void itTurnsNoTighterThanItCan();
    void theAntennaIsWhatTheGroupShows();
    void withoutASignalThePositionStaysTheLast();
    void aTrackIsReplayedAtItsOwnSpeed();

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

void TestVehicle::speedChangesWithinTheLimit()
{
    MachineSize size;
    size.acceleration = 2.0;
    vehicle->setSize(size);
    DrivePath path(Pose{{0, 0}, 0.0});
    path.append(PathPiece{100.0, 0.0, true});
    vehicle->follow(path);
    QVERIFY(vehicle->drive(5.0));
    QVERIFY(vehicle->isStopped());
    clock->time += 2000;
    vehicle->advance();
    QCOMPARE(vehicle->currentSpeed(), 4.0);
    QCOMPARE(vehicle->position(), QPointF(0, 4));
    clock->time += 1000;
    vehicle->advance();
    QCOMPARE(vehicle->currentSpeed(), 5.0);
    QCOMPARE(vehicle->position(), QPointF(0, 8.75));
    vehicle->stop();
    clock->time += 1000;
    vehicle->advance();
    QCOMPARE(vehicle->currentSpeed(), 3.0);
}

void TestVehicle::itStopsAtTheEndOfAPath()
{
    DrivePath path(Pose{{0, 0}, 0.0});
    path.append(PathPiece{50.0, 0.0, true});
    path.append(PathPiece{10.0, 0.0, false});
    vehicle->follow(path);
    vehicle->drive(6.0);
    double before = 0.0;
    for (int step = 0; step < 1000 && !vehicle->isOver(); ++step) {
        clock->time += 100;
        vehicle->advance();
        QVERIFY(std::fabs(vehicle->currentSpeed() - before) <= 0.1 + 1e-9 || vehicle->isOver());
        QCOMPARE(vehicle->isWorking(), vehicle->position().y() < 50.0);
        before = vehicle->currentSpeed();
    }
    QVERIFY(vehicle->isOver() && vehicle->isStopped() && !vehicle->isWorking());
    QVERIFY(std::fabs(vehicle->position().y() - 60.0) < 1e-6);
}

void TestVehicle::byHandItDrivesACircleAndBackwards()
{
    QVERIFY(vehicle->steer(0.1));
    QVERIFY(vehicle->mode() == Motion::Mode::Hand);
    vehicle->drive(2.0);
    clock->time += 2000;
    vehicle->advance();
    clock->time += qRound64(1000.0 * (5.0 * std::acos(-1.0) - 2.0) / 2.0);
    vehicle->advance();
    // A quarter of a circle of 10 m to the right.
    QVERIFY(std::fabs(vehicle->position().x() - 60.0) < 0.01);
    QVERIFY(std::fabs(vehicle->position().y() + 190.0) < 0.01);
    QVERIFY(std::fabs(vehicle->heading() - 90.0) < 0.05);
    QVERIFY(vehicle->steer(0.0));
    QVERIFY(vehicle->drive(-1.0));
    clock->time += 13000;
    vehicle->advance();
    QCOMPARE(vehicle->currentSpeed(), -1.0);
    QVERIFY(vehicle->position().x() < 60.0);
    QCOMPARE(group->getSpeed(), 1.0);
    QVERIFY(!group->getVehicleIsStopped());
    QVERIFY(!vehicle->drive(-Vehicle::maxReverseSpeed - 0.1));
}

void TestVehicle::itTurnsNoTighterThanItCan()
{
    QVERIFY(!vehicle->steer(0.17));
    QVERIFY(!vehicle->steer(std::numeric_limits<double>::quiet_NaN()));
    QVERIFY(vehicle->mode() == Motion::Mode::Shuttle);
    QVERIFY(vehicle->steer(-1.0 / 6.0));
}

void TestVehicle::theAntennaIsWhatTheGroupShows()
{
    MachineSize size;
    size.antennaOffset = 3.0;
    vehicle->setSize(size);
    DrivePath path(Pose{{10, 20}, radiansOf(90.0)});
    path.append(PathPiece{50.0, 0.0, true});
    vehicle->follow(path);
    QCOMPARE(vehicle->position(), QPointF(10, 20));
    QVERIFY(std::fabs(group->getPosition().x - 13.0) < 1e-12);
}

void TestVehicle::withoutASignalThePositionStaysTheLast()
{
    vehicle->drive(4.0);
    vehicle->setSignal(false);
    clock->time += 1000;
    vehicle->advance();
    QCOMPARE(group->getPosition(), OrvikTypes::XYZ(50, -200, 0));
    QCOMPARE(group->getSpeed(), 4.0);
    vehicle->setSignal(true);
    QCOMPARE(group->getPosition(), OrvikTypes::XYZ(50, -196, 0));
}

void TestVehicle::aTrackIsReplayedAtItsOwnSpeed()
{
    QTemporaryFile file;
    QVERIFY(file.open());
    file.write("time,x,y\n5,0,0\n6,2,0\n7,,\n9,8,0\n10,8,0\n");
    file.close();
    vehicle->replay(std::make_unique<TrackReader>(file.fileName(), nullptr));
    clock->time += 500;
    vehicle->advance();
    QCOMPARE(vehicle->position(), QPointF(1, 0));
    QCOMPARE(vehicle->currentSpeed(), 2.0);
    QVERIFY(std::fabs(vehicle->heading() - 90.0) < 1e-9);
    clock->time += 2000;
    vehicle->advance();
    QVERIFY(!vehicle->hasPosition());
    vehicle->stop();
    clock->time += 60000;
    vehicle->advance();
    QVERIFY(vehicle->isStopped() && !vehicle->isOver());
    vehicle->drive(1.0);
    clock->time += 2000;
    vehicle->advance();
    QVERIFY(vehicle->hasPosition());
    QCOMPARE(vehicle->position(), QPointF(8, 0));
    clock->time += 1000;
    vehicle->advance();
    QVERIFY(vehicle->isOver() && vehicle->isStopped());
}

RXMAP_TEST(TestVehicle, Core)
#include "tst_vehicle.moc"
