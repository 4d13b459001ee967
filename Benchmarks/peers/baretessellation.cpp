#include "baretessellation.h"

#include "placement/holeplacement.h"
#include "placement/ringbox.h"
#include "placement/ringlists.h"
#include "placement/ringtest.h"
#include "tesscallbacks.h"

#include <GL/glu.h>
#include <algorithm>
#include <utility>

using OrvikTypes::RX_POLYGON;

namespace {

/// Whether all narrowed vertices of the hole are inside the outer ring, by one of the two tests edge by edge.
template <typename Test> bool contains(const RX_POLYGON &outer, const RX_POLYGON &hole, Test isInside)
{
    for (int i = 0; i < vertexCount(hole); ++i) {
        const OrvikTypes::RX_POLYGONVERTEX point = narrowed(hole.vertices[i]);
        if (!isInside(outer.vertices, vertexCount(outer), point.x, point.y))
            return false;
    }
    return vertexCount(hole) > 0;
}

template <typename Callback> void registerCallback(GLUtesselator *tessellator, GLenum which, Callback callback)
{
    gluTessCallback(tessellator, which, reinterpret_cast<_GLUfuncptr>(callback));
}

QColor colorOf(double rate, const QList<OrvikTypes::RX_RATECOLOR> &legend)
{
    for (const OrvikTypes::RX_RATECOLOR &entry : legend) {
        if (entry.rate >= rate)
            return entry.color;
    }
    return legend.constLast().color;
}

void addContour(GLUtesselator *tessellator, const RX_POLYGON &ring, const RXVERT &color)
{
    gluTessBeginContour(tessellator);
    for (int i = 0; i < vertexCount(ring); ++i) {
        auto *vertex = new RXVERT(color);
        vertex->x = ring.vertices[i].x;
        vertex->z = -ring.vertices[i].y;
        const auto position = static_cast<quintptr>(coordList.size());
        coordList.append(vertex);
        gluTessVertex(tessellator, &vertex->x, reinterpret_cast<void *>(position));
    }
    gluTessEndContour(tessellator);
}

void appendReversed(const QVector<Vertex> &from, QVector<Vertex> &bank)
{
    const int start = bank.size();
    bank.resize(start + from.size());
    Vertex *to = bank.data() + start;
    for (int i = 0; i < from.size(); i += 3) {
        to[i] = from.at(i + 2);
        to[i + 1] = from.at(i + 1);
        to[i + 2] = from.at(i);
    }
}

} // namespace

Placement referencePlacement(RX_POLYGON *chain, unsigned int count)
{
    RingLists rings(chain, count);
    QVector<RX_POLYGON *> &holes = rings.holes;
    Placement placement;
    for (const RX_POLYGON *outer : qAsConst(rings.outers)) {
        std::vector<RX_POLYGON *> here;
        // Shares its memory with `holes` until a hole is taken out.
        const QVector<RX_POLYGON *> snapshot = holes;
        int position = 0;
        for (RX_POLYGON *hole : snapshot) {
            if (!(outer->area - 10.0 > hole->area) || !contains(*outer, *hole, isInsideRing)) {
                ++position;
                continue;
            }
            here.push_back(hole);
            holes.removeAt(position);
        }
        placement.push_back(std::move(here));
    }
    return placement;
}

Placement edgePlacement(RX_POLYGON *chain, unsigned int count)
{
    const RingLists rings(chain, count);
    std::vector<std::pair<Box, RX_POLYGON *>> live;
    for (RX_POLYGON *hole : rings.holes) {
        live.push_back({{}, hole});
        boxOfHole(*hole, live.back().first);
    }
    Placement placement;
    for (const RX_POLYGON *outer : rings.outers) {
        Box box{};
        boxOfOuter(*outer, box);
        std::vector<RX_POLYGON *> here;
        const auto isTaken = [outer, &box, &here](const std::pair<Box, RX_POLYGON *> &entry) {
            const RX_POLYGON &hole = *entry.second;
            if (!(outer->area - 10.0 > hole.area) || !box.contains(entry.first)
                || !contains(*outer, hole, isInsideOrdinaryRing))
                return false;
            here.push_back(entry.second);
            return true;
        };
        live.erase(std::remove_if(live.begin(), live.end(), isTaken), live.end());
        placement.push_back(std::move(here));
    }
    return placement;
}

Placement fastPlacement(RX_POLYGON *chain, unsigned int count)
{
    const RingLists rings(chain, count);
    const HolePlacement fast(rings.outers, rings.holes);
    Placement placement(static_cast<std::size_t>(rings.outers.size()));
    for (int outer = 0; outer < rings.outers.size(); ++outer) {
        for (int hole = fast.firstHole(outer); hole >= 0; hole = fast.nextHole(hole))
            placement[static_cast<std::size_t>(outer)].push_back(rings.holes.at(hole));
    }
    return placement;
}

QVector<Vertex> bareTessellation(RX_POLYGON *chain, unsigned int count, const Placement &placement,
                                 const QList<OrvikTypes::RX_RATECOLOR> &legend, std::size_t corners)
{
    QVector<Vertex> bank;
    bank.reserve(static_cast<int>(corners));
    GLUtesselator *tessellator = gluNewTess();
    registerCallback(tessellator, GLU_TESS_BEGIN, tessBeginCB);
    registerCallback(tessellator, GLU_TESS_VERTEX, tessVertexCB);
    registerCallback(tessellator, GLU_TESS_EDGE_FLAG, tessEdgeCB);
    registerCallback(tessellator, GLU_TESS_COMBINE, tessCombineCB);
    registerCallback(tessellator, GLU_TESS_END, tessEndCB);
    std::size_t outer = 0;
    for (RX_POLYGON *polygon = chain; count > 0; polygon = polygon->next, --count) {
        if (polygon->isHole)
            continue;
        RXVERT color{0.0, static_cast<double>(-4.99F), 0.0, 0.0, 0.0, 0.0, 0.0};
        colorOf(static_cast<double>(polygon->rates[0]), legend).getRgbF(&color.r, &color.g, &color.b, &color.a);
        color.a *= 0.5;
        gluTessBeginPolygon(tessellator, nullptr);
        addContour(tessellator, *polygon, color);
        for (const RX_POLYGON *hole : placement[outer])
            addContour(tessellator, *hole, color);
        gluTessEndPolygon(tessellator);
        appendReversed(vList, bank);
        vList.resize(0);
        qDeleteAll(coordList);
        coordList.resize(0);
        polygon->drawIndex = static_cast<int>(++outer);
    }
    gluDeleteTess(tessellator);
    return bank;
}
