#include "mapoverlay.h"
#include "terminalhost.h"
#include "terminalwindow.h"
#include "testbase.h"

namespace {

/// Counts how often a widget is drawn.
class DrawingCount : public QObject {
public:
    explicit DrawingCount(QWidget *widget) { widget->installEventFilter(this); }

    int times = 0;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            ++times;
        return QObject::eventFilter(watched, event);
    }
};

/// Lets everything requested happen, without any time passing: timers stand still.
void settle()
{
    for (int round = 0; round < 3; ++round)
        QCoreApplication::sendPostedEvents();
}

} // namespace

/// How often changes have the overlay drawn again.
class TestMapOverlay : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void bubblesThatFollowEachOtherShareADrawing();
    void placesOfTheVehicleShareADrawing();
    void aMovedCameraIsDrawnAtOnce();
    void theNewestBubbleIsTheOneThatIsDrawn();
    void touchesOfTheTerminalShareADrawing();
    void theBoundaryIsDrawnWhereItLies();

private:
    QScopedPointer<MapOverlay> overlay;
    QScopedPointer<DrawingCount> drawn;
};

void TestMapOverlay::theBoundaryIsDrawnWhereItLies()
{
    Camera camera;
    camera.setViewport(QSizeF(400, 300));
    camera.frame(QRectF(-50, -50, 100, 100), QRectF(50, 50, 300, 200));
    overlay->setCamera(camera);
    const auto colorAt = [this, &camera](double x, double y) {
        return overlay->grab().toImage().pixelColor(camera.project(QPointF(x, y))->toPoint());
    };
    const QColor before = colorAt(40, 40);
    overlay->setBoundary({QPolygonF({{-40, -40}, {40, -40}, {40, 40}, {-40, 40}, {-40, -40}})});
    QVERIFY(colorAt(40, 40) != before);
    QVERIFY(colorAt(-40, 0) != before);
    QCOMPARE(colorAt(30, 30), before);
    overlay->setBoundary({});
    QCOMPARE(colorAt(40, 40), before);
}

void TestMapOverlay::init()
{
    TestBase::init();
    overlay.reset(new MapOverlay);
    overlay->resize(400, 300);
    overlay->show();
    QVERIFY(QTest::qWaitForWindowExposed(overlay.data()));
    drawn.reset(new DrawingCount(overlay.data()));
    // The repaint requested by showing it may still be pending.
    overlay->update();
    QTRY_VERIFY(drawn->times > 0);
    settle();
    drawn->times = 0;
}

void TestMapOverlay::bubblesThatFollowEachOtherShareADrawing()
{
    for (int i = 0; i < 100; ++i) {
        overlay->showBubble(QPointF(i, 0), QString::number(i), Qt::green);
        settle();
    }
    QCOMPARE(drawn->times, 0);
    QTRY_COMPARE(drawn->times, 1);
    overlay->showBubble(QPointF(), QString(), QColor());
    QTRY_COMPARE(drawn->times, 2);
}

void TestMapOverlay::placesOfTheVehicleShareADrawing()
{
    for (int i = 0; i < 100; ++i) {
        overlay->setVehicle(QPointF(i, 0), 90.0);
        settle();
    }
    QCOMPARE(drawn->times, 0);
    QTRY_COMPARE(drawn->times, 1);
}

void TestMapOverlay::aMovedCameraIsDrawnAtOnce()
{
    for (int i = 1; i <= 5; ++i) {
        overlay->setCamera(Camera());
        settle();
        QCOMPARE(drawn->times, i);
    }
}

void TestMapOverlay::theNewestBubbleIsTheOneThatIsDrawn()
{
    Camera camera;
    camera.setViewport(overlay->size());
    overlay->setCamera(camera);
    overlay->showBubble(QPointF(), QString(), QColor());
    const QImage without = overlay->grab().toImage();
    overlay->showBubble(QPointF(), QStringLiteral("Rx Rate: 1.00"), Qt::green);
    overlay->showBubble(QPointF(), QStringLiteral("Rx Rate: 2.00"), Qt::green);
    const QImage second = overlay->grab().toImage();
    QVERIFY(second != without);
    overlay->showBubble(QPointF(), QStringLiteral("Rx Rate: 1.00"), Qt::green);
    QVERIFY(overlay->grab().toImage() != second);
    overlay->showBubble(QPointF(), QStringLiteral("Rx Rate: 2.00"), Qt::green);
    QCOMPARE(overlay->grab().toImage(), second);
}

void TestMapOverlay::touchesOfTheTerminalShareADrawing()
{
    TerminalHost host;
    QCOMPARE(host.problem(), QString());
    Terminal &terminal = host.terminal();
    QVERIFY(terminal.open({{TerminalHost::fixture("three-zones.geojson")}, {"SEED_K_HA"}}).first().isOk());
    DrawingCount ofTerminal(terminal.window()->overlay());
    terminal.refresh();
    QTRY_VERIFY(ofTerminal.times > 0);
    settle();
    ofTerminal.times = 0;
    for (int i = 0; i < 100; ++i) {
        const QPointF point(i - 50, 0);
        QVERIFY(terminal.mapColor(point).isValid());
        QVERIFY(!terminal.touch(point).isEmpty());
        settle();
    }
    QCOMPARE(ofTerminal.times, 0);
    QTRY_COMPARE(ofTerminal.times, 1);
}

RXMAP_TEST(TestMapOverlay, Widgets)
#include "tst_mapoverlay.moc"
