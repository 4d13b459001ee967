#include "fieldviewtest.h"

#include <QMouseEvent>
#include <QSignalSpy>

/// The 3D field view: what a finger does to it, and what it frames.
class TestFieldView : public FieldViewTest {
    Q_OBJECT

private Q_SLOTS:
    void aTouchTellsTheFieldPointUnderIt();
    void aFingerThatRollsALittleStillTouches();
    void aDragMovesTheFieldAndTouchesNothing();
    void theWheelZoomsAtThePointer();
    void twoFingersHoldTheFieldBetweenThem_data();
    void twoFingersHoldTheFieldBetweenThem();
    void twoFingersTouchNothing();
    void framingShowsTheWholeField();
    void aFieldStaysFramedUntilItIsMovedByHand();
    void theGroundIsSeenWhereNothingIsDrawn();
    void aPointOutsideOfTheViewHasAColourToo();

private:
    /// One event of a finger on the view.
    void finger(QEvent::Type kind, const QPointF &at);
};

void TestFieldView::finger(QEvent::Type kind, const QPointF &at)
{
    const bool isLifted = kind == QEvent::MouseButtonRelease;
    const Qt::MouseButton button = kind == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(kind, at, button, isLifted ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(view.data(), &event);
}

void TestFieldView::aTouchTellsTheFieldPointUnderIt()
{
    QSignalSpy spy(view.data(), &FieldView::touched);
    const QPointF target(37.0, -21.0);
    const QPoint pixel = view->camera().project(target).value().toPoint();
    QTest::mouseClick(view.data(), Qt::LeftButton, Qt::NoModifier, pixel);
    QCOMPARE(spy.size(), 1);
    const QPointF touched = spy.first().first().toPointF();
    QVERIFY(QLineF(touched, target).length() < 2.0 * view->camera().metresPerPixel(target));
}

void TestFieldView::aFingerThatRollsALittleStillTouches()
{
    QSignalSpy spy(view.data(), &FieldView::touched);
    finger(QEvent::MouseButtonPress, QPointF(400, 300));
    finger(QEvent::MouseMove, QPointF(405, 304));
    finger(QEvent::MouseButtonRelease, QPointF(405, 304));
    QCOMPARE(spy.size(), 1);
}

void TestFieldView::aDragMovesTheFieldAndTouchesNothing()
{
    QSignalSpy spy(view.data(), &FieldView::touched);
    const QPointF held = view->camera().fieldPoint(QPointF(400, 300)).value();
    finger(QEvent::MouseButtonPress, QPointF(400, 300));
    finger(QEvent::MouseMove, QPointF(450, 330));
    finger(QEvent::MouseMove, QPointF(520, 390));
    finger(QEvent::MouseButtonRelease, QPointF(520, 390));
    QVERIFY(spy.isEmpty());
    QVERIFY(QLineF(view->camera().project(held).value(), QPointF(520, 390)).length() < 1e-6);
}

void TestFieldView::theWheelZoomsAtThePointer()
{
    const QPointF held = view->camera().fieldPoint(QPointF(200, 150)).value();
    const double before = view->camera().distance();
    QWheelEvent event(QPointF(200, 150), view->mapToGlobal(QPoint(200, 150)), QPoint(), QPoint(0, 240), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(view.data(), &event);
    QVERIFY(std::abs(view->camera().distance() - before / 1.44) < 1e-9);
    QVERIFY(QLineF(view->camera().project(held).value(), QPointF(200, 150)).length() < 1e-6);
}

void TestFieldView::twoFingersHoldTheFieldBetweenThem_data()
{
    QTest::addColumn<QList<QLineF>>("places");
    const QLineF start(300, 250, 500, 350);
    QTest::newRow("apart") << QList<QLineF>{start, {250, 225, 550, 375}, {200, 200, 600, 400}};
    QTest::newRow("together") << QList<QLineF>{start, {350, 275, 450, 325}};
    QTest::newRow("aside") << QList<QLineF>{start, {380, 220, 580, 320}};
    QTest::newRow("one finger alone") << QList<QLineF>{start, {300, 250, 600, 420}};
    QTest::newRow("apart, aside and turned") << QList<QLineF>{start, {280, 300, 520, 310}, {330, 420, 640, 260}};
}

void TestFieldView::twoFingersHoldTheFieldBetweenThem()
{
    QFETCH(QList<QLineF>, places);
    const QLineF start = places.first();
    const QPointF held = view->camera().fieldPoint(start.center()).value();
    const double distance = view->camera().distance();
    QTouchDevice *device = QTest::createTouchDevice();
    QTest::touchEvent(view.data(), device).press(0, start.p1().toPoint(), view.data());
    QTest::touchEvent(view.data(), device).stationary(0).press(1, start.p2().toPoint(), view.data());
    QCOMPARE(view->camera().distance(), distance);
    for (const QLineF &place : qAsConst(places)) {
        QTest::touchEvent(view.data(), device)
            .move(0, place.p1().toPoint(), view.data())
            .move(1, place.p2().toPoint(), view.data());
        QCOMPARE(view->camera().distance(), distance * start.length() / place.length());
        QVERIFY(QLineF(view->camera().project(held).value(), place.center()).length() < 1e-6);
    }
    const Camera moved = view->camera();
    QTest::touchEvent(view.data(), device)
        .release(0, places.last().p1().toPoint(), view.data())
        .release(1, places.last().p2().toPoint(), view.data());
    QCOMPARE(view->camera().distance(), moved.distance());
    QCOMPARE(view->camera().target(), moved.target());
}

void TestFieldView::twoFingersTouchNothing()
{
    QSignalSpy spy(view.data(), &FieldView::touched);
    QTouchDevice *device = QTest::createTouchDevice();
    QTest::touchEvent(view.data(), device).press(0, QPoint(350, 300), view.data());
    QTest::touchEvent(view.data(), device).stationary(0).press(1, QPoint(450, 300), view.data());
    QTest::touchEvent(view.data(), device).release(0, QPoint(350, 300), view.data()).stationary(1);
    QTest::touchEvent(view.data(), device).release(1, QPoint(450, 300), view.data());
    QVERIFY(spy.isEmpty());

    QTest::touchEvent(view.data(), device).press(2, QPoint(400, 300), view.data());
    QTest::touchEvent(view.data(), device).release(2, QPoint(400, 300), view.data());
    QCOMPARE(spy.size(), 1);
}

void TestFieldView::framingShowsTheWholeField()
{
    view->setFreeArea(QRectF(200, 50, 500, 500));
    for (const QPointF &corner : {QPointF(-200, -100), QPointF(200, -100), QPointF(-200, 100), QPointF(200, 100)})
        QVERIFY(QRectF(200, 50, 500, 500).contains(view->camera().project(corner).value()));
}

void TestFieldView::aFieldStaysFramedUntilItIsMovedByHand()
{
    const double before = view->camera().distance();
    view->resize(400, 300);
    QTRY_COMPARE(view->camera().viewport(), QSizeF(400, 300));
    QVERIFY(std::abs(view->camera().distance() - before) < 0.02 * before);
    view->zoom(2.0);
    const double zoomed = view->camera().distance();
    view->resize(800, 600);
    QTRY_COMPARE(view->camera().viewport(), QSizeF(800, 600));
    QCOMPARE(view->camera().distance(), zoomed);
}

void TestFieldView::theGroundIsSeenWhereNothingIsDrawn()
{
    QCOMPARE(view->colorAt(QPointF(0, 0)), FieldScene::groundColor());
}

void TestFieldView::aPointOutsideOfTheViewHasAColourToo()
{
    QVERIFY(!view->rect().contains(view->camera().project(QPointF(5000, 0)).value().toPoint()));
    QCOMPARE(view->colorAt(QPointF(5000, 0)), FieldScene::groundColor());
    QCOMPARE(view->colorAt(QPointF(0, -90000)), FieldScene::groundColor());
}

RXMAP_TEST(TestFieldView, Widgets)
#include "tst_fieldview.moc"
