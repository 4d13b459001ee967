#include "machinebench.h"
#include "productadoption.h"
#include "testbase.h"
#include "vehicle.h"

#include <QFile>
#include <QLineF>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>

/// Simulated time.
class TestSimulation : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void timePassesInTenthsOfSeconds();
    void theWallsTimePassesByItsFactor();
    void whatCannotBeDrivenInTimeIsNotMadeUpFor();
    void aStandingMachineIsSeldomLookedAt();
    void factorsOutOfRangeAreRefused();
    void limitsFollowTheMap();
};

namespace {

class HandClock : public SimulationClock {
public:
    qint64 now() const override { return time; }
    qint64 time = 5000;
};

} // namespace

void TestSimulation::timePassesInTenthsOfSeconds()
{
    MachineBench bench;
    Simulation &simulation = bench.simulation;
    QSignalSpy steps(&simulation, &Simulation::stepped);
    simulation.vehicle()->drive(2.0);
    simulation.run(1.25);
    QCOMPARE(steps.size(), 12);
    QCOMPARE(simulation.vehicle()->position().y(), 2.4);
    simulation.run(0.05);
    QCOMPARE(simulation.seconds(), 1.3);
}

void TestSimulation::theWallsTimePassesByItsFactor()
{
    MachineBench bench;
    HandClock wall;
    Simulation simulation(&bench.machine, &wall);
    wall.time += 300;
    simulation.catchUp();
    QCOMPARE(simulation.seconds(), 0.3);
    QVERIFY(simulation.setTimeFactor(50.0));
    wall.time += 100;
    simulation.catchUp();
    QCOMPARE(simulation.seconds(), 5.3);
    // Time that has not been simulated yet when the factor changes is dropped.
    wall.time += 1000;
    QVERIFY(simulation.setTimeFactor(0.0));
    wall.time += 1000;
    simulation.catchUp();
    QCOMPARE(simulation.seconds(), 5.3);
}

void TestSimulation::whatCannotBeDrivenInTimeIsNotMadeUpFor()
{
    MachineBench bench;
    HandClock wall;
    Simulation simulation(&bench.machine, &wall);
    simulation.setTimeFactor(50.0);
    // Each step takes 5 ms of real time, in which 2.5 further steps would have become due.
    connect(&simulation, &Simulation::stepped, [&wall] { wall.time += 5; });
    wall.time += 2000;
    simulation.catchUp();
    QCOMPARE(simulation.seconds(), 1.1);
    QCOMPARE(wall.time, qint64(7055));
    simulation.catchUp();
    QCOMPARE(simulation.seconds(), 2.2);
}

void TestSimulation::aStandingMachineIsSeldomLookedAt()
{
    MachineBench bench;
    HandClock wall;
    Simulation simulation(&bench.machine, &wall);
    const auto *timer = simulation.findChild<QTimer *>();
    const auto pass = [&](int milliseconds) {
        wall.time += milliseconds;
        simulation.catchUp();
    };
    simulation.vehicle()->drive(10.0);
    for (int i = 0; i < 200; ++i)
        pass(100);
    QCOMPARE(timer->interval(), 50);
    simulation.vehicle()->stop();
    for (int i = 0; i < 99; ++i)
        pass(100);
    QCOMPARE(timer->interval(), 50);
    pass(100);
    QCOMPARE(timer->interval(), 1000);
    const double seconds = simulation.seconds();
    pass(1000);
    QCOMPARE(simulation.seconds(), seconds + 1.0);
    // It starts at once, and only counts time from now on.
    wall.time += 900;
    const QPointF stood = simulation.vehicle()->position();
    simulation.vehicle()->drive(10.0);
    QCOMPARE(timer->interval(), 50);
    pass(100);
    QCOMPARE(QLineF(stood, simulation.vehicle()->position()).length(), 1.0);
}

void TestSimulation::factorsOutOfRangeAreRefused()
{
    MachineBench bench;
    Simulation &simulation = bench.simulation;
    for (const double factor : {-0.1, 50.1, qQNaN()})
        QVERIFY(!simulation.setTimeFactor(factor));
    QCOMPARE(simulation.timeFactor(), 1.0);
}

void TestSimulation::limitsFollowTheMap()
{
    MachineBench bench;
    ProductAdoption adoption(&bench.machine);
    const QTemporaryDir folder;
    const QSignalSpy changes(&bench.machine, &Machine::productsChanged);
    for (const double rate : {80.0, 90000.0}) {
        LoadRequest request;
        request.path = folder.filePath(QStringLiteral("%1.geojson").arg(rate));
        QFile map(request.path);
        QVERIFY(map.open(QIODevice::WriteOnly));
        map.write(QStringLiteral(R"({"type": "FeatureCollection", "features": [{"type": "Feature",
            "properties": {"SEED_K_HA": %1}, "geometry": {"type": "Polygon", "coordinates":
            [[[10, 50], [10.01, 50], [10.01, 50.01], [10, 50.01], [10, 50]]]}}]})")
                      .arg(rate)
                      .toUtf8());
        map.close();
        adoption.adoptFromNextFile();
        adoption.fillRequestForPreview(request);
        QVERIFY(bench.backend.loadAndWait(request).isOk());
        bench.place(QPointF(), 0.0, 1.0);
        bench.simulation.run(5.0);
        QCOMPARE(bench.simulation.rates(1).command.commanded, rate);
        QVERIFY(qAbs(bench.simulation.rates(1).applied - rate) < 0.1 * rate);
    }
    // The product has the same name as before.
    QVERIFY(changes.isEmpty());
}

RXMAP_TEST(TestSimulation, Core)
#include "tst_simulation.moc"
