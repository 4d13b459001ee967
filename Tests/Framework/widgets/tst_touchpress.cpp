#include "testbase.h"
#include "touchpress.h"

#include <QScopedPointer>
#include <QSignalSpy>

namespace {

constexpr int slack = 60; // ms that a timer may be late

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

private:
    QScopedPointer<TouchPress> touch;
    QScopedPointer<QSignalSpy> released;
    QScopedPointer<QSignalSpy> longTouched;
};

void tst_TouchPress::init()
{
    TestBase::init();
    touch.reset(new TouchPress);
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
    QTest::qWait(TouchPress::longTouchMs / 2);
    QCOMPARE(longTouched->count(), 0);
    QTRY_COMPARE_WITH_TIMEOUT(longTouched->count(), 1, TouchPress::longTouchMs);
    QVERIFY(!touch->looksPressed());
    touch->release(true);
    QCOMPARE(released->count(), 0);
    QCOMPARE(longTouched->count(), 1);
}

void tst_TouchPress::aHoldStartsAnewWhenTheFingerComesBack()
{
    touch->press(TouchPress::Hold::LongTouch);
    touch->move(false);
    QTest::qWait(TouchPress::longTouchMs + slack);
    QCOMPARE(longTouched->count(), 0);
    touch->move(true);
    QTest::qWait(TouchPress::longTouchMs / 2);
    QCOMPARE(longTouched->count(), 0);
    QTRY_COMPARE_WITH_TIMEOUT(longTouched->count(), 1, TouchPress::longTouchMs);
}

void tst_TouchPress::withoutAHoldALongTouchIsARelease()
{
    touch->press(TouchPress::Hold::Nothing);
    QTest::qWait(TouchPress::longTouchMs + slack);
    touch->release(true);
    QCOMPARE(longTouched->count(), 0);
    QCOMPARE(released->count(), 1);
}

void tst_TouchPress::repeatsWhileHeld()
{
    touch->press(TouchPress::Hold::Repeat);
    QTRY_COMPARE_WITH_TIMEOUT(released->count(), 3, TouchPress::repeatDelayMs + 10 * TouchPress::repeatIntervalMs);
    touch->release(true);
    QCOMPARE(released->count(), 3);
    QCOMPARE(longTouched->count(), 0);
    QTest::qWait(2 * TouchPress::repeatIntervalMs);
    QCOMPARE(released->count(), 3);
}

void tst_TouchPress::aCancelledTouchReportsNothing()
{
    touch->press(TouchPress::Hold::LongTouch);
    touch->cancel();
    QVERIFY(!touch->looksPressed());
    QTest::qWait(TouchPress::longTouchMs + slack);
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
    QPointer<TouchPress> shortLived = new TouchPress;
    connect(shortLived.data(), &TouchPress::released, this, [shortLived] { delete shortLived.data(); });
    connect(shortLived.data(), &TouchPress::longTouched, this, [shortLived] { delete shortLived.data(); });
    shortLived->press(TouchPress::Hold(hold));
    if (TouchPress::Hold(hold) == TouchPress::Hold::Nothing)
        shortLived->release(true);
    QTRY_VERIFY_WITH_TIMEOUT(shortLived.isNull(), 2 * TouchPress::longTouchMs);
}

RXMAP_TEST(tst_TouchPress, Core)
#include "tst_touchpress.moc"
