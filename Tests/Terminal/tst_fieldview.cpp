#include "fieldview.h"
#include "testbase.h"

#include "Framework/uigraphicslist.h"

#include <QMouseEvent>
#include <QOpenGLContext>
#include <QOpenGLExtraFunctions>
#include <QSignalSpy>

namespace {

/// A value of the OpenGL state that guests can rely on.
struct StateValue {
    const char *name;
    GLenum key;
    GLint promised;
};

/// Without the vertex array, which not every context has.
const StateValue promisedState[] = {
    {"blending", GL_BLEND, GL_TRUE},
    {"blend equation of colours", GL_BLEND_EQUATION_RGB, GL_FUNC_ADD},
    {"blend equation of opacities", GL_BLEND_EQUATION_ALPHA, GL_FUNC_ADD},
    {"source factor of colours", GL_BLEND_SRC_RGB, GL_SRC_ALPHA},
    {"target factor of colours", GL_BLEND_DST_RGB, GL_ONE_MINUS_SRC_ALPHA},
    {"source factor of opacities", GL_BLEND_SRC_ALPHA, GL_ONE},
    {"target factor of opacities", GL_BLEND_DST_ALPHA, GL_ONE_MINUS_SRC_ALPHA},
    {"depth test", GL_DEPTH_TEST, GL_FALSE},
    {"culling", GL_CULL_FACE, GL_FALSE},
    {"stencil test", GL_STENCIL_TEST, GL_FALSE},
    {"scissor test", GL_SCISSOR_TEST, GL_FALSE},
    {"active texture", GL_ACTIVE_TEXTURE, GL_TEXTURE0},
    {"array buffer", GL_ARRAY_BUFFER_BINDING, 0},
    {"element buffer", GL_ELEMENT_ARRAY_BUFFER_BINDING, 0},
};

/// What a guest found when it was called: the values in the order of the table, and what is not in it.
struct Found {
    float order;
    QList<GLint> values;
    GLint vertexArray;
    QList<GLint> colorMask;
};

/// Notes the state that it is called with, and leaves another one behind.
class RudeGuest : public Object3D {
public:
    RudeGuest(float order, QList<Found> *journal)
        : order(order)
        , journal(journal)
    {
    }

    void init() override
    {
        initializeOpenGLFunctions();
        glGenBuffers(1, &buffer);
        if (hasVertexArrays())
            QOpenGLContext::currentContext()->extraFunctions()->glGenVertexArrays(1, &vertexArray);
        ++initialised;
    }

    void draw(QMatrix4x4) override
    {
        noteState();
        leaveOtherState();
    }

    static bool hasVertexArrays()
    {
        const QOpenGLContext *context = QOpenGLContext::currentContext();
        return context->format().majorVersion() >= 3 || context->hasExtension("GL_ARB_vertex_array_object");
    }

    float drawingOrder() const override { return order; }

    int initialised = 0;

private:
    void noteState()
    {
        Found found{order, {}, 0, {}};
        for (const StateValue &value : promisedState) {
            GLint now = -1;
            glGetIntegerv(value.key, &now);
            found.values.append(now);
        }
        if (hasVertexArrays())
            glGetIntegerv(GL_VERTEX_ARRAY_BINDING, &found.vertexArray);
        GLint mask[4] = {};
        glGetIntegerv(GL_COLOR_WRITEMASK, mask);
        found.colorMask = {mask[0], mask[1], mask[2], mask[3]};
        journal->append(found);
    }

    void leaveOtherState()
    {
        glDisable(GL_BLEND);
        glBlendEquation(GL_FUNC_REVERSE_SUBTRACT);
        glBlendFuncSeparate(GL_ONE, GL_ONE, GL_ZERO, GL_ZERO);
        for (const GLenum test : {GL_DEPTH_TEST, GL_CULL_FACE, GL_STENCIL_TEST, GL_SCISSOR_TEST})
            glEnable(test);
        glScissor(0, 0, 1, 1);
        glColorMask(GL_FALSE, GL_TRUE, GL_FALSE, GL_TRUE);
        glActiveTexture(GL_TEXTURE3);
        glBindBuffer(GL_ARRAY_BUFFER, buffer);
        // Bound without a vertex array first: each vertex array has an element buffer of its own.
        glBindBuffer(GL_ELEMENT_ARRAY_BUFFER, buffer);
        if (hasVertexArrays())
            QOpenGLContext::currentContext()->extraFunctions()->glBindVertexArray(vertexArray);
    }

    float order;
    QList<Found> *journal;
    GLuint buffer = 0;
    GLuint vertexArray = 0;
};

class GuestList : public UiGraphicsList {
public:
    explicit GuestList(const QList<Object3D *> &guests)
        : UiGraphicsList(nullptr)
    {
        objects = guests;
    }
    ~GuestList() override { qDeleteAll(objects); }
    QString getPointDescription(QVector3D) override { return {}; }
    void init() override
    {
        for (Object3D *object : qAsConst(objects))
            object->init();
    }
};

} // namespace

/// The 3D field view: what a finger does, and how guests are called.
class TestFieldView : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
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
    void guestsAreCalledInDrawingOrderWithAKnownState();
    void aListAddedLaterIsInitialisedOnce();
    void aListThatIsGoneIsNotDrawn();

private:
    /// One event of a finger that is on the view.
    void finger(QEvent::Type kind, const QPointF &at);

    QScopedPointer<FieldView> view;
};

void TestFieldView::finger(QEvent::Type kind, const QPointF &at)
{
    const bool isLifted = kind == QEvent::MouseButtonRelease;
    const Qt::MouseButton button = kind == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(kind, at, button, isLifted ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(view.data(), &event);
}

void TestFieldView::init()
{
    TestBase::init();
    view.reset(new FieldView);
    view->resize(800, 600);
    view->frame(QRectF(-200, -100, 400, 200));
    view->show();
    QVERIFY(QTest::qWaitForWindowExposed(view.data()));
    QVERIFY(view->isValid());
}

void TestFieldView::cleanup()
{
    view.reset();
    TestBase::cleanup();
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

void TestFieldView::guestsAreCalledInDrawingOrderWithAKnownState()
{
    QList<Found> journal;
    GuestList list({new RudeGuest(3.0F, &journal), new RudeGuest(-4.99F, &journal), new RudeGuest(0.0F, &journal)});
    view->addGraphicsList(&list);
    journal.clear();
    QCOMPARE(view->colorAt(QPointF(0, 0)), FieldScene::groundColor());
    view->forgetColors();
    // The second picture follows the state that the guests left behind in the first.
    QCOMPARE(view->colorAt(QPointF(0, 0)), FieldScene::groundColor());
    QCOMPARE(journal.size(), 6);
    const QList<float> orders{-4.99F, 0.0F, 3.0F, -4.99F, 0.0F, 3.0F};
    for (int i = 0; i < journal.size(); ++i) {
        const Found &found = journal.at(i);
        QCOMPARE(found.order, orders.at(i));
        for (int v = 0; v < found.values.size(); ++v) {
            const StateValue &value = promisedState[v];
            QVERIFY2(found.values.at(v) == value.promised,
                     qPrintable(QStringLiteral("call %1: %2 is %3").arg(i).arg(value.name).arg(found.values.at(v))));
        }
        QCOMPARE(found.vertexArray, 0);
        QCOMPARE(found.colorMask, (QList<GLint>{GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE}));
    }
}

void TestFieldView::aListAddedLaterIsInitialisedOnce()
{
    QList<Found> journal;
    auto *guest = new RudeGuest(0.0F, &journal);
    GuestList list({guest});
    view->addGraphicsList(&list);
    view->repaint();
    view->repaint();
    QCOMPARE(guest->initialised, 1);

    FieldView late;
    auto *early = new RudeGuest(0.0F, &journal);
    GuestList earlyList({early});
    late.addGraphicsList(&earlyList);
    QCOMPARE(early->initialised, 0);
    late.resize(100, 100);
    late.show();
    QVERIFY(QTest::qWaitForWindowExposed(&late));
    QCOMPARE(early->initialised, 1);
}

void TestFieldView::aListThatIsGoneIsNotDrawn()
{
    QList<Found> journal;
    {
        GuestList list({new RudeGuest(0.0F, &journal)});
        view->addGraphicsList(&list);
        view->makeCurrent();
    }
    view->doneCurrent();
    journal.clear();
    QCOMPARE(view->colorAt(QPointF(0, 0)), FieldScene::groundColor());
    QVERIFY(journal.isEmpty());
}

static void initialiseResources()
{
    Q_INIT_RESOURCE(terminal);
}

int main(int argc, char *argv[])
{
    initialiseResources();
    QApplication application(argc, argv);
    TestFieldView test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_fieldview.moc"
