#include "glustub.h"

#include "allocationmeter.h"

#include <GL/glu.h>
#include <algorithm>
#include <cstdint>
#include <dlfcn.h>

namespace {

struct Count {
    std::size_t polygons = 0;
    std::size_t contours = 0;
    std::size_t vertices = 0;
    std::size_t triangles = 0;
};

bool isStubbed = false;
Count polygon;
Count all;
Count largest;
void (*vertexCallback)(void *) = nullptr;

/// The library's own function behind the one of the same name here.
template <typename Function> Function real(Function /*type*/, const char *name)
{
    // By its name: since every function called is defined here, the linker does not link the library.
    static void *const library = dlopen("libGLU.so.1", RTLD_NOW);
    return reinterpret_cast<Function>(dlsym(library, name));
}

void answerWithTriangles()
{
    const std::size_t corners = polygon.vertices + 2 * polygon.contours;
    polygon.triangles = corners > 4 ? corners - 4 : 0;
    std::uintptr_t vertex = 0;
    for (std::size_t corner = 0; corner < 3 * polygon.triangles; ++corner) {
        vertexCallback(reinterpret_cast<void *>(vertex));
        vertex = vertex + 1 < polygon.vertices ? vertex + 1 : 0;
    }
}

void countPolygon()
{
    ++all.polygons;
    all.contours += polygon.contours;
    all.vertices += polygon.vertices;
    largest.vertices = std::max(largest.vertices, polygon.vertices);
    largest.triangles = std::max(largest.triangles, polygon.triangles);
}

} // namespace

GluStub::GluStub()
{
    isStubbed = true;
    all = Count();
    largest = Count();
}

GluStub::~GluStub()
{
    isStubbed = false;
}

std::size_t GluStub::polygons() const
{
    return all.polygons;
}

std::size_t GluStub::contours() const
{
    return all.contours;
}

std::size_t GluStub::vertices() const
{
    return all.vertices;
}

std::size_t GluStub::largestPolygonVertices() const
{
    return largest.vertices;
}

std::size_t GluStub::largestPolygonTriangles() const
{
    return largest.triangles;
}

extern "C" {

GLUtesselator *gluNewTess(void)
{
    static const auto original = real(&gluNewTess, "gluNewTess");
    const AllocationMeter::Pause pause;
    return original();
}

void gluDeleteTess(GLUtesselator *tess)
{
    static const auto original = real(&gluDeleteTess, "gluDeleteTess");
    const AllocationMeter::Pause pause;
    original(tess);
}

void gluTessCallback(GLUtesselator *tess, GLenum which, _GLUfuncptr callback)
{
    static const auto original = real(&gluTessCallback, "gluTessCallback");
    if (which == GLU_TESS_VERTEX)
        vertexCallback = reinterpret_cast<void (*)(void *)>(callback);
    original(tess, which, callback);
}

void gluTessBeginPolygon(GLUtesselator *tess, GLvoid *data)
{
    static const auto original = real(&gluTessBeginPolygon, "gluTessBeginPolygon");
    polygon = Count();
    if (!isStubbed)
        original(tess, data);
}

void gluTessBeginContour(GLUtesselator *tess)
{
    static const auto original = real(&gluTessBeginContour, "gluTessBeginContour");
    if (isStubbed)
        ++polygon.contours;
    else
        original(tess);
}

void gluTessVertex(GLUtesselator *tess, GLdouble *location, GLvoid *data)
{
    static const auto original = real(&gluTessVertex, "gluTessVertex");
    if (isStubbed)
        ++polygon.vertices;
    else
        original(tess, location, data);
}

void gluTessEndContour(GLUtesselator *tess)
{
    static const auto original = real(&gluTessEndContour, "gluTessEndContour");
    if (!isStubbed)
        original(tess);
}

void gluTessEndPolygon(GLUtesselator *tess)
{
    static const auto original = real(&gluTessEndPolygon, "gluTessEndPolygon");
    if (!isStubbed) {
        original(tess);
        return;
    }
    answerWithTriangles();
    countPolygon();
}

} // extern "C"
