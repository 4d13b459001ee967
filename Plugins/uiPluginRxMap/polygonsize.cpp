#include "polygonsize.h"

#include "holeplacement.h"
#include "ringlists.h"
#include "ringtest.h"

PolygonSize polygonSize(const RingLists &rings, const HolePlacement &placement, int outer)
{
    PolygonSize size{vertexCount(*rings.outers.at(outer)), 0};
    int holes = 0;
    for (int hole = placement.firstHole(outer); hole >= 0; hole = placement.nextHole(hole)) {
        size.vertices += vertexCount(*rings.holes.at(hole));
        ++holes;
    }
    size.triangles = qMax(0, size.vertices + 2 * holes - 2);
    return size;
}

int triangleCount(const RingLists &rings, const HolePlacement &placement)
{
    int triangles = 0;
    for (int outer = 0; outer < rings.outers.size(); ++outer)
        triangles += polygonSize(rings, placement, outer).triangles;
    return triangles;
}
