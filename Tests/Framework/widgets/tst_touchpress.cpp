#include "testbase.h"
#include "touchpress.h"

#include <QPointer>
#include <QScopedPointer>
#include <QSignalSpy>

#include <limits>

namespace {

/// Runs on time that the test lets pass.
class TestTimer : public HoldTimer {
public:
    void start(int milliseconds) override { left = milliseconds; }
    void stop() override { left = never; }

    void pass(int milliseconds)
    {
        const QPointer<TestTimer> self(this);
        while (self && left <= milliseconds) {
            milliseconds -= left;
            left = never;
            Q_EMIT timeout();
        }
        if (self && left != never)
            left -= milliseconds;
    }

private:
    static constexpr int never = std::numeric_limits<int>::max();
    int left = never;
};

} // namespace

class tst_TouchPress : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aTouchAndLiftIsARelease();
    void aLiftOutsideIsCancelled();
    void aFingerThatComesBackCounts();
    void looksPressedOnlyWhileTheFingerIsOnIt();
    void aHoldIsALongTouchAndNoRelease();
    void aHoldStartsAnewWhenTheFingerComesBack();
    void withoutAHoldALongTouchIsARelease();
    void repeatsWhileHeld();
    void aCancelledTouchReportsNothing();
    void mayBeDeletedByASlot_data();
    void mayBeDeletedByASlot();
    void goesByTheTimeThatPasses();

private:
    TestTimer *timer = nullptr; ///< Owned by the touch.
    QScopedPointer<TouchPress> touch;
    QScopedPointer<QSignalSpy> released;
    QScopedPointer<QSignalSpy> longTouched;
};

void tst_TouchPress::init()
{
    TestBase::init();
    timer = new TestTimer;
    touch.reset(new TouchPress(timer));
    released.reset(new QSignalSpy(touch.data(), &TouchPress::released));
    longTouched.reset(new QSignalSpy(touch.data(), &TouchPress::longTouched));
}

void tst_TouchPress::cleanup()
{
    released.reset();
    longTouched.reset();
    touch.reset();
    TestBase::cleanup();
}

void tst_TouchPress::aTouchAndLiftIsARelease()
{
    QSignalSpy pressed(touch.data(), &TouchPress::pressed);
    touch->press(TouchPress::Hold::LongTouch);
    QCOMPARE(pressed.count(), 1);
    QCOMPARE(released->count(), 0);
    touch->release(true);
    QCOMPARE(released->count(), 1);
    touch->release(true);
    QCOMPARE(released->count(), 1);
}

void tst_TouchPress::aLiftOutsideIsCancelled()
{
    touch->press(TouchPress::Hold::LongTouch);
    touch->move(false);
    touch->release(false);
    QCOMPARE(released->count(), 0);
    QVERIFY(!touch->looksPressed());
}

void tst_TouchPress::aFingerThatComesBackCounts()
{
    touch->press(TouchPress::Hold::LongTouch);
    touch->move(false);
    touch->move(true);
    touch->release(true);
    QCOMPARE(released->count(), 1);
}

void tst_TouchPress::looksPressedOnlyWhileTheFingerIsOnIt()
{
    QSignalSpy looks(touch.data(), &TouchPress::lookChanged);
    QVERIFY(!touch->looksPressed());
    touch->press(TouchPress::Hold::Nothing);
    QVERIFY(touch->looksPressed());
    touch->move(true);
    QCOMPARE(looks.count(), 1);
    touch->move(false);
    QVERIFY(!touch->looksPressed());
    touch->move(true);
    QVERIFY(touch->looksPressed());
    touch->release(true);
    QVERIFY(!touch->looksPressed());
    QCOMPARE(looks.count(), 4);
}

void tst_TouchPress::aHoldIsALongTouchAndNoRelease()
{
    touch->press(TouchPress::Hold::LongTouch);
    timer->pass(TouchPress::longTouchMs - 1);
    QCOMPARE(longTouched->count(), 0);
    timer->pass(1);
    QCOMPARE(longTouched->count(), 1);
    QVERIFY(!touch->looksPressed());
    touch->release(true);
    QCOMPARE(released->count(), 0);
    QCOMPARE(longTouched->count(), 1);
}

void tst_TouchPress::aHoldStartsAnewWhenTheFingerComesBack()
{
    touch->press(TouchPress::Hold::LongTouch);
    touch->move(false);
    timer->pass(TouchPress::longTouchMs);
    QCOMPARE(longTouched->count(), 0);
    touch->move(true);
    timer->pass(TouchPress::longTouchMs - 1);
    QCOMPARE(longTouched->count(), 0);
    timer->pass(1);
    QCOMPARE(longTouched->count(), 1);
}

void tst_TouchPress::withoutAHoldALongTouchIsARelease()
{
    touch->press(TouchPress::Hold::Nothing);
    timer->pass(TouchPress::longTouchMs);
    touch->release(true);
    QCOMPARE(longTouched->count(), 0);
    QCOMPARE(released->count(), 1);
}

void tst_TouchPress::repeatsWhileHeld()
{
    touch->press(TouchPress::Hold::Repeat);
    timer->pass(TouchPress::repeatDelayMs - 1);
    QCOMPARE(released->count(), 0);
    timer->pass(1 + 2 * TouchPress::repeatIntervalMs);
    QCOMPARE(released->count(), 3);
    touch->release(true);
    QCOMPARE(released->count(), 3);
    QCOMPARE(longTouched->count(), 0);
    timer->pass(2 * TouchPress::repeatIntervalMs);
    QCOMPARE(released->count(), 3);
}

void tst_TouchPress::aCancelledTouchReportsNothing()
{
    touch->press(TouchPress::Hold::LongTouch);
    touch->cancel();
    QVERIFY(!touch->looksPressed());
    timer->pass(TouchPress::longTouchMs);
    touch->release(true);
    QCOMPARE(longTouched->count(), 0);
    QCOMPARE(released->count(), 0);
}

void tst_TouchPress::mayBeDeletedByASlot_data()
{
    QTest::addColumn<int>("hold");
    QTest::newRow("released") << int(TouchPress::Hold::Nothing);
    QTest::newRow("long touched") << int(TouchPress::Hold::LongTouch);
    QTest::newRow("repeated") << int(TouchPress::Hold::Repeat);
}

void tst_TouchPress::mayBeDeletedByASlot()
{
    QFETCH(int, hold);
    auto *shortTimer = new TestTimer;
    QPointer<TouchPress> shortLived = new TouchPress(shortTimer);
    connect(shortLived.data(), &TouchPress::released, this, [shortLived] { delete shortLived.data(); });
    connect(shortLived.data(), &TouchPress::longTouched, this, [shortLived] { delete shortLived.data(); });
    shortLived->press(TouchPress::Hold(hold));
    if (TouchPress::Hold(hold) == TouchPress::Hold::Nothing)
        shortLived->release(true);
    else
        shortTimer->pass(TouchPress::longTouchMs);
    QVERIFY(shortLived.isNull());
}

void tst_TouchPress::goesByTheTimeThatPasses()
{
    TouchPress real;
    QSignalSpy heard(&real, &TouchPress::longTouched);
    real.press(TouchPress::Hold::LongTouch);
    QVERIFY(heard.wait(2 * TouchPress::longTouchMs));
}

RXMAP_TEST(tst_TouchPress, Core)
#include "tst_touchpress.moc"
