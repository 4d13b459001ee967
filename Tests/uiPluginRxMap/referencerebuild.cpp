#include "referencerebuild.h"

#include "referenceplacement.h"

#include <GL/glu.h>
#include <cmath>
#include <cstdint>
#include <deque>

using OrvikTypes::RX_POLYGON;

namespace {

struct Location {
    double coordinates[3];
};

QVector<unsigned int> emitted;

void onVertex(void *position)
{
    emitted.append(static_cast<unsigned int>(reinterpret_cast<std::uintptr_t>(position)));
}

void onEdge(GLboolean /*flag*/) { }

void onCombine(GLdouble * /*location*/, void ** /*vertices*/, GLfloat * /*weights*/, void ** /*made*/) { }

QColor colorOf(double rate, const QList<OrvikTypes::RX_RATECOLOR> &legend, const QColor &before)
{
    for (const OrvikTypes::RX_RATECOLOR &entry : legend) {
        if (entry.rate >= rate)
            return entry.color;
    }
    return legend.isEmpty() ? before : legend.last().color;
}

quint32 packed(const QColor &color)
{
    double red = 0.0;
    double green = 0.0;
    double blue = 0.0;
    double alpha = 1.0;
    color.getRgbF(&red, &green, &blue, &alpha);
    const auto byte = [](double component) { return static_cast<quint32>(255.0 * component + 0.5); };
    return byte(red) + 256U * byte(green) + 65536U * byte(blue) + 16777216U * byte(0.5 * alpha);
}

void addContour(GLUtesselator *tessellator, const RX_POLYGON &ring, std::deque<Location> &locations)
{
    gluTessBeginContour(tessellator);
    for (int i = 0; i < referenceVertexCount(ring); ++i) {
        const double x = ring.vertices[i].x;
        const double y = ring.vertices[i].y;
        // The tessellator crashes on NaN, so such vertices are left out.
        if (std::isnan(x) || std::isnan(y))
            continue;
        locations.push_back({{x, static_cast<double>(-4.99F), -y}});
        gluTessVertex(tessellator, locations.back().coordinates, reinterpret_cast<void *>(locations.size() - 1));
    }
    gluTessEndContour(tessellator);
}

/// The vertices that GLU emits for an outer ring and its holes.
QVector<Vertex> tessellate(const RX_POLYGON &outer, const QVector<RX_POLYGON *> &holes, const QColor &color)
{
    GLUtesselator *tessellator = gluNewTess();
    gluTessCallback(tessellator, GLU_TESS_VERTEX, reinterpret_cast<_GLUfuncptr>(onVertex));
    gluTessCallback(tessellator, GLU_TESS_EDGE_FLAG, reinterpret_cast<_GLUfuncptr>(onEdge));
    gluTessCallback(tessellator, GLU_TESS_COMBINE, reinterpret_cast<_GLUfuncptr>(onCombine));
    std::deque<Location> locations;
    emitted.clear();
    gluTessBeginPolygon(tessellator, nullptr);
    addContour(tessellator, outer, locations);
    for (const RX_POLYGON *hole : holes)
        addContour(tessellator, *hole, locations);
    gluTessEndPolygon(tessellator);
    gluDeleteTess(tessellator);
    QVector<Vertex> vertices;
    for (const unsigned int position : qAsConst(emitted)) {
        if (position >= locations.size())
            continue;
        const double *location = locations[position].coordinates;
        vertices.append({static_cast<float>(location[0]), static_cast<float>(location[1]),
                         static_cast<float>(location[2]), packed(color)});
    }
    return vertices;
}

} // namespace

ReferenceRebuild referenceRebuild(RX_POLYGON *chain, unsigned int count, const QList<OrvikTypes::RX_RATECOLOR> &legend,
                                  QColor carriedOver)
{
    QVector<RX_POLYGON *> outers;
    QVector<RX_POLYGON *> holes;
    QVector<RX_POLYGON *> records;
    for (RX_POLYGON *polygon = chain; count > 0; polygon = polygon->next, --count) {
        (polygon->isHole ? holes : outers).append(polygon);
        records.append(polygon);
    }
    ReferenceRebuild made;
    for (const RX_POLYGON *record : qAsConst(records))
        made.drawIndexes.append(record->drawIndex);
    const QVector<QVector<int>> cut = referencePlacement(outers, holes);
    QVector<RX_POLYGON *> unplaced = holes;
    for (int outer = 0; outer < outers.size(); ++outer) {
        const RX_POLYGON &polygon = *outers.at(outer);
        if (polygon.rates != nullptr)
            carriedOver = colorOf(static_cast<double>(polygon.rates[0]), legend, carriedOver);
        QVector<RX_POLYGON *> here;
        for (const int hole : cut.at(outer)) {
            here.append(holes.at(hole));
            unplaced.removeOne(holes.at(hole));
        }
        const QVector<Vertex> triangles = tessellate(polygon, here, carriedOver);
        for (int i = 0; i < triangles.size(); ++i)
            made.vertices.append(triangles.at(i % 3 == 0 ? i + 2 : i % 3 == 1 ? i : i - 2));
        made.drawIndexes[records.indexOf(outers.at(outer))] = outer + 1;
    }
    for (RX_POLYGON *hole : qAsConst(unplaced))
        made.drawIndexes[records.indexOf(hole)] = -1;
    made.carriedOver = carriedOver;
    return made;
}
