#include "loadcontrol.h"
#include "testbase.h"

class TestLoadControl : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void aLoadThatNobodyWatchesGoesOn();
    void itIsCancelledFromTheMomentThatTheFlagIsSet();
    void progressIsPassedOn();
};

void TestLoadControl::aLoadThatNobodyWatchesGoesOn()
{
    const LoadControl control;
    QVERIFY(!control.isCancelled());
    control.report(0.5); // Nobody is listening, which does no harm.
}

void TestLoadControl::itIsCancelledFromTheMomentThatTheFlagIsSet()
{
    std::atomic<bool> flag{false};
    LoadControl control;
    control.cancelled = &flag;
    QVERIFY(!control.isCancelled());
    flag = true;
    QVERIFY(control.isCancelled());
}

void TestLoadControl::progressIsPassedOn()
{
    QList<double> heard;
    LoadControl control;
    control.progress = [&heard](double fraction) { heard.append(fraction); };
    control.report(0.25);
    control.report(1.0);
    QCOMPARE(heard, (QList<double>{0.25, 1.0}));
}

RXMAP_TEST(TestLoadControl, None)
#include "tst_loadcontrol.moc"
