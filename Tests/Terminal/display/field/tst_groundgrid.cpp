#include "camera.h"
#include "groundgrid.h"
#include "testbase.h"

#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFramebufferObject>

namespace {

const QSize viewSize(100, 100);
constexpr int pixelsPerMetre = 2;

/// Looks straight down, with the origin in the middle of pixel (50, 50).
QMatrix4x4 fromAbove()
{
    constexpr float scale = 0.04F;
    constexpr float halfPixel = 0.01F;
    return {scale, 0, 0, halfPixel, 0, 0, -scale, halfPixel, 0, 0, 0, 0, 0, 0, 0, 1};
}

} // namespace

/// The lines on the ground, seen from above.
class TestGroundGrid : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void everyFifthLineIsStronger();
    void linesReachRoundTheWholeRegion();
    void aNewRegionReplacesTheOneBefore();
    void nothingIsDrawnBeforeItIsInitialised();

private:
    /// Opacity of the drawing at a field point, metres.
    int opacity(GroundGrid &grid, int x, int y);

    QScopedPointer<QOffscreenSurface> surface;
    QScopedPointer<QOpenGLContext> context;
    QScopedPointer<QOpenGLFramebufferObject> frame;
};

void TestGroundGrid::init()
{
    TestBase::init();
    Q_INIT_RESOURCE(terminal);
    surface.reset(new QOffscreenSurface);
    surface->create();
    context.reset(new QOpenGLContext);
    QVERIFY(context->create());
    QVERIFY(context->makeCurrent(surface.data()));
    frame.reset(new QOpenGLFramebufferObject(viewSize));
}

void TestGroundGrid::cleanup()
{
    frame.reset();
    context.reset();
    surface.reset();
    TestBase::cleanup();
}

int TestGroundGrid::opacity(GroundGrid &grid, int x, int y)
{
    QOpenGLFunctions *gl = context->functions();
    frame->bind();
    gl->glViewport(0, 0, viewSize.width(), viewSize.height());
    gl->glClearColor(0, 0, 0, 0);
    gl->glClear(GL_COLOR_BUFFER_BIT);
    grid.draw(fromAbove());
    quint8 color[4] = {};
    gl->glReadPixels(viewSize.width() / 2 + pixelsPerMetre * x, viewSize.height() / 2 + pixelsPerMetre * y, 1, 1,
                     GL_RGBA, GL_UNSIGNED_BYTE, color);
    return color[3];
}

void TestGroundGrid::everyFifthLineIsStronger()
{
    GroundGrid grid;
    grid.init();
    grid.setRegion(QRectF(-20, -20, 40, 40), 4.0);
    const int minor = opacity(grid, 4, 2);
    QVERIFY(minor > 0);
    for (const int line : {-16, -12, -8, -4, 8, 12, 16}) {
        QCOMPARE(opacity(grid, line, 2), minor);
        QCOMPARE(opacity(grid, 2, line), minor);
    }
    for (const int line : {-20, 0, 20}) {
        QVERIFY(opacity(grid, line, 2) > minor);
        QVERIFY(opacity(grid, 2, line) > minor);
    }
    QCOMPARE(opacity(grid, 2, 2), 0);
    QCOMPARE(opacity(grid, 6, -2), 0);
}

void TestGroundGrid::linesReachRoundTheWholeRegion()
{
    GroundGrid grid;
    grid.init();
    grid.setRegion(QRectF(-5, 3, 11, 6), 4.0);
    for (const QPoint &inside : {QPoint(-8, 2), QPoint(8, 2), QPoint(-6, 0), QPoint(6, 12), QPoint(-8, 10)})
        QVERIFY(opacity(grid, inside.x(), inside.y()) > 0);
    for (const QPoint &outside : {QPoint(-12, 2), QPoint(12, 2), QPoint(2, -4), QPoint(2, 16)})
        QCOMPARE(opacity(grid, outside.x(), outside.y()), 0);
}

void TestGroundGrid::aNewRegionReplacesTheOneBefore()
{
    GroundGrid grid;
    grid.init();
    grid.setRegion(QRectF(-20, -20, 40, 40), 4.0);
    grid.setRegion(QRectF(0, 0, 20, 20), 10.0);
    QVERIFY(opacity(grid, 10, 2) > 0);
    QCOMPARE(opacity(grid, 4, 2), 0);
    QCOMPARE(opacity(grid, -20, 2), 0);
}

void TestGroundGrid::nothingIsDrawnBeforeItIsInitialised()
{
    GroundGrid grid;
    grid.setRegion(QRectF(-20, -20, 40, 40), 4.0);
    QCOMPARE(opacity(grid, 0, 2), 0);
    grid.init();
    QVERIFY(opacity(grid, 0, 2) > 0);
}

RXMAP_TEST(TestGroundGrid, Widgets)
#include "tst_groundgrid.moc"
