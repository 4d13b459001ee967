#include "camera.h"
#include "fieldscene.h"
#include "testbase.h"

#include "Framework/uigraphicslist.h"

#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLExtraFunctions>
#include <QOpenGLFramebufferObject>

namespace {

const QSize viewSize(60, 40);

/// What docs/host.md promises a drawable, by name.
QMap<QString, int> promisedState()
{
    return {{"blend", 1},
            {"equation, colours", GL_FUNC_ADD},
            {"equation, alpha", GL_FUNC_ADD},
            {"source, colours", GL_SRC_ALPHA},
            {"destination, colours", GL_ONE_MINUS_SRC_ALPHA},
            {"source, alpha", GL_ONE},
            {"destination, alpha", GL_ONE_MINUS_SRC_ALPHA},
            {"depth test", 0},
            {"culling", 0},
            {"stencil test", 0},
            {"scissor test", 0},
            {"colour mask", 0xF},
            {"texture unit", GL_TEXTURE0},
            {"vertex array", 0},
            {"array buffer", 0},
            {"element buffer", 0}};
}

QMap<QString, int> stateNow()
{
    QOpenGLFunctions *gl = QOpenGLContext::currentContext()->functions();
    const auto value = [gl](GLenum name) {
        GLint result = -1;
        gl->glGetIntegerv(name, &result);
        return int(result);
    };
    GLboolean mask[4] = {};
    gl->glGetBooleanv(GL_COLOR_WRITEMASK, mask);
    return {{"blend", gl->glIsEnabled(GL_BLEND)},
            {"equation, colours", value(GL_BLEND_EQUATION_RGB)},
            {"equation, alpha", value(GL_BLEND_EQUATION_ALPHA)},
            {"source, colours", value(GL_BLEND_SRC_RGB)},
            {"destination, colours", value(GL_BLEND_DST_RGB)},
            {"source, alpha", value(GL_BLEND_SRC_ALPHA)},
            {"destination, alpha", value(GL_BLEND_DST_ALPHA)},
            {"depth test", gl->glIsEnabled(GL_DEPTH_TEST)},
            {"culling", gl->glIsEnabled(GL_CULL_FACE)},
            {"stencil test", gl->glIsEnabled(GL_STENCIL_TEST)},
            {"scissor test", gl->glIsEnabled(GL_SCISSOR_TEST)},
            {"colour mask", mask[0] | mask[1] << 1 | mask[2] << 2 | mask[3] << 3},
            {"texture unit", value(GL_ACTIVE_TEXTURE)},
            {"vertex array", value(GL_VERTEX_ARRAY_BINDING)},
            {"array buffer", value(GL_ARRAY_BUFFER_BINDING)},
            {"element buffer", value(GL_ELEMENT_ARRAY_BUFFER_BINDING)}};
}

QStringList lines(const QMap<QString, int> &state)
{
    QStringList result;
    for (auto entry = state.begin(); entry != state.end(); ++entry)
        result.append(QStringLiteral("%1: %2").arg(entry.key()).arg(*entry));
    return result;
}

/// Records the state that it finds and changes all of it.
class Vandal : public Object3D {
public:
    void init() override
    {
        QOpenGLExtraFunctions *gl = QOpenGLContext::currentContext()->extraFunctions();
        gl->glGenBuffers(2, buffers);
        gl->glGenVertexArrays(1, &vertexArray);
    }

    void draw(QMatrix4x4) override
    {
        found.append(stateNow());
        QOpenGLExtraFunctions *gl = QOpenGLContext::currentContext()->extraFunctions();
        gl->glDisable(GL_BLEND);
        gl->glBlendEquation(GL_FUNC_SUBTRACT);
        gl->glBlendFunc(GL_ZERO, GL_DST_COLOR);
        constexpr GLenum tests[] = {GL_DEPTH_TEST, GL_CULL_FACE, GL_STENCIL_TEST, GL_SCISSOR_TEST};
        for (const GLenum test : tests)
            gl->glEnable(test);
        gl->glColorMask(GL_FALSE, GL_FALSE, GL_FALSE, GL_FALSE);
        gl->glActiveTexture(GL_TEXTURE1);
        gl->glBindVertexArray(vertexArray);
        gl->glBindBuffer(GL_ARRAY_BUFFER, buffers[0]);
        gl->glBindBuffer(GL_ELEMENT_ARRAY_BUFFER, buffers[1]);
    }

    float drawingOrder() const override { return 1.0F; }

    QList<QMap<QString, int>> found;

private:
    GLuint buffers[2] = {};
    GLuint vertexArray = 0;
};

class VandalList : public UiGraphicsList {
public:
    VandalList()
        : UiGraphicsList(nullptr)
    {
        objects = {&first, &second};
    }
    QString getPointDescription(QVector3D) override { return {}; }
    void init() override
    {
        first.init();
        second.init();
    }

    Vandal first;
    Vandal second;
};

} // namespace

/// The OpenGL state that guests of the field view find, and the state that they leave.
class TestFieldSceneGuestState : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void everyGuestFindsWhatIsPromisedWhateverTheOneBeforeLeft();
};

void TestFieldSceneGuestState::everyGuestFindsWhatIsPromisedWhateverTheOneBeforeLeft()
{
    QOffscreenSurface surface;
    surface.create();
    QOpenGLContext context;
    QVERIFY(context.create() && context.makeCurrent(&surface));
    QOpenGLFramebufferObject buffer(viewSize);
    QVERIFY(buffer.bind());
    Camera camera;
    camera.setViewport(viewSize);
    VandalList list;
    FieldScene scene;
    scene.initialize();
    scene.addGraphicsList(&list);
    const int frames = 2;
    for (int i = 0; i < frames; ++i)
        scene.draw(camera, FieldScene::Aids::Hidden);
    for (const Vandal *guest : {&list.first, &list.second}) {
        QCOMPARE(guest->found.size(), frames);
        for (const QMap<QString, int> &found : guest->found)
            QCOMPARE(lines(found), lines(promisedState()));
    }
    // Whatever is composed after the frame starts from the same state.
    QCOMPARE(lines(stateNow()), lines(promisedState()));
    GLint program = -1;
    context.functions()->glGetIntegerv(GL_CURRENT_PROGRAM, &program);
    QCOMPARE(program, 0);
}

RXMAP_TEST(TestFieldSceneGuestState, Widgets)
#include "tst_fieldscene_gueststate.moc"
