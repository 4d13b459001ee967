#include "outerring.h"

#include "ringbox.h"
#include "ringtest.h"

#include <QtGlobal>

#include <cmath>
#include <numeric>

using OrvikTypes::RX_POLYGON;
using OrvikTypes::RX_POLYGONVERTEX;

namespace {

/// Testing this many points edge by edge takes about as long as listing the edges.
constexpr int pointsWorthListing = 8;

} // namespace

OuterRing::OuterRing(const RX_POLYGON &ring)
    : vertices(ring.vertices)
    , count(vertexCount(ring))
    , ordinary(boxOfOuter(ring, outerBox))
{
}

bool OuterRing::contains(const RX_POLYGON &hole)
{
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
    if (!ordinary)
        return isInsideRing(vertices, count, x, y);
    if (testedPoints < pointsWorthListing && ++testedPoints == pointsWorthListing)
        listEdges();
    if (rowStart.isEmpty())
        return isInsideOrdinaryRing(vertices, count, x, y);
    const int row = rowOf(y);
    const int *end = rowEdges.constData() + rowStart.at(row + 1);
    bool inside = false;
    for (const int *edge = rowEdges.constData() + rowStart.at(row); edge != end; ++edge)
        inside ^= ordinaryEdgeToggles(startOf(*edge), vertices[*edge], x, y);
    return inside;
}

// Rows of the mean edge's height: twice as many entries as edges at most. An edge is listed in the rows of its ends and
// all between them, so that a height that it spans is in one of its rows: rowOf() never falls as its argument rises.
void OuterRing::listEdges()
{
    double climb = 0.0;
    for (int edge = 0; edge < count; ++edge)
        climb += std::fabs(vertices[edge].y - startOf(edge).y);
    const double height = outerBox.maxY - outerBox.minY;
    const int rows = climb > 0.0 ? static_cast<int>(height / climb * count) : 0;
    if (rows < 2)
        return;
    rowsPerMetre = rows / height;
    rowStart.fill(0, rows + 1);
    const auto forEachRow = [this](int edge, auto &&visit) {
        const int from = rowOf(startOf(edge).y);
        const int to = rowOf(vertices[edge].y);
        for (int row = qMin(from, to); row <= qMax(from, to); ++row)
            visit(row);
    };
    for (int edge = 0; edge < count; ++edge)
        forEachRow(edge, [this](int row) { ++rowStart[row]; });
    // From here on where each row's edges end; filling them in backwards turns that into their start.
    std::partial_sum(rowStart.cbegin(), rowStart.cend(), rowStart.begin());
    rowEdges.resize(rowStart.constLast());
    for (int edge = 0; edge < count; ++edge)
        forEachRow(edge, [this, edge](int row) { rowEdges[--rowStart[row]] = edge; });
}

int OuterRing::rowOf(double y) const
{
    return static_cast<int>(qBound(0.0, (y - outerBox.minY) * rowsPerMetre, rowStart.size() - 2.0));
}
