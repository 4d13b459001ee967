#include "fieldviewtest.h"
#include "guestlist.h"

#include "Framework/uigraphicslist.h"

#include <QOpenGLContext>
#include <QOpenGLExtraFunctions>

namespace {

/// A value of the OpenGL state that guests can rely on.
struct StateValue {
    const char *name;
    GLenum key;
    GLint promised;
};

/// Does not include the vertex array, which not every context has.
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
    {"logical operation", GL_COLOR_LOGIC_OP, GL_FALSE},
    {"sample coverage", GL_SAMPLE_COVERAGE, GL_FALSE},
    {"coverage by opacity", GL_SAMPLE_ALPHA_TO_COVERAGE, GL_FALSE},
    {"length of rows that are read", GL_PACK_ROW_LENGTH, 0},
    {"length of rows that are handed over", GL_UNPACK_ROW_LENGTH, 0},
    {"active texture", GL_ACTIVE_TEXTURE, GL_TEXTURE0},
    {"array buffer", GL_ARRAY_BUFFER_BINDING, 0},
    {"element buffer", GL_ELEMENT_ARRAY_BUFFER_BINDING, 0},
};

/// What a guest found when it was called: the values in the order of the table, and the state that the table leaves
/// out.
struct Found {
    float order;
    QList<GLint> values;
    GLint vertexArray;
    QList<GLint> colorMask;
    QList<GLint> target;
};

/// Records the state that it is called with, and leaves a different one behind.
class RudeGuest : public Object3D {
public:
    RudeGuest(float givenOrder, QList<Found> *givenJournal)
        : order(givenOrder)
        , journal(givenJournal)
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
        Found found{order, {}, 0, {}, {}};
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
        GLint viewport[4] = {};
        glGetIntegerv(GL_VIEWPORT, viewport);
        GLint framebuffer = 0;
        glGetIntegerv(GL_FRAMEBUFFER_BINDING, &framebuffer);
        found.target = {framebuffer, viewport[0], viewport[1], viewport[2], viewport[3]};
        journal->append(found);
    }

    void leaveOtherState()
    {
        glDisable(GL_BLEND);
        glBlendEquation(GL_FUNC_REVERSE_SUBTRACT);
        glBlendFuncSeparate(GL_ONE, GL_ONE, GL_ZERO, GL_ZERO);
        constexpr GLenum effects[] = {GL_DEPTH_TEST,
                                      GL_CULL_FACE,
                                      GL_STENCIL_TEST,
                                      GL_SCISSOR_TEST,
                                      GL_COLOR_LOGIC_OP,
                                      GL_SAMPLE_COVERAGE,
                                      GL_SAMPLE_ALPHA_TO_COVERAGE};
        constexpr GLenum rowLengths[] = {GL_PACK_ROW_LENGTH, GL_UNPACK_ROW_LENGTH};
        glScissor(0, 0, 1, 1);
        for (const GLenum effect : effects)
            glEnable(effect);
        for (const GLenum length : rowLengths)
            glPixelStorei(length, 3);
        glViewport(0, 0, 1, 1);
        glBindFramebuffer(GL_FRAMEBUFFER, 0);
        glColorMask(GL_FALSE, GL_TRUE, GL_FALSE, GL_TRUE);
        glActiveTexture(GL_TEXTURE3);
        glBindBuffer(GL_ARRAY_BUFFER, buffer);
        // Bound while no vertex array is: each vertex array has an element buffer of its own.
        glBindBuffer(GL_ELEMENT_ARRAY_BUFFER, buffer);
        if (hasVertexArrays())
            QOpenGLContext::currentContext()->extraFunctions()->glBindVertexArray(vertexArray);
    }

    float order;
    QList<Found> *journal;
    GLuint buffer = 0;
    GLuint vertexArray = 0;
};

} // namespace

/// How the 3D field view calls its guests.
class TestFieldViewGuests : public FieldViewTest {
    Q_OBJECT

private Q_SLOTS:
    void guestsAreCalledInDrawingOrderWithAKnownState();
    void aListAddedLaterIsInitialisedOnce();
    void aListThatIsGoneIsNotDrawn();
};

void TestFieldViewGuests::guestsAreCalledInDrawingOrderWithAKnownState()
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
        QCOMPARE(found.target, journal.first().target);
        QVERIFY(found.target.first() > 0);
        QCOMPARE(found.colorMask, (QList<GLint>{GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE}));
    }
}

void TestFieldViewGuests::aListAddedLaterIsInitialisedOnce()
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

void TestFieldViewGuests::aListThatIsGoneIsNotDrawn()
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

RXMAP_TEST(TestFieldViewGuests, Widgets)
#include "tst_fieldview_guests.moc"
