#include "buttontest.h"

#include <QPointer>

namespace {

const QPoint outside(140, 30);
const QPoint plainSpot(50, 12);    // with neither a text nor an edge
constexpr int longTouchTime = 800; // ms

} // namespace

/// A button that a finger touches.
class tst_OrvikButton : public ButtonTest {
    Q_OBJECT

private Q_SLOTS:
    void hasTheSizeOfItsFirstImageAtItsPosition();
    void showsTheImageOfTheIndex();
    void ignoresAnIndexOutsideTheList();
    void reportsItsIdWhenTouchedAndLifted();
    void aLiftOutsideReportsNothing();
    void aFingerThatSlidesOutAndBackCounts();
    void anotherMouseButtonDoesNothing();
    void aHoldIsALongTouchAndNoRelease();
    void aLongHoldCountsWhereNobodyWaitsForIt();
    void repeatsWhileHeldWhenAsked();
    void looksPressedUnderTheFingerOnly();
    void withoutHighlightItLooksTheSame();
    void aDisabledButtonReportsNothing();
    void aButtonDisabledUnderTheFingerReportsNothing();
    void aButtonHiddenUnderTheFingerReportsNothing();
    void aTouchThatArrivesWhileItIsHiddenReportsNothing();
    void looksDisabledInDisableModeOnly();
    void mayBeDeletedByASlot();

private:
    void moveFinger(const QPoint &place);
};

void tst_OrvikButton::moveFinger(const QPoint &place)
{
    QMouseEvent event(QEvent::MouseMove, place, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(button, &event);
}

void tst_OrvikButton::hasTheSizeOfItsFirstImageAtItsPosition()
{
    QCOMPARE(button->geometry(), QRect(QPoint(20, 30), buttonSize));
    QCOMPARE(button->id(), 42);
    const OrvikButton imageless(0, files->directory(), {}, QPoint(1, 2), nullptr, false);
    QCOMPARE(imageless.size(), QSize(0, 0));
}

void tst_OrvikButton::showsTheImageOfTheIndex()
{
    QCOMPARE(button->currentImage(), 0);
    QCOMPARE(colorAt(plainSpot), QColor(Qt::lightGray));
    button->setCurrentImage(1);
    QCOMPARE(button->currentImage(), 1);
    QCOMPARE(colorAt(plainSpot), QColor(Qt::darkBlue));
}

void tst_OrvikButton::ignoresAnIndexOutsideTheList()
{
    button->setCurrentImage(1);
    button->setCurrentImage(2);
    button->setCurrentImage(-1);
    QCOMPARE(button->currentImage(), 1);
}

void tst_OrvikButton::reportsItsIdWhenTouchedAndLifted()
{
    QSignalSpy pressed(button, &OrvikButton::buttonPressed);
    QTest::mousePress(button, Qt::LeftButton, {}, inside);
    QCOMPARE(pressed.count(), 1);
    QCOMPARE(pressed.first().first().toInt(), 42);
    QCOMPARE(released->count(), 0);
    QTest::mouseRelease(button, Qt::LeftButton, {}, inside);
    QCOMPARE(released->count(), 1);
    QCOMPARE(released->first().first().toInt(), 42);
}

void tst_OrvikButton::aLiftOutsideReportsNothing()
{
    QTest::mousePress(button, Qt::LeftButton, {}, inside);
    moveFinger(outside);
    QTest::mouseRelease(button, Qt::LeftButton, {}, outside);
    QCOMPARE(released->count(), 0);
}

void tst_OrvikButton::aFingerThatSlidesOutAndBackCounts()
{
    QTest::mousePress(button, Qt::LeftButton, {}, inside);
    moveFinger(outside);
    moveFinger(inside);
    QTest::mouseRelease(button, Qt::LeftButton, {}, inside);
    QCOMPARE(released->count(), 1);
}

void tst_OrvikButton::anotherMouseButtonDoesNothing()
{
    QSignalSpy pressed(button, &OrvikButton::buttonPressed);
    QTest::mousePress(button, Qt::RightButton, {}, inside);
    QCOMPARE(pressed.count(), 0);
    QTest::mouseRelease(button, Qt::RightButton, {}, inside);
    QTest::mousePress(button, Qt::LeftButton, {}, inside);
    QTest::mouseRelease(button, Qt::RightButton, {}, inside);
    QCOMPARE(released->count(), 0);
    QTest::mouseRelease(button, Qt::LeftButton, {}, inside);
    QCOMPARE(released->count(), 1);
}

void tst_OrvikButton::aHoldIsALongTouchAndNoRelease()
{
    QSignalSpy longTouch(button, &OrvikButton::longTouch);
    QTest::mousePress(button, Qt::LeftButton, {}, inside);
    QTest::qWait(longTouchTime / 2);
    QCOMPARE(longTouch.count(), 0);
    QTRY_COMPARE_WITH_TIMEOUT(longTouch.count(), 1, longTouchTime);
    QCOMPARE(longTouch.first().first().toInt(), 42);
    QTest::mouseRelease(button, Qt::LeftButton, {}, inside);
    QCOMPARE(released->count(), 0);
}

void tst_OrvikButton::aLongHoldCountsWhereNobodyWaitsForIt()
{
    QTest::mousePress(button, Qt::LeftButton, {}, inside);
    QTest::qWait(longTouchTime + 60);
    QTest::mouseRelease(button, Qt::LeftButton, {}, inside);
    QCOMPARE(released->count(), 1);
}

void tst_OrvikButton::repeatsWhileHeldWhenAsked()
{
    OrvikButton repeating(3, files->directory(), {QStringLiteral("off.png")}, QPoint(0, 0), window.data(), true);
    repeating.show();
    QSignalSpy repeated(&repeating, &OrvikButton::buttonReleased);
    QSignalSpy longTouch(&repeating, &OrvikButton::longTouch);
    QTest::mousePress(&repeating, Qt::LeftButton, {}, inside);
    QTRY_VERIFY_WITH_TIMEOUT(repeated.count() >= 3, 2000);
    QTest::mouseRelease(&repeating, Qt::LeftButton, {}, inside);
    QCOMPARE(longTouch.count(), 0);
}

void tst_OrvikButton::looksPressedUnderTheFingerOnly()
{
    const QColor normal = colorAt(plainSpot);
    QTest::mousePress(button, Qt::LeftButton, {}, inside);
    const QColor pressed = colorAt(plainSpot);
    QVERIFY(pressed != normal);
    moveFinger(outside);
    QCOMPARE(colorAt(plainSpot), normal);
    moveFinger(inside);
    QCOMPARE(colorAt(plainSpot), pressed);
    QTest::mouseRelease(button, Qt::LeftButton, {}, inside);
    QCOMPARE(colorAt(plainSpot), normal);
}

void tst_OrvikButton::withoutHighlightItLooksTheSame()
{
    button->setHighLight(false);
    QTest::mousePress(button, Qt::LeftButton, {}, inside);
    QCOMPARE(colorAt(plainSpot), QColor(Qt::lightGray));
    QTest::mouseRelease(button, Qt::LeftButton, {}, inside);
}

void tst_OrvikButton::aDisabledButtonReportsNothing()
{
    button->setEnabled(false);
    QTest::mouseClick(button, Qt::LeftButton, {}, inside);
    QCOMPARE(released->count(), 0);
}

void tst_OrvikButton::aButtonDisabledUnderTheFingerReportsNothing()
{
    QTest::mousePress(button, Qt::LeftButton, {}, inside);
    button->setEnabled(false);
    button->setEnabled(true);
    QCOMPARE(colorAt(plainSpot), QColor(Qt::lightGray));
    QTest::mouseRelease(button, Qt::LeftButton, {}, inside);
    QCOMPARE(released->count(), 0);
}

void tst_OrvikButton::aButtonHiddenUnderTheFingerReportsNothing()
{
    QSignalSpy longTouch(button, &OrvikButton::longTouch);
    QTest::mousePress(button, Qt::LeftButton, {}, inside);
    button->hide();
    QTest::qWait(longTouchTime + 60);
    button->show();
    QCOMPARE(colorAt(plainSpot), QColor(Qt::lightGray));
    QTest::mouseRelease(button, Qt::LeftButton, {}, inside);
    QCOMPARE(longTouch.count(), 0);
    QCOMPARE(released->count(), 0);
}

void tst_OrvikButton::aTouchThatArrivesWhileItIsHiddenReportsNothing()
{
    QSignalSpy pressed(button, &OrvikButton::buttonPressed);
    window->hide();
    QMouseEvent press(QEvent::MouseButtonPress, inside, Qt::LeftButton, Qt::LeftButton, {});
    QMouseEvent release(QEvent::MouseButtonRelease, inside, Qt::LeftButton, Qt::NoButton, {});
    QCoreApplication::sendEvent(button, &press);
    QCoreApplication::sendEvent(button, &release);
    QCOMPARE(pressed.count(), 0);
    QCOMPARE(released->count(), 0);
}

void tst_OrvikButton::looksDisabledInDisableModeOnly()
{
    button->setCurrentImage(1);
    button->setEnabled(false);
    QCOMPARE(colorAt(plainSpot), QColor(Qt::darkBlue));
    button->setDisableMode(true);
    QVERIFY(colorAt(plainSpot) != QColor(Qt::darkBlue));
    button->setEnabled(true);
    QCOMPARE(colorAt(plainSpot), QColor(Qt::darkBlue));
}

void tst_OrvikButton::mayBeDeletedByASlot()
{
    QPointer<OrvikButton> shortLived = button;
    connect(button, &OrvikButton::buttonReleased, this, [shortLived] { delete shortLived.data(); });
    QTest::mouseClick(button, Qt::LeftButton, {}, inside);
    QVERIFY(shortLived.isNull());
}

RXMAP_TEST(tst_OrvikButton, Widgets)
#include "tst_orvikbutton.moc"
