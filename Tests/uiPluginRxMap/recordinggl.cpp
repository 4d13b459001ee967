#include "recordinggl.h"

#include <QMap>
#include <QOpenGLContext>

namespace {

using Table = QOpenGLFunctionsPrivate::Functions;

/// Opens the function table that all users of a context share.
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
};

Record record;

void note(const QString &call)
{
    record.calls.append(call);
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
    note(QStringLiteral("glUniformMatrix4fv count %1 transpose %2 first %3")
             .arg(count)
             .arg(transpose)
             .arg(static_cast<double>(value[0])));
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
    note(QStringLiteral("glCreateShader 0x%1").arg(type, 0, 16));
    return record.real.CreateShader(type);
}

void QOPENGLF_APIENTRY compileShader(GLuint shader)
{
    note(QStringLiteral("glCompileShader"));
    record.real.CompileShader(shader);
}

void QOPENGLF_APIENTRY attachShader(GLuint program, GLuint shader)
{
    note(QStringLiteral("glAttachShader"));
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

const void *RecordingGl::pointerOf(unsigned int attribute)
{
    return record.pointers.value(attribute);
}
