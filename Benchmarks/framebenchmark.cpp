// A frame's draw beside the same draw calls with everything set up beforehand, untimed. Needs a display with OpenGL.
// The view is one pixel large: filling pixels costs both sides the same and would hide what drawing adds.

#include "benchmarkhost.h"
#include "currentcontext.h"
#include "mapkinds.h"
#include "rxmap3d.h"
#include "rxmap3dprobe.h"
#include "sidebyside.h"

#include <QGuiApplication>
#include <QMatrix4x4>
#include <QOpenGLFramebufferObject>
#include <QOpenGLFunctions>
#include <QOpenGLShaderProgram>

namespace {

constexpr int framesAtOnce = 3;

/// The view from straight above that holds all vertices.
QMatrix4x4 viewOf(const QVector<Vertex> &vertices)
{
    float left = vertices.at(0).x;
    float right = left;
    float north = vertices.at(0).z;
    float south = north;
    for (const Vertex &vertex : vertices) {
        left = std::min(left, vertex.x);
        right = std::max(right, vertex.x);
        north = std::min(north, vertex.z);
        south = std::max(south, vertex.z);
    }
    QMatrix4x4 view;
    view.ortho(left, right, -south, -north, -10.0F, 10.0F);
    view.rotate(90.0F, 1.0F, 0.0F, 0.0F);
    return view;
}

/// The draw calls alone, with the program bound and the arrays set.
class BareFrame {
public:
    BareFrame(const QVector<Vertex> &bank, const QMatrix4x4 &view)
        : vertices(bank)
    {
        program.addShaderFromSourceFile(QOpenGLShader::Vertex, QStringLiteral(":/colorpoly_vert.glsl"));
        program.addShaderFromSourceFile(QOpenGLShader::Fragment, QStringLiteral(":/colorpoly_frag.glsl"));
        program.link();
        program.bind();
        program.setUniformValueArray("u_mvp", &view, 1);
    }

    void draw() { QOpenGLContext::currentContext()->functions()->glDrawArrays(GL_TRIANGLES, 0, vertices.size()); }

    void prepare()
    {
        program.bind();
        program.enableAttributeArray("a_position");
        program.enableAttributeArray("color");
        program.setAttributeArray("a_position", GL_FLOAT, &vertices.constData()->x, 3, sizeof(Vertex));
        program.setAttributeArray("color", GL_UNSIGNED_BYTE, &vertices.constData()->color, 4, sizeof(Vertex));
    }

private:
    QVector<Vertex> vertices;
    QOpenGLShaderProgram program;
};

void frame(benchmark::State &state, const NamedMap &kind)
{
    if (qobject_cast<QGuiApplication *>(QCoreApplication::instance()) == nullptr) {
        state.SkipWithError("there is no display");
        return;
    }
    const CurrentContext context;
    if (!context.isValid()) {
        state.SkipWithError("the display has no OpenGL");
        return;
    }
    QOpenGLFramebufferObject target(1, 1);
    target.bind();
    QOpenGLFunctions &gl = *QOpenGLContext::currentContext()->functions();
    gl.glViewport(0, 0, 1, 1);
    BenchmarkMap map = kind.make();
    BenchmarkHost host(map);
    host.drawable().init();
    const QVector<Vertex> vertices = RxMap3DProbe::banks(host.drawable()).at(0).vertices;
    const QMatrix4x4 view = viewOf(vertices);
    BareFrame bare(vertices, view);
    // The graphics driver carries out its commands while the program waits for it.
    compareSideBySide(
        state, "over_bare",
        [&] {
            for (int i = 0; i < framesAtOnce; ++i)
                host.drawable().draw(view);
            gl.glFinish();
        },
        [&] {
            for (int i = 0; i < framesAtOnce; ++i)
                bare.draw();
            gl.glFinish();
        },
        [&] {
            bare.prepare();
            gl.glFinish();
        });
    state.counters["triangles"] = vertices.size() / 3;
}

const bool areMapsAdded = [] {
    for (const NamedMap &map : rebuildMaps())
        benchmark::RegisterBenchmark(("Frame/" + map.name).c_str(), frame, map)->UseManualTime()->Iterations(31);
    return true;
}();

} // namespace
