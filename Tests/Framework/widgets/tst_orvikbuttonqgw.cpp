#include "testbase.h"
#include "testimages.h"

#include "Framework/orvikbuttonqgw.h"

#include <QDialog>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QImage>
#include <QPointer>
#include <QScopedPointer>
#include <QSignalSpy>
#include <QTimer>

namespace {

const QSize buttonSize(100, 60);
const QPoint inside(70, 60); // in the view; the button lies at 20, 30
const QPoint outside(180, 60);
const QPoint onTheOther(70, 160);
constexpr int longTouchTime = 800; // ms

} // namespace

class tst_OrvikButtonQgw : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void hasTheSizeOfItsFirstImageAtItsPosition();
    void showsTheImageOfTheIndex();
    void ignoresAnIndexOutsideTheList();
    void reportsItsIdWhenTouchedAndLifted();
    void aLiftOutsideReportsNothing();
    void aFingerThatSlidesOutAndBackCounts();
    void aHoldIsALongTouchAndNoRelease();
    void aLongHoldCountsWhereNobodyWaitsForIt();
    void looksPressedUnderTheFingerOnly();
    void aButtonHiddenOrDisabledUnderTheFingerReportsNothing_data();
    void aButtonHiddenOrDisabledUnderTheFingerReportsNothing();
    void aDialogOpenedByALongTouchLeavesThePageUsable();
    void mayBeDeletedByASlot();

private:
    void moveFinger(const QPoint &place);
    OrvikButtonQgw *addButton(int id, const QPointF &position);
    QColor colorAt(const QPoint &place) const { return view->viewport()->grab().toImage().pixelColor(place); }

    QScopedPointer<TestImages> files;
    QScopedPointer<QGraphicsScene> scene;
    QScopedPointer<QGraphicsView> view;
    QPointer<OrvikButtonQgw> button;
    QScopedPointer<QSignalSpy> released;
};

void tst_OrvikButtonQgw::init()
{
    TestBase::init();
    files.reset(new TestImages);
    files->add(QStringLiteral("off.png"), buttonSize, Qt::lightGray);
    files->add(QStringLiteral("on.png"), buttonSize, Qt::darkBlue);
    scene.reset(new QGraphicsScene(0, 0, 300, 300));
    button = addButton(42, QPointF(20, 30));
    released.reset(new QSignalSpy(button.data(), &OrvikButtonQgw::buttonReleased));
    view.reset(new QGraphicsView(scene.data()));
    view->setFrameShape(QFrame::NoFrame);
    view->resize(300, 300);
    view->show();
    QVERIFY(QTest::qWaitForWindowExposed(view.data()));
}

void tst_OrvikButtonQgw::cleanup()
{
    released.reset();
    view.reset();
    scene.reset();
    files.reset();
    TestBase::cleanup();
}

void tst_OrvikButtonQgw::moveFinger(const QPoint &place)
{
    QMouseEvent event(QEvent::MouseMove, place, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(view->viewport(), &event);
}

OrvikButtonQgw *tst_OrvikButtonQgw::addButton(int id, const QPointF &position)
{
    auto *added = new OrvikButtonQgw(id, files->directory(), {QStringLiteral("off.png"), QStringLiteral("on.png")},
                                     position, nullptr);
    scene->addItem(added);
    return added;
}

void tst_OrvikButtonQgw::hasTheSizeOfItsFirstImageAtItsPosition()
{
    QCOMPARE(button->geometry(), QRectF(QPointF(20, 30), QSizeF(buttonSize)));
    QCOMPARE(button->id(), 42);
}

void tst_OrvikButtonQgw::showsTheImageOfTheIndex()
{
    QCOMPARE(button->currentImage(), 0);
    QCOMPARE(colorAt(inside), QColor(Qt::lightGray));
    button->setCurrentImage(1);
    QCOMPARE(button->currentImage(), 1);
    QCOMPARE(colorAt(inside), QColor(Qt::darkBlue));
}

void tst_OrvikButtonQgw::ignoresAnIndexOutsideTheList()
{
    button->setCurrentImage(1);
    button->setCurrentImage(2);
    button->setCurrentImage(-1);
    QCOMPARE(button->currentImage(), 1);
}

void tst_OrvikButtonQgw::reportsItsIdWhenTouchedAndLifted()
{
    QSignalSpy pressed(button.data(), &OrvikButtonQgw::buttonPressed);
    QTest::mousePress(view->viewport(), Qt::LeftButton, {}, inside);
    QCOMPARE(pressed.count(), 1);
    QCOMPARE(pressed.first().first().toInt(), 42);
    QCOMPARE(released->count(), 0);
    QTest::mouseRelease(view->viewport(), Qt::LeftButton, {}, inside);
    QCOMPARE(released->count(), 1);
    QCOMPARE(released->first().first().toInt(), 42);
}

void tst_OrvikButtonQgw::aLiftOutsideReportsNothing()
{
    QTest::mousePress(view->viewport(), Qt::LeftButton, {}, inside);
    QTest::mouseRelease(view->viewport(), Qt::LeftButton, {}, outside);
    QCOMPARE(released->count(), 0);
}

void tst_OrvikButtonQgw::aFingerThatSlidesOutAndBackCounts()
{
    QTest::mousePress(view->viewport(), Qt::LeftButton, {}, inside);
    moveFinger(outside);
    moveFinger(inside);
    QTest::mouseRelease(view->viewport(), Qt::LeftButton, {}, inside);
    QCOMPARE(released->count(), 1);
}

void tst_OrvikButtonQgw::aHoldIsALongTouchAndNoRelease()
{
    QSignalSpy longTouch(button.data(), &OrvikButtonQgw::longTouch);
    QTest::mousePress(view->viewport(), Qt::LeftButton, {}, inside);
    QTest::qWait(longTouchTime / 2);
    QCOMPARE(longTouch.count(), 0);
    QTRY_COMPARE_WITH_TIMEOUT(longTouch.count(), 1, longTouchTime);
    QCOMPARE(longTouch.first().first().toInt(), 42);
    QTest::mouseRelease(view->viewport(), Qt::LeftButton, {}, inside);
    QCOMPARE(released->count(), 0);
}

void tst_OrvikButtonQgw::aLongHoldCountsWhereNobodyWaitsForIt()
{
    QTest::mousePress(view->viewport(), Qt::LeftButton, {}, inside);
    QTest::qWait(longTouchTime + 60);
    QTest::mouseRelease(view->viewport(), Qt::LeftButton, {}, inside);
    QCOMPARE(released->count(), 1);
}

void tst_OrvikButtonQgw::looksPressedUnderTheFingerOnly()
{
    const QColor normal = colorAt(inside);
    QTest::mousePress(view->viewport(), Qt::LeftButton, {}, inside);
    const QColor pressed = colorAt(inside);
    QVERIFY(pressed != normal);
    moveFinger(outside);
    QCOMPARE(colorAt(inside), normal);
    moveFinger(inside);
    QCOMPARE(colorAt(inside), pressed);
    QTest::mouseRelease(view->viewport(), Qt::LeftButton, {}, inside);
    QCOMPARE(colorAt(inside), normal);
}

void tst_OrvikButtonQgw::aButtonHiddenOrDisabledUnderTheFingerReportsNothing_data()
{
    QTest::addColumn<bool>("hidden");
    QTest::newRow("hidden") << true;
    QTest::newRow("disabled") << false;
}

void tst_OrvikButtonQgw::aButtonHiddenOrDisabledUnderTheFingerReportsNothing()
{
    QFETCH(bool, hidden);
    QSignalSpy longTouch(button.data(), &OrvikButtonQgw::longTouch);
    QTest::mousePress(view->viewport(), Qt::LeftButton, {}, inside);
    button->setVisible(!hidden);
    button->setEnabled(hidden);
    QTest::qWait(longTouchTime + 60);
    button->setVisible(true);
    button->setEnabled(true);
    QCOMPARE(colorAt(inside), QColor(Qt::lightGray));
    QTest::mouseRelease(view->viewport(), Qt::LeftButton, {}, inside);
    QCOMPARE(longTouch.count(), 0);
    QCOMPARE(released->count(), 0);
}

void tst_OrvikButtonQgw::aDialogOpenedByALongTouchLeavesThePageUsable()
{
    OrvikButtonQgw *other = addButton(43, QPointF(20, 130));
    QSignalSpy otherReleased(other, &OrvikButtonQgw::buttonReleased);
    connect(button.data(), &OrvikButtonQgw::longTouch, this, [] {
        QDialog dialog;
        QTimer::singleShot(50, &dialog, &QDialog::accept);
        dialog.exec(); // the finger is lifted over the dialog: the page never hears of it
    });
    QTest::mousePress(view->viewport(), Qt::LeftButton, {}, inside);
    QSignalSpy longTouch(button.data(), &OrvikButtonQgw::longTouch);
    QTRY_COMPARE_WITH_TIMEOUT(longTouch.count(), 1, 2 * longTouchTime);

    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, onTheOther);
    QCOMPARE(otherReleased.count(), 1);
    QCOMPARE(released->count(), 0);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, inside);
    QCOMPARE(released->count(), 1);
}

void tst_OrvikButtonQgw::mayBeDeletedByASlot()
{
    connect(button.data(), &OrvikButtonQgw::longTouch, this, [this] { delete button.data(); });
    QTest::mousePress(view->viewport(), Qt::LeftButton, {}, inside);
    QTRY_VERIFY_WITH_TIMEOUT(button.isNull(), 2 * longTouchTime);
}

RXMAP_TEST(tst_OrvikButtonQgw, Widgets)
#include "tst_orvikbuttonqgw.moc"
