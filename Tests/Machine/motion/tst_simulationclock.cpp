#include "simulationclock.h"
#include "testbase.h"

/// The clock that runs by itself.
class TestSimulationClock : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void timePassesAndNeverRunsBackwards();
};

void TestSimulationClock::timePassesAndNeverRunsBackwards()
{
    const RealClock clock;
    const qint64 start = clock.now();
    QVERIFY(start >= 0);
    qint64 latest = start;
    for (int i = 0; i < 1000; ++i) {
        const qint64 now = clock.now();
        QVERIFY(now >= latest);
        latest = now;
    }
    QTRY_VERIFY(clock.now() > start);
}

RXMAP_TEST(TestSimulationClock, None)
#include "tst_simulationclock.moc"
