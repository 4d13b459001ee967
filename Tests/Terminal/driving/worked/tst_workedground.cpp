#include "activemap.h"
#include "fielddrive.h"
#include "layerwriter.h"
#include "machinebench.h"
#include "testbase.h"
#include "vehicle.h"
#include "workedground.h"

#include <QPolygonF>

/// The ground that has been worked.
class TestWorkedGround : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aStraightDriveAtOneRateIsOneStrip();
    void aNewClassAndATurnBeginStrips();
    void whatIsNotWorkedLeavesAGap();
    void aLiftedImplementLeavesNoStrip();
    void aStripHasTheColourOfWhatWasApplied();
    void aRateThatIsNearlyReachedHasItsClass();
    void theGroundOfOneFieldIsNotDrawnOverAnother();
    void changesAreToldOnce();
    void theOldestStripsMakeRoom();

private:
    ActiveMap map() { return ActiveMap::find(bench->broker, Machine::productGroupName(1)); }

    QScopedPointer<MachineBench> bench;
    QScopedPointer<WorkedGround> ground;
};

void TestWorkedGround::init()
{
    TestBase::init();
    Products products = ProductFile::standard();
    products[0].actuator = {0.0, 0.001, 0.0, 1000.0};
    bench.reset(new MachineBench(products));
    QVERIFY(bench->loadZones({{-100, 0, 50.0}, {0, 100, 80.0}}).isOk());
    bench->set(1, 0, false, false);
    // The rate is there before the ground is looked at: what a machine puts out at its start is far from any class.
    bench->place({-95, 0}, 90.0, 2.0);
    bench->simulation.run(1.0);
    ground.reset(new WorkedGround(&bench->simulation));
}

void TestWorkedGround::cleanup()
{
    ground.reset();
    bench.reset();
    TestBase::cleanup();
}

void TestWorkedGround::aStraightDriveAtOneRateIsOneStrip()
{
    bench->place({-90, 0}, 90.0, 2.0);
    bench->simulation.run(10.0);
    QCOMPARE(ground->end(), qint64(1));
    const WorkedGround::Strip &strip = ground->strip(0);
    const float corners[4][2] = {{-90.0F, 6.0F}, {-90.0F, -6.0F}, {-70.0F, -6.0F}, {-70.0F, 6.0F}};
    for (int i = 0; i < 4; ++i) {
        QVERIFY(qAbs(strip.corners[i].x - corners[i][0]) < 1e-4F);
        QVERIFY(qAbs(strip.corners[i].y - corners[i][1]) < 1e-4F);
    }
    QVERIFY(qAbs(ground->rate(0, 1) - 50.0) < 0.01);
}

void TestWorkedGround::aNewClassAndATurnBeginStrips()
{
    bench->place({-10, 0}, 90.0, 2.0);
    bench->simulation.run(10.0);
    QCOMPARE(ground->end(), qint64(2));
    bench->simulation.vehicle()->steer(0.1);
    bench->simulation.run(1.0);
    QCOMPARE(ground->end(), qint64(12));
    bench->simulation.vehicle()->steer(0.0);
    bench->simulation.run(5.0);
    QCOMPARE(ground->end(), qint64(13));
}

void TestWorkedGround::whatIsNotWorkedLeavesAGap()
{
    bench->place({-90, 0}, 90.0, 2.0);
    bench->simulation.run(5.0);
    const qint64 before = ground->end();
    bench->simulation.vehicle()->stop();
    bench->simulation.run(5.0);
    QCOMPARE(ground->end(), before);
    // A machine that is put elsewhere leaves no strip on the way there, whether it was standing before or not.
    for (const double y : {100.0, 150.0}) {
        const qint64 first = ground->end();
        bench->place({-90, y}, 90.0, 2.0);
        bench->simulation.run(5.0);
        QVERIFY(ground->end() > first);
        for (qint64 number = first; number < ground->end(); ++number) {
            for (const WorkedGround::Strip::Corner &corner : ground->strip(number).corners)
                QVERIFY(qAbs(corner.y - float(y)) < 7.0F);
        }
    }
    // A machine that turns on the spot leaves none either.
    const qint64 first = ground->end();
    bench->place(bench->simulation.vehicle()->position(), 91.0, 2.0);
    bench->simulation.run(1.0);
    QCOMPARE(ground->end(), first + 1);
}

static double areaOf(const QPolygonF &ring)
{
    double twice = 0.0;
    for (int i = 0; i < ring.size(); ++i) {
        const QPointF &a = ring.at(i);
        const QPointF &b = ring.at((i + 1) % ring.size());
        twice += a.x() * b.y() - b.x() * a.y();
    }
    return qAbs(twice) / 2.0;
}

void TestWorkedGround::aLiftedImplementLeavesNoStrip()
{
    Simulation &simulation = bench->simulation;
    const auto path = FieldDrive::plan(simulation, FieldDrive::usualOptions(simulation));
    QVERIFY2(path.isOk(), qPrintable(path.error));
    simulation.vehicle()->follow(path.value);
    simulation.vehicle()->drive(5.0);
    simulation.run(600.0);
    QVERIFY(simulation.workedArea() > 20000.0);
    double area = 0.0;
    for (qint64 number = 0; number < ground->end(); ++number) {
        QPolygonF strip;
        for (const WorkedGround::Strip::Corner &corner : ground->strip(number).corners)
            strip.append(QPointF(double(corner.x), double(corner.y)));
        area += areaOf(strip);
    }
    QVERIFY2(qAbs(area - simulation.workedArea()) < 0.001 * area,
             qPrintable(QStringLiteral("%1 %2").arg(area).arg(simulation.workedArea())));
}

void TestWorkedGround::aStripHasTheColourOfWhatWasApplied()
{
    bench->place({-10, 0}, 90.0, 2.0);
    bench->simulation.run(10.0);
    QCOMPARE(ground->color(0), map().classColor(50.0));
    QCOMPARE(ground->color(1), map().classColor(80.0));
    QVERIFY(map().classColor(50.0) != map().classColor(80.0));
    bench->machine.setActiveProduct(2);
    QVERIFY(!ground->color(1).isValid());
    bench->machine.setActiveProduct(1);
    QVERIFY(bench->backend.unload(map().groupName));
    QVERIFY(!ground->color(1).isValid());
}

void TestWorkedGround::aRateThatIsNearlyReachedHasItsClass()
{
    Products products = ProductFile::standard();
    products[0].actuator = {0.0, 1.0, 0.0, 1000.0};
    MachineBench slow(products);
    QVERIFY(slow.loadZones({{-100, 0, 80.0}, {0, 100, 50.0}}).isOk());
    slow.set(1, 0, false, false);
    WorkedGround worked(&slow.simulation);
    slow.place({-20, 0}, 90.0, 2.0);
    slow.simulation.run(20.0);
    // Ten seconds after the change the rate is still a little above 50.
    QVERIFY(slow.simulation.rates(1).applied > 50.0);
    const ActiveMap legend = ActiveMap::find(slow.broker, Machine::productGroupName(1));
    QCOMPARE(worked.color(worked.end() - 1), legend.classColor(50.0));
}

void TestWorkedGround::theGroundOfOneFieldIsNotDrawnOverAnother()
{
    LayerSketch sketch;
    sketch.fields = {{"rate_kg_ha", 1.0}};
    sketch.rows = {{squareText(38, 50, 0.01), {70.0}}};
    const QTemporaryDir folder;
    const QString far = folder.filePath(QStringLiteral("far.shp"));
    QVERIFY(sketch.write(far) && bench->load(far, {QString(), QStringLiteral("rate_kg_ha")}).isOk());
    bench->set(2, 0, false, false);
    bench->place({-50, 0}, 90.0, 2.0);
    bench->simulation.run(10.0);
    QVERIFY(ground->color(0).isValid());
    bench->machine.setActiveProduct(2);
    QVERIFY(!ground->color(0).isValid());
    bench->simulation.run(1.0);
    QVERIFY(ground->color(ground->end() - 1).isValid());
    bench->machine.setActiveProduct(1);
    QVERIFY(ground->color(0).isValid());
    QVERIFY(!ground->color(ground->end() - 1).isValid());
}

void TestWorkedGround::changesAreToldOnce()
{
    bench->place({-90, 0}, 90.0, 2.0);
    bench->simulation.run(5.0);
    QCOMPARE(ground->takeChanges(), qint64(0));
    QCOMPARE(ground->takeChanges(), ground->end());
    bench->simulation.step();
    QCOMPARE(ground->takeChanges(), ground->end() - 1);
    bench->machine.setActiveProduct(2);
    QCOMPARE(ground->takeChanges(), qint64(0));
}

void TestWorkedGround::theOldestStripsMakeRoom()
{
    bench->place({0, 0}, 0.0, 1.0);
    bench->simulation.vehicle()->steer(0.05);
    constexpr int more = 10;
    bench->simulation.run((WorkedGround::maxStrips + more) / 10.0);
    QCOMPARE(ground->end(), qint64(WorkedGround::maxStrips + more));
    QCOMPARE(ground->oldest(), qint64(more));
    QCOMPARE(WorkedGround::slot(ground->end() - 1), more - 1);
    QCOMPARE(ground->takeChanges(), ground->oldest());
    // The newest strip ends where the machine is.
    const QPointF place = bench->simulation.vehicle()->position();
    const WorkedGround::Strip &newest = ground->strip(ground->end() - 1);
    QVERIFY(qAbs((newest.corners[2].x + newest.corners[3].x) / 2.0F - float(place.x())) < 1e-3F);
    // It begins where the one before ends, with a rate of its own.
    const WorkedGround::Strip &former = ground->strip(ground->end() - 2);
    QVERIFY(qAbs(newest.corners[0].x - former.corners[3].x) < 1e-3F);
    QVERIFY(qAbs(newest.corners[1].y - former.corners[2].y) < 1e-3F);
    QVERIFY(qAbs(ground->rate(ground->end() - 1, 1) - bench->simulation.rates(1).meanApplied) < 1e-3);
}

RXMAP_TEST(TestWorkedGround, Core)
#include "tst_workedground.moc"
