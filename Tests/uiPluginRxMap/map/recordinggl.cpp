#include "recordinggl.h"

#include <QMap>
#include <QOpenGLContext>

#include <utility>

namespace {

using Table = QOpenGLFunctionsPrivate::Functions;

/// Makes the function table accessible that all users of a context share.
class Opener : public QOpenGLFunctions {
public:
    static Table &table()
    {
        QOpenGLFunctions *functions = QOpenGLContext::currentContext()->functions();
        return (functions->*(&Opener::d_ptr))->f;
    }
};

struct Record {
    Table real;
    QStringList calls;
    QList<unsigned int> errors;
    QMap<unsigned int, const void *> pointers;
    QMap<unsigned int, QString> shaders; ///< The type of each shader.
    std::function<void(const QString &)> watcher;
};

Record record;

void note(const QString &call)
{
    record.calls.append(call);
    if (record.watcher)
        record.watcher(call);
}

void QOPENGLF_APIENTRY useProgram(GLuint program)
{
    note(program == 0 ? QStringLiteral("glUseProgram 0") : QStringLiteral("glUseProgram"));
    record.real.UseProgram(program);
}

void QOPENGLF_APIENTRY enableArray(GLuint index)
{
    note(QStringLiteral("glEnableVertexAttribArray %1").arg(index));
    record.real.EnableVertexAttribArray(index);
}

void QOPENGLF_APIENTRY disableArray(GLuint index)
{
    note(QStringLiteral("glDisableVertexAttribArray %1").arg(index));
    record.real.DisableVertexAttribArray(index);
}

void QOPENGLF_APIENTRY uniformMatrix(GLint location, GLsizei count, GLboolean transpose, const GLfloat *value)
{
    QStringList values;
    for (int i = 0; i < 16; ++i)
        values.append(QString::number(static_cast<double>(value[i])));
    note(QStringLiteral("glUniformMatrix4fv count %1 transpose %2 values %3")
             .arg(count)
             .arg(transpose)
             .arg(values.join(QLatin1Char(' '))));
    record.real.UniformMatrix4fv(location, count, transpose, value);
}

void QOPENGLF_APIENTRY attribPointer(GLuint index, GLint size, GLenum type, GLboolean normalized, GLsizei stride,
                                     const void *pointer)
{
    note(QStringLiteral("glVertexAttribPointer %1 size %2 type 0x%3 stride %4%5")
             .arg(index)
             .arg(size)
             .arg(type, 0, 16)
             .arg(stride)
             .arg(QLatin1String(normalized == GL_TRUE && type == GL_UNSIGNED_BYTE ? " normalised" : "")));
    record.pointers[index] = pointer;
    record.real.VertexAttribPointer(index, size, type, normalized, stride, pointer);
}

void QOPENGLF_APIENTRY drawArrays(GLenum mode, GLint first, GLsizei count)
{
    note(QStringLiteral("glDrawArrays %1 %2 %3").arg(mode).arg(first).arg(count));
    record.real.DrawArrays(mode, first, count);
}

GLenum QOPENGLF_APIENTRY getError()
{
    note(QStringLiteral("glGetError"));
    return record.errors.isEmpty() ? record.real.GetError() : record.errors.takeFirst();
}

GLuint QOPENGLF_APIENTRY createShader(GLenum type)
{
    const QString name = QStringLiteral("0x%1").arg(type, 0, 16);
    note(QStringLiteral("glCreateShader ") + name);
    const GLuint shader = record.real.CreateShader(type);
    record.shaders[shader] = name;
    return shader;
}

void QOPENGLF_APIENTRY compileShader(GLuint shader)
{
    note(QStringLiteral("glCompileShader ") + record.shaders.value(shader));
    record.real.CompileShader(shader);
}

void QOPENGLF_APIENTRY attachShader(GLuint program, GLuint shader)
{
    note(QStringLiteral("glAttachShader ") + record.shaders.value(shader));
    record.real.AttachShader(program, shader);
}

void QOPENGLF_APIENTRY linkProgram(GLuint program)
{
    note(QStringLiteral("glLinkProgram"));
    record.real.LinkProgram(program);
}

void QOPENGLF_APIENTRY enableState(GLenum capability)
{
    note(QStringLiteral("glEnable 0x%1").arg(capability, 0, 16));
    record.real.Enable(capability);
}

void QOPENGLF_APIENTRY disableState(GLenum capability)
{
    note(QStringLiteral("glDisable 0x%1").arg(capability, 0, 16));
    record.real.Disable(capability);
}

void QOPENGLF_APIENTRY bindBuffer(GLenum target, GLuint buffer)
{
    note(QStringLiteral("glBindBuffer 0x%1 %2").arg(target, 0, 16).arg(buffer));
    record.real.BindBuffer(target, buffer);
}

void QOPENGLF_APIENTRY blendFunc(GLenum source, GLenum destination)
{
    note(QStringLiteral("glBlendFunc 0x%1 0x%2").arg(source, 0, 16).arg(destination, 0, 16));
    record.real.BlendFunc(source, destination);
}

void QOPENGLF_APIENTRY blendFuncSeparate(GLenum source, GLenum destination, GLenum sourceAlpha, GLenum destinationAlpha)
{
    note(QStringLiteral("glBlendFuncSeparate 0x%1 0x%2 0x%3 0x%4")
             .arg(source, 0, 16)
             .arg(destination, 0, 16)
             .arg(sourceAlpha, 0, 16)
             .arg(destinationAlpha, 0, 16));
    record.real.BlendFuncSeparate(source, destination, sourceAlpha, destinationAlpha);
}

void QOPENGLF_APIENTRY depthMask(GLboolean flag)
{
    note(QStringLiteral("glDepthMask %1").arg(flag));
    record.real.DepthMask(flag);
}

void QOPENGLF_APIENTRY depthFunc(GLenum function)
{
    note(QStringLiteral("glDepthFunc 0x%1").arg(function, 0, 16));
    record.real.DepthFunc(function);
}

void QOPENGLF_APIENTRY cullFace(GLenum mode)
{
    note(QStringLiteral("glCullFace 0x%1").arg(mode, 0, 16));
    record.real.CullFace(mode);
}

void QOPENGLF_APIENTRY viewport(GLint x, GLint y, GLsizei width, GLsizei height)
{
    note(QStringLiteral("glViewport %1 %2 %3 %4").arg(x).arg(y).arg(width).arg(height));
    record.real.Viewport(x, y, width, height);
}

void QOPENGLF_APIENTRY colorMask(GLboolean red, GLboolean green, GLboolean blue, GLboolean alpha)
{
    note(QStringLiteral("glColorMask %1 %2 %3 %4").arg(red).arg(green).arg(blue).arg(alpha));
    record.real.ColorMask(red, green, blue, alpha);
}

void QOPENGLF_APIENTRY activeTexture(GLenum texture)
{
    note(QStringLiteral("glActiveTexture 0x%1").arg(texture, 0, 16));
    record.real.ActiveTexture(texture);
}

} // namespace

RecordingGl::RecordingGl()
{
    Table &table = Opener::table();
    record = Record();
    record.real = table;
    table.UseProgram = useProgram;
    table.EnableVertexAttribArray = enableArray;
    table.DisableVertexAttribArray = disableArray;
    table.UniformMatrix4fv = uniformMatrix;
    table.VertexAttribPointer = attribPointer;
    table.DrawArrays = drawArrays;
    table.GetError = getError;
    table.CreateShader = createShader;
    table.CompileShader = compileShader;
    table.AttachShader = attachShader;
    table.LinkProgram = linkProgram;
    table.Enable = enableState;
    table.Disable = disableState;
    table.BindBuffer = bindBuffer;
    table.BlendFunc = blendFunc;
    table.BlendFuncSeparate = blendFuncSeparate;
    table.DepthMask = depthMask;
    table.DepthFunc = depthFunc;
    table.CullFace = cullFace;
    table.Viewport = viewport;
    table.ColorMask = colorMask;
    table.ActiveTexture = activeTexture;
}

RecordingGl::~RecordingGl()
{
    if (QOpenGLContext::currentContext() != nullptr)
        Opener::table() = record.real;
}

QStringList RecordingGl::calls() const
{
    return record.calls;
}

int RecordingGl::count(const QString &function) const
{
    int found = 0;
    for (const QString &call : qAsConst(record.calls))
        found += call == function || call.startsWith(function + QLatin1Char(' ')) ? 1 : 0;
    return found;
}

void RecordingGl::clear()
{
    record.calls.clear();
}

void RecordingGl::pend(const QList<unsigned int> &errors)
{
    record.errors = errors;
}

void RecordingGl::watch(std::function<void(const QString &)> watcher)
{
    record.watcher = std::move(watcher);
}

const void *RecordingGl::pointerOf(unsigned int attribute)
{
    return record.pointers.value(attribute);
}
