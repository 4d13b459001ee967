#include "openglcheck.h"

#include <QFile>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFramebufferObject>
#include <QOpenGLFunctions>
#include <QOpenGLShaderProgram>
#include <QSurfaceFormat>

#include <initializer_list>
#include <utility>

/// A static library's resources have to be asked for, from outside of any namespace.
static void initialiseShaders()
{
    Q_INIT_RESOURCE(terminal);
}

namespace {

/// Through plain OpenGL: Qt's own shader class would write lines of its own about a failure.
bool canLinkShaders(QOpenGLFunctions &gl)
{
    const GLuint program = gl.glCreateProgram();
    // A program also links when a shader could not be made.
    GLint isLinked = GL_TRUE;
    for (const auto &[kind, path] : std::initializer_list<std::pair<GLenum, const char *>>{
             {GL_VERTEX_SHADER, ":/colorpoly_vert.glsl"}, {GL_FRAGMENT_SHADER, ":/colorpoly_frag.glsl"}}) {
        QFile file(QString::fromLatin1(path));
        file.open(QIODevice::ReadOnly);
        const QByteArray source = file.readAll();
        const char *text = source.constData();
        const GLuint shader = gl.glCreateShader(kind);
        gl.glShaderSource(shader, 1, &text, nullptr);
        gl.glCompileShader(shader);
        GLint isCompiled = GL_FALSE;
        gl.glGetShaderiv(shader, GL_COMPILE_STATUS, &isCompiled);
        if (isCompiled == GL_FALSE)
            isLinked = GL_FALSE;
        gl.glAttachShader(program, shader);
        gl.glDeleteShader(shader);
    }
    if (isLinked == GL_TRUE) {
        gl.glLinkProgram(program);
        gl.glGetProgramiv(program, GL_LINK_STATUS, &isLinked);
    }
    gl.glDeleteProgram(program);
    return isLinked == GL_TRUE;
}

} // namespace

void OpenGlCheck::chooseKind()
{
    if (qgetenv("QT_OPENGL") != "es2")
        return;
    QSurfaceFormat format = QSurfaceFormat::defaultFormat();
    format.setRenderableType(QSurfaceFormat::OpenGLES);
    format.setVersion(2, 0);
    QSurfaceFormat::setDefaultFormat(format);
}

QString OpenGlCheck::problem()
{
    initialiseShaders();
    const QString none = QStringLiteral("the display has no OpenGL");
    QOpenGLContext context;
    if (!context.create())
        return none;
    QOffscreenSurface surface;
    surface.create();
    if (!context.makeCurrent(&surface))
        return none;
    const char *const version = reinterpret_cast<const char *>(context.functions()->glGetString(GL_VERSION));
    const QString driver = QStringLiteral("the display's OpenGL (%1) ").arg(QString::fromLatin1(version));
    if (!QOpenGLFramebufferObject::hasOpenGLFramebufferObjects())
        return driver + QStringLiteral("has no framebuffer objects");
    if (!QOpenGLShaderProgram::hasOpenGLShaderPrograms() || !canLinkShaders(*context.functions()))
        return driver + QStringLiteral("cannot run the shaders that the map is drawn with");
    return {};
}
