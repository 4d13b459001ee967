#include "outerring.h"

#include "ringbox.h"
#include "ringtest.h"

using OrvikTypes::RX_POLYGON;
using OrvikTypes::RX_POLYGONVERTEX;

namespace {

/// Rings with fewer vertices are tested faster edge by edge.
constexpr int smallestRastered = 16;
/// Likewise all rings that fewer points are tested against.
constexpr qint64 fewestRasteredPoints = 48;

/// Beyond so many points the cells take no more of them into account.
constexpr qint64 mostCellsForPoints = 100000000;

} // namespace

OuterRing::OuterRing(const RX_POLYGON &ring)
    : vertices(ring.vertices)
    , count(vertexCount(ring))
    , ordinary(boxOfOuter(ring, outerBox))
{
}

void OuterRing::prepareFor(qint64 points)
{
    if (ordinary && count >= smallestRastered && points >= fewestRasteredPoints)
        raster.reset(new RingRaster(vertices, count, static_cast<int>(qMin(points, mostCellsForPoints))));
}

bool OuterRing::contains(const RX_POLYGON &hole, const Box &holeBox)
{
    // One point, whichever, answers for all of a box that no edge comes near.
    if (raster && raster->isClear(holeBox))
        return raster->isInside(holeBox.minX, holeBox.minY);
    const int points = vertexCount(hole);
    for (int i = 0; i < points; ++i) {
        const RX_POLYGONVERTEX point = narrowed(hole.vertices[i]);
        if (!isInside(point.x, point.y))
            return false;
    }
    return points > 0;
}

bool OuterRing::isInside(double x, double y)
{
    if (raster)
        return raster->isInside(x, y);
    return ordinary ? isInsideOrdinaryRing(vertices, count, x, y) : isInsideRing(vertices, count, x, y);
}
