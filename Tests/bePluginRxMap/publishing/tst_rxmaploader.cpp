#include "testbase.h"

#include "bePluginRxMap/rxmaploader.h"

class RxMapLoaderTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void keepsTheDefaultRateThatItWasMadeWith();
    void announcesADefaultRateThatComesIntoUse();
    void leavesTheStoredRateToTheCaller();
};

void RxMapLoaderTest::keepsTheDefaultRateThatItWasMadeWith()
{
    QCOMPARE(RxMapLoader(12.5).defaultRate, 12.5);
    QCOMPARE(RxMapLoader().defaultRate, 0.0);
}

void RxMapLoaderTest::announcesADefaultRateThatComesIntoUse()
{
    RxMapLoader loader;
    QSignalSpy taken(&loader, &RxMapLoader::defaultRateTaken);
    loader.defaultRateChanged(25.0);
    loader.defaultRateChanged(25.0);
    QCOMPARE(taken.count(), 2);
    QCOMPARE(taken.first().first().toDouble(), 25.0);
}

void RxMapLoaderTest::leavesTheStoredRateToTheCaller()
{
    RxMapLoader loader(3.0);
    loader.defaultRateChanged(4.0);
    QCOMPARE(loader.defaultRate, 3.0);
}

RXMAP_TEST(RxMapLoaderTest, Core)
#include "tst_rxmaploader.moc"
