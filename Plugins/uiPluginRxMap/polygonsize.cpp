#include "polygonsize.h"

#include "holeplacement.h"
#include "ringlists.h"
#include "ringtest.h"

namespace {

int capped(qint64 count, int most)
{
    return static_cast<int>(qMin(count, static_cast<qint64>(most)));
}

} // namespace

PolygonSize polygonSize(const RingLists &rings, const HolePlacement &placement, int outer)
{
    qint64 vertices = vertexCount(*rings.outers.at(outer));
    qint64 holes = 0;
    for (int hole = placement.firstHole(outer); hole >= 0; hole = placement.nextHole(hole)) {
        vertices += vertexCount(*rings.holes.at(hole));
        ++holes;
    }
    const qint64 triangles = qMax<qint64>(0, vertices + 2 * holes - 2);
    return {capped(vertices, 3 * mostTriangles), capped(triangles, mostTriangles)};
}

int triangleCount(const RingLists &rings, const HolePlacement &placement)
{
    qint64 triangles = 0;
    for (int outer = 0; outer < rings.outers.size(); ++outer)
        triangles += polygonSize(rings, placement, outer).triangles;
    return capped(triangles, mostTriangles);
}
