#include "repaintthrottle.h"
#include "testbase.h"

#include <QPaintEvent>
#include <QWidget>

namespace {

/// Counts how often the widget is drawn.
class Canvas : public QWidget {
public:
    int drawings = 0;

protected:
    void paintEvent(QPaintEvent *) override { ++drawings; }
};

} // namespace

/// Changes that come faster than frames do.
class TestRepaintThrottle : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void requestsWithinAFrameShareItsDrawing();
    void nothingIsDrawnBeforeTheEventLoopTurns();
    void requestsWithoutEndDoNotPutTheDrawingOff();
    void aLaterRequestIsDrawnAgain();

private:
    QScopedPointer<Canvas> canvas;
    QScopedPointer<RepaintThrottle> pace;
};

void TestRepaintThrottle::init()
{
    TestBase::init();
    canvas.reset(new Canvas);
    canvas->resize(50, 50);
    canvas->show();
    QVERIFY(QTest::qWaitForWindowExposed(canvas.data()));
    pace.reset(new RepaintThrottle(canvas.data()));
    // The display may expose the window more than once.
    do {
        canvas->drawings = 0;
        QTest::qWait(20);
    } while (canvas->drawings > 0);
}

void TestRepaintThrottle::cleanup()
{
    pace.reset();
    canvas.reset();
    TestBase::cleanup();
}

void TestRepaintThrottle::requestsWithinAFrameShareItsDrawing()
{
    for (int i = 0; i < 1000; ++i)
        pace->request();
    QTRY_COMPARE(canvas->drawings, 1);
    // After the time of another frame there is still no second drawing.
    QTest::qWait(60);
    QCOMPARE(canvas->drawings, 1);
}

void TestRepaintThrottle::nothingIsDrawnBeforeTheEventLoopTurns()
{
    pace->request();
    QCOMPARE(canvas->drawings, 0);
}

void TestRepaintThrottle::requestsWithoutEndDoNotPutTheDrawingOff()
{
    QTimer changes;
    connect(&changes, &QTimer::timeout, canvas.data(), [this] { pace->request(); });
    changes.start(1);
    QTRY_VERIFY(canvas->drawings >= 3);
}

void TestRepaintThrottle::aLaterRequestIsDrawnAgain()
{
    for (int drawn = 1; drawn <= 3; ++drawn) {
        pace->request();
        QTRY_COMPARE(canvas->drawings, drawn);
    }
}

RXMAP_TEST(TestRepaintThrottle, Widgets)
#include "tst_repaintthrottle.moc"
