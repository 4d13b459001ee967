#include "polygontessellation.h"

#include "placement/ringtest.h"
#include "tesscallbacks.h"

#include <GL/glu.h>
#include <cmath>

namespace {

template <typename Callback> void registerCallback(GLUtesselator *tessellator, GLenum which, Callback callback)
{
    gluTessCallback(tessellator, which, reinterpret_cast<_GLUfuncptr>(callback));
}

/// Empties `list`, and frees the memory of a large one: when such a large block is requested again, glibc joins the
/// small ones freed before, so that what the tessellator makes for the next polygon lies close together. Large polygons
/// gain much by it (docs/measurements.md); small ones would only pay.
void emptyOut(QVector<RXVERT *> &list)
{
    constexpr int maxKept = 128;
    if (list.size() > maxKept)
        list = QVector<RXVERT *>();
    else
        list.resize(0);
}

/// Makes room for all triangles of a polygon at once. The old room is freed first: this is when memory use is highest.
void makeRoom(int vertices)
{
    if (vList.capacity() >= vertices)
        return;
    vList = QVector<Vertex>();
    vList.reserve(vertices);
}

} // namespace

PolygonTessellation::PolygonTessellation(GLUtesselator *givenTessellator, QVector<Vertex> &givenTriangles)
    : tessellator(givenTessellator)
    , triangles(givenTriangles)
{
}

void PolygonTessellation::registerCallbacks(GLUtesselator *tessellator)
{
    registerCallback(tessellator, GLU_TESS_BEGIN, tessBeginCB);
    registerCallback(tessellator, GLU_TESS_VERTEX, tessVertexCB);
    registerCallback(tessellator, GLU_TESS_EDGE_FLAG, tessEdgeCB);
    registerCallback(tessellator, GLU_TESS_COMBINE, tessCombineCB);
    registerCallback(tessellator, GLU_TESS_END, tessEndCB);
}

void PolygonTessellation::beginPolygon(const QColor &color)
{
    contours = 0;
    gluTessBeginPolygon(tessellator, nullptr);
    // What an invalid colour reads as; Qt may leave the arguments untouched for one.
    red = green = blue = 0.0;
    alpha = 1.0;
    color.getRgbF(&red, &green, &blue, &alpha);
}

void PolygonTessellation::addContour(const OrvikTypes::RX_POLYGON &ring)
{
    ++contours;
    gluTessBeginContour(tessellator);
    for (int i = 0; i < vertexCount(ring); ++i) {
        const OrvikTypes::RX_POLYGONVERTEX &from = ring.vertices[i];
        // The tessellator crashes on NaN.
        if (std::isnan(from.x) || std::isnan(from.y))
            continue;
        // By design: half the alpha, so that the ground shows through every polygon.
        auto *vertex = new RXVERT{from.x, static_cast<double>(mapHeight), -from.y, red, green, blue, 0.5 * alpha};
        const auto position = static_cast<quintptr>(coordList.size());
        coordList.append(vertex);
        // NOLINTNEXTLINE(performance-no-int-to-ptr): the callbacks take the place in the list back out of the pointer.
        gluTessVertex(tessellator, &vertex->x, reinterpret_cast<void *>(position));
    }
    gluTessEndContour(tessellator);
}

void PolygonTessellation::endPolygon()
{
    makeRoom(triangleVertices(coordList.size(), 1, contours - 1));
    gluTessEndPolygon(tessellator);
    const int start = triangles.size();
    // GLU emits whole triangles, unless it gave one up half way.
    const int emitted = vList.size() - vList.size() % 3;
    triangles.resize(start + emitted);
    const Vertex *from = vList.constData();
    Vertex *to = triangles.data() + start;
    // By design: each triangle is taken backwards, which reverses its winding.
    for (int i = 0; i < emitted; i += 3) {
        to[i] = from[i + 2];
        to[i + 1] = from[i + 1];
        to[i + 2] = from[i];
    }
    vList.resize(0);
    qDeleteAll(coordList);
    emptyOut(coordList);
}
