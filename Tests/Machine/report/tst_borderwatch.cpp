#include "borderwatch.h"
#include "testbase.h"

#include <cmath>

namespace {

/// 50 is prescribed; 80 from the border at step 51, and 50 again from the one at `secondBorder`, at 10 steps a second
/// and 2 m/s. 80 is applied after step `begin` until step `end`. Then the implement goes up.
BorderWatch crossStrip(int secondBorder, int begin, int end)
{
    BorderWatch watch;
    watch.begin(0.0, 0.0, 50.0);
    for (int step = 1; step <= 120; ++step) {
        if (step == 51)
            watch.border(5.0, 10.0, {}, 80.0);
        if (step == secondBorder)
            watch.border(0.1 * (step - 1), 0.2 * (step - 1), {}, 50.0);
        watch.step(0.1 * step, 0.2 * step, step > begin && step <= end ? 80.0 : 50.0);
    }
    watch.end();
    return watch;
}

} // namespace

/// How early or late a rate changes.
class TestBorderWatch : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void aLagIsAsLateAsTheStepOfTheSameAmount_data();
    void aLagIsAsLateAsTheStepOfTheSameAmount();
    void neighbouringBordersShareTheWayBetweenThem();
    void whatComesAfterTheMiddleIsTheNextBorders();
    void settingOffIsNoLateness();
    void theMedianIsTheMiddle();
};

void TestBorderWatch::aLagIsAsLateAsTheStepOfTheSameAmount_data()
{
    QTest::addColumn<double>("begin");
    QTest::addColumn<double>("timeConstant");
    // A first-order lag that begins at that time is as late as a step one time constant later.
    QTest::newRow("sharp") << 0.0 << 0.0;
    QTest::newRow("early") << -1.3 << 0.0;
    QTest::newRow("lag") << 0.0 << 0.8;
    QTest::newRow("dead time and lag") << 0.6 << 0.8;
    QTest::newRow("ahead and lag") << -1.0 << 0.8;
}

void TestBorderWatch::aLagIsAsLateAsTheStepOfTheSameAmount()
{
    QFETCH(double, begin);
    QFETCH(double, timeConstant);
    constexpr double speed = 3.0;
    const double border = 20.03;
    // The integral of the rate from 100 to 60 since then.
    const auto amount = [&](double time) {
        const double late = std::max(0.0, time - border - begin);
        const double lag = timeConstant > 0.0 ? timeConstant * (1.0 - std::exp(-late / timeConstant)) : 0.0;
        return 100.0 * time - 40.0 * (late - lag);
    };
    BorderWatch watch;
    watch.begin(0.0, 0.0, 100.0);
    for (int step = 1; step <= 400; ++step) {
        const double time = 0.1 * step;
        if (time > border && time - 0.1 <= border)
            watch.border(border, speed * border, {7, 8}, 60.0);
        watch.step(time, speed * time, (amount(time) - amount(time - 0.1)) / 0.1);
    }
    watch.end();
    QCOMPARE(watch.changes().size(), size_t(1));
    const BorderWatch::Change &change = watch.changes().front();
    QCOMPARE(change.place, QPointF(7, 8));
    QCOMPARE(change.before, 100.0);
    QCOMPARE(change.after, 60.0);
    const double expected = begin + timeConstant;
    QVERIFY2(std::fabs(watch.median().seconds - expected) < 1e-4, qPrintable(QString::number(watch.median().seconds)));
    QVERIFY(std::fabs(watch.median().metres - speed * expected) < 3e-4);
}

void TestBorderWatch::neighbouringBordersShareTheWayBetweenThem()
{
    // 80 from 5.5 s, 50 again from 9.5 s: each half a second late.
    const BorderWatch watch = crossStrip(91, 55, 95);
    QCOMPARE(watch.changes().size(), size_t(2));
    for (const BorderWatch::Change &change : watch.changes()) {
        QVERIFY2(std::fabs(change.late.seconds - 0.5) < 1e-9, qPrintable(QString::number(change.late.seconds)));
        QVERIFY(std::fabs(change.late.metres - 1.0) < 1e-9);
    }
}

void TestBorderWatch::whatComesAfterTheMiddleIsTheNextBorders()
{
    // 80 from 5 to 7 s, applied from 6.4 to 8.4 s. Up to the middle at 6 s none of it was applied, so the first change
    // is as late as can be told, and the second must make up for what the first one lacks.
    const BorderWatch watch = crossStrip(71, 64, 84);
    QCOMPARE(watch.changes().size(), size_t(2));
    for (const BorderWatch::Change &change : watch.changes())
        QVERIFY2(std::fabs(change.late.seconds - 1.0) < 1e-9, qPrintable(QString::number(change.late.seconds)));
}

void TestBorderWatch::settingOffIsNoLateness()
{
    // Nothing for the first second, then 80; from 5 s on 84, applied half a second late.
    BorderWatch watch;
    watch.begin(0.0, 0.0, 80.0);
    for (int step = 1; step <= 200; ++step) {
        if (step == 51)
            watch.border(5.0, 15.0, {}, 84.0);
        watch.step(0.1 * step, 0.3 * step, step <= 10 ? 0.0 : step <= 55 ? 80.0 : 84.0);
    }
    watch.end();
    QCOMPARE(watch.changes().size(), size_t(1));
    QVERIFY2(std::fabs(watch.median().seconds - 0.5) < 1e-9, qPrintable(QString::number(watch.median().seconds)));
    QVERIFY(std::fabs(watch.median().metres - 1.5) < 1e-9);
}

void TestBorderWatch::theMedianIsTheMiddle()
{
    BorderWatch watch;
    QCOMPARE(watch.median().seconds, 0.0);
    for (const double late : {0.4, 0.1, 0.9, 0.3}) {
        watch.begin(0.0, 0.0, 10.0);
        watch.step(2.0, 2.0, 10.0);
        watch.border(2.0, 2.0, {}, 20.0);
        watch.step(2.0 + late, 2.0 + late, 10.0);
        watch.step(4.0, 4.0, 20.0);
        watch.end();
    }
    QVERIFY(std::fabs(watch.median().seconds - 0.35) < 1e-12);
}

RXMAP_TEST(TestBorderWatch, None)
#include "tst_borderwatch.moc"
