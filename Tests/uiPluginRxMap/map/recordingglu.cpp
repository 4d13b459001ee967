#include "recordingglu.h"

#include <GL/glu.h>
#include <dlfcn.h>

namespace {

struct Record {
    QStringList calls;
    std::map<unsigned int, void (*)()> callbacks;
    int living = 0;
    bool failNext = false;
};

Record &record()
{
    static Record instance;
    return instance;
}

template <typename Function> Function real(const char *name)
{
    // By its name, since every function called here is defined here: the linker sees no need for the library.
    static void *const library = dlopen("libGLU.so.1", RTLD_NOW);
    return reinterpret_cast<Function>(dlsym(library, name));
}

void note(const QString &call)
{
    record().calls.append(call);
}

/// Every double gets a text of its own.
QString exact(double value)
{
    return QString::number(value, 'g', 17);
}

} // namespace

void RecordingGlu::clear()
{
    record().calls.clear();
    record().callbacks.clear();
    record().failNext = false;
}

QStringList RecordingGlu::calls()
{
    return record().calls;
}

int RecordingGlu::count(const QString &function)
{
    int found = 0;
    for (const QString &call : qAsConst(record().calls))
        found += call == function || call.startsWith(function + QLatin1Char(' ')) ? 1 : 0;
    return found;
}

std::map<unsigned int, void (*)()> RecordingGlu::callbacks()
{
    return record().callbacks;
}

int RecordingGlu::living()
{
    return record().living;
}

void RecordingGlu::failNext()
{
    record().failNext = true;
}

extern "C" {

GLUtesselator *gluNewTess(void)
{
    note(QStringLiteral("gluNewTess"));
    if (record().failNext) {
        record().failNext = false;
        return nullptr;
    }
    ++record().living;
    return real<decltype(&gluNewTess)>("gluNewTess")();
}

void gluDeleteTess(GLUtesselator *tess)
{
    note(QStringLiteral("gluDeleteTess"));
    --record().living;
    real<decltype(&gluDeleteTess)>("gluDeleteTess")(tess);
}

void gluTessCallback(GLUtesselator *tess, GLenum which, _GLUfuncptr callback)
{
    note(QStringLiteral("gluTessCallback %1").arg(which));
    record().callbacks[which] = callback;
    real<decltype(&gluTessCallback)>("gluTessCallback")(tess, which, callback);
}

void gluTessBeginPolygon(GLUtesselator *tess, GLvoid *data)
{
    note(data == nullptr ? QStringLiteral("gluTessBeginPolygon null") : QStringLiteral("gluTessBeginPolygon data"));
    real<decltype(&gluTessBeginPolygon)>("gluTessBeginPolygon")(tess, data);
}

void gluTessBeginContour(GLUtesselator *tess)
{
    note(QStringLiteral("gluTessBeginContour"));
    real<decltype(&gluTessBeginContour)>("gluTessBeginContour")(tess);
}

void gluTessVertex(GLUtesselator *tess, GLdouble *location, GLvoid *data)
{
    note(QStringLiteral("gluTessVertex %1 %2 %3 #%4")
             .arg(exact(location[0]))
             .arg(exact(location[1]))
             .arg(exact(location[2]))
             .arg(reinterpret_cast<quintptr>(data)));
    real<decltype(&gluTessVertex)>("gluTessVertex")(tess, location, data);
}

void gluTessEndContour(GLUtesselator *tess)
{
    note(QStringLiteral("gluTessEndContour"));
    real<decltype(&gluTessEndContour)>("gluTessEndContour")(tess);
}

void gluTessEndPolygon(GLUtesselator *tess)
{
    note(QStringLiteral("gluTessEndPolygon"));
    real<decltype(&gluTessEndPolygon)>("gluTessEndPolygon")(tess);
}

void gluTessProperty(GLUtesselator *tess, GLenum which, GLdouble value)
{
    note(QStringLiteral("gluTessProperty %1 %2").arg(which).arg(value));
    real<decltype(&gluTessProperty)>("gluTessProperty")(tess, which, value);
}

void gluTessNormal(GLUtesselator *tess, GLdouble x, GLdouble y, GLdouble z)
{
    note(QStringLiteral("gluTessNormal %1 %2 %3").arg(x).arg(y).arg(z));
    real<decltype(&gluTessNormal)>("gluTessNormal")(tess, x, y, z);
}

} // extern "C"
