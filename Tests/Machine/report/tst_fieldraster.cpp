#include "drivepath.h"
#include "fieldraster.h"
#include "machinebench.h"
#include "testbase.h"
#include "vehicle.h"

#include <cmath>

/// The ground of a drive, cell by cell.
class TestFieldRaster : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void aCellGetsWhatPassesOverItsMiddle_data();
    void aCellGetsWhatPassesOverItsMiddle();
    void whatIsPrescribedIsLookedUp();

private:
    static Products atOnce()
    {
        Products products = ProductFile::standard();
        products[0].actuator = {0.0, 0.0, 0.0, 1000.0};
        return products;
    }
};

void TestFieldRaster::aCellGetsWhatPassesOverItsMiddle_data()
{
    QTest::addColumn<double>("degrees");
    QTest::addColumn<bool>("isDrivenTwice");
    QTest::newRow("north") << 0.0 << false;
    QTest::newRow("east") << 90.0 << false;
    QTest::newRow("aslant") << 33.0 << false;
    QTest::newRow("there and there again") << 251.0 << true;
}

void TestFieldRaster::aCellGetsWhatPassesOverItsMiddle()
{
    QFETCH(double, degrees);
    QFETCH(bool, isDrivenTwice);
    MachineBench bench(atOnce());
    QVERIFY(bench.loadZones({{-200, 200, 50}}).isOk());
    const Pose start{{1.3, -2.7}, radiansOf(degrees)};
    bench.place(start.place, degrees, 3.0);
    bench.simulation.step();
    const Pose first = bench.simulation.vehicle()->pose();
    FieldRaster raster(&bench.simulation, QRectF(-60, -50, 120, 100));
    bench.simulation.run(10.05);
    const Pose last = bench.simulation.vehicle()->pose();
    if (isDrivenTwice) {
        bench.place(first.place, degrees, 3.0);
        bench.simulation.run(10.05);
    }
    raster.end();
    QCOMPARE(raster.size(), QSize(400, 334));
    const double way = QPointF::dotProduct(last.place - first.place, first.forward());
    int driven = 0;
    for (int row = 0; row < raster.size().height(); ++row) {
        for (int column = 0; column < raster.size().width(); ++column) {
            const QPointF middle(-60 + (column + 0.5) * raster.cellSize(),
                                 -50 + (raster.size().height() - row - 0.5) * raster.cellSize());
            const double along = QPointF::dotProduct(middle - first.place, first.forward());
            const double across = QPointF::dotProduct(middle - first.place, first.rightward());
            const bool isOn = along > 0.0 && along < way && std::fabs(across) < 6.0;
            const bool isNear =
                std::fabs(along) < 0.01 || std::fabs(along - way) < 0.31 || std::fabs(std::fabs(across) - 6.0) < 0.01;
            driven += isOn ? 1 : 0;
            const float applied = raster.applied(1, column, row);
            if (!isNear)
                QCOMPARE(std::isnan(applied) ? 0.0F : applied, isOn ? (isDrivenTwice ? 100.0F : 50.0F) : 0.0F);
        }
    }
    QVERIFY(driven > 3000);
}

void TestFieldRaster::whatIsPrescribedIsLookedUp()
{
    MachineBench bench;
    QVERIFY(bench.loadZones({{-100, 0, 50}, {0, 100, 80}}).isOk());
    FieldRaster raster(&bench.simulation, QRectF(-150, -10, 300, 20));
    raster.end();
    QCOMPARE(raster.size(), QSize(400, 27));
    // The sides lie 50 m inside the picture, whose middle is at 200 cells.
    QVERIFY(std::isnan(raster.prescribed(1, 60, 5)));
    QCOMPARE(raster.prescribed(1, 70, 5), 50.0F);
    QCOMPARE(raster.prescribed(1, 199, 5), 50.0F);
    QCOMPARE(raster.prescribed(1, 200, 5), 80.0F);
    QVERIFY(std::isnan(raster.prescribed(1, 340, 5)));
    QVERIFY(std::isnan(raster.prescribed(2, 200, 5)));
    // Nothing was driven.
    QVERIFY(std::isnan(raster.applied(1, 200, 5)));
}

RXMAP_TEST(TestFieldRaster, Core)
#include "tst_fieldraster.moc"
