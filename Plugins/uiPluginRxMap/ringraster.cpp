#include "ringraster.h"

#include "placementcost.h"
#include "ringtest.h"

#include <QtGlobal>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

using OrvikTypes::RX_POLYGONVERTEX;

namespace {

/// A box of more cells is not looked through.
constexpr int mostCellsOfBox = 64;

} // namespace

RingRaster::RingRaster(const RX_POLYGONVERTEX *vertices, int count, int points)
    : vertices(vertices)
    , count(count)
    , left(vertices[0].x)
    , bottom(vertices[0].y)
{
    double right = left;
    double top = bottom;
    double run = 0.0;
    double climb = 0.0;
    for (int i = 0, j = count - 1; i < count; j = i++) {
        left = qMin(left, vertices[i].x);
        right = qMax(right, vertices[i].x);
        bottom = qMin(bottom, vertices[i].y);
        top = qMax(top, vertices[i].y);
        run += std::fabs(vertices[i].x - vertices[j].x);
        climb += std::fabs(vertices[i].y - vertices[j].y);
    }
    // Once for the edge test, once for where an edge's pieces are computed to end.
    marginX = 2.0 * crossingMargin(left, right);
    marginY = 2.0 * crossingMargin(bottom, top);
    chooseCells(right - left, top - bottom, run, climb, points);
    listEdges();
}

// Cells of the mean edge's width and height let each edge cross only a few; fewer and larger ones where those would be
// too many. Points have their share, lest a wide ring of few edges leave most of them in cells that are crossed.
void RingRaster::chooseCells(double width, double height, double run, double climb, int points)
{
    double wantedColumns = run > 0.0 ? width / run * count : 1.0;
    double wantedRows = climb > 0.0 ? height / climb * count : 1.0;
    // No narrower than the margins: an edge would lie in all cells that it may be off by.
    wantedColumns = qMin(wantedColumns, width / (2.0 * marginX));
    wantedRows = qMin(wantedRows, height / (2.0 * marginY));
    const double excess = wantedColumns * wantedRows / (2.0 * count + points);
    if (excess > 1.0) {
        wantedColumns /= std::sqrt(excess);
        wantedRows /= std::sqrt(excess);
    }
    columns = static_cast<int>(qBound(1.0, wantedColumns, static_cast<double>(count)));
    rows = static_cast<int>(qBound(1.0, wantedRows, static_cast<double>(count)));
    if (width > 0.0 && std::isfinite(columns / width))
        columnsPerMetre = columns / width;
    if (height > 0.0 && std::isfinite(rows / height))
        rowsPerMetre = rows / height;
}

void RingRaster::listEdges()
{
    cells.fill(Unknown, columns * rows);
    isResolved.fill(false, rows);
    cellStart.fill(0, columns * rows + 1);
    QVector<Crossing> crossings;
    crossings.reserve(count);
    CellRange from = cellsNear(vertices[count - 1]);
    for (int edge = 0; edge < count; ++edge) {
        const CellRange to = cellsNear(vertices[edge]);
        findCells(edge, from, to, crossings);
        from = to;
    }
    countRasterEntries(cells.size() + crossings.size());
    for (const Crossing &crossing : qAsConst(crossings)) {
        cells[crossing.cell] = Crossed;
        ++cellStart[crossing.cell];
    }
    // Now where each cell's edges end; the start, once all of them are in.
    std::partial_sum(cellStart.cbegin(), cellStart.cend(), cellStart.begin());
    cellEdges.resize(crossings.size());
    for (const Crossing &crossing : qAsConst(crossings))
        cellEdges[--cellStart[crossing.cell]] = crossing.edge;
}

// Piece by piece, each hardly higher than a row, so that a long slanting edge does not cross all cells of its box. A
// cell may be found twice.
void RingRaster::findCells(int edge, CellRange start, const CellRange &last, QVector<Crossing> &found) const
{
    const RX_POLYGONVERTEX &from = startOf(edge);
    const RX_POLYGONVERTEX &to = vertices[edge];
    const int pieces = 1 + static_cast<int>(std::fabs(to.y - from.y) * rowsPerMetre);
    for (int piece = 1; piece <= pieces; ++piece) {
        CellRange end = last;
        if (piece < pieces) {
            const double share = static_cast<double>(piece) / pieces;
            end = cellsNear({from.x + (to.x - from.x) * share, from.y + (to.y - from.y) * share});
        }
        const int lastColumn = qMax(start.lastColumn, end.lastColumn);
        const int lastRow = qMax(start.lastRow, end.lastRow);
        for (int row = qMin(start.firstRow, end.firstRow); row <= lastRow; ++row) {
            for (int column = qMin(start.firstColumn, end.firstColumn); column <= lastColumn; ++column)
                found.append({row * columns + column, edge});
        }
        start = end;
    }
}

bool RingRaster::isInside(double x, double y)
{
    if (std::isnan(x) || std::isnan(y))
        return false;
    const int row = rowOf(y);
    if (!isResolved.at(row))
        resolveRow(row, y);
    gathered.resize(0);
    for (int column = columnOf(x); column < columns; ++column) {
        const int cell = row * columns + column;
        double clearX = x;
        if (cells.at(cell) == Crossed || cells.at(cell) == Unknown)
            gather(cell, y);
        else if (column == columnOf(x) || middleOf(column, clearX))
            return differsBetween(x, clearX, y) != (cells.at(cell) == Inside);
    }
    return differsBetween(x, std::numeric_limits<double>::infinity(), y);
}

/// Finds the sides of a row's cells from the right, where outside is, along the height `y` of the row.
void RingRaster::resolveRow(int row, double y)
{
    isResolved[row] = true;
    gathered.resize(0);
    bool isInside = false;
    bool isSideKnown = true;
    double knownX = std::numeric_limits<double>::infinity();
    for (int column = columns - 1; column >= 0; --column) {
        const int cell = row * columns + column;
        if (cells.at(cell) == Crossed) {
            gather(cell, y);
            isSideKnown = false;
            continue;
        }
        double x = 0.0;
        if (!isSideKnown && middleOf(column, x)) {
            isInside ^= differsBetween(x, knownX, y);
            isSideKnown = true;
            knownX = x;
            gathered.resize(0);
        }
        if (isSideKnown)
            cells[cell] = isInside ? Inside : Outside;
    }
}

/// Whether the gathered edges put two points at the height `y`, which all of them span, on different sides.
bool RingRaster::differsBetween(double x, double otherX, double y)
{
    std::sort(gathered.begin(), gathered.end());
    const auto end = std::unique(gathered.begin(), gathered.end());
    bool differs = false;
    for (auto edge = gathered.cbegin(); edge != end; ++edge) {
        const double crossing = edgeCrossing(startOf(*edge), vertices[*edge], y);
        differs ^= (crossing > x) != (crossing > otherX);
    }
    return differs;
}

/// Gathers the edges near a cell that span the height `y`.
void RingRaster::gather(int cell, double y)
{
    for (int entry = cellStart.at(cell); entry < cellStart.at(cell + 1); ++entry) {
        const int edge = cellEdges.at(entry);
        if (ordinaryEdgeSpans(startOf(edge), vertices[edge], y))
            gathered.append(edge);
    }
}

bool RingRaster::isClear(const Box &box) const
{
    const int firstColumn = columnOf(box.minX);
    const int lastColumn = columnOf(box.maxX);
    const int firstRow = rowOf(box.minY);
    const int lastRow = rowOf(box.maxY);
    if (lastColumn - firstColumn >= mostCellsOfBox || lastRow - firstRow >= mostCellsOfBox
        || (lastColumn - firstColumn + 1) * (lastRow - firstRow + 1) > mostCellsOfBox)
        return false;
    for (int row = firstRow; row <= lastRow; ++row) {
        for (int column = firstColumn; column <= lastColumn; ++column) {
            if (cells.at(row * columns + column) == Crossed)
                return false;
        }
    }
    return true;
}

/// An abscissa in the middle of a column; false where the machine's numbers have none.
bool RingRaster::middleOf(int column, double &x) const
{
    x = columnsPerMetre > 0.0 ? left + (column + 0.5) / columnsPerMetre : left;
    return columnOf(x) == column;
}

const RX_POLYGONVERTEX &RingRaster::startOf(int edge) const
{
    return vertices[edge == 0 ? count - 1 : edge - 1];
}

/// The cells that a point may lie in, for all that rounding can do.
RingRaster::CellRange RingRaster::cellsNear(const RX_POLYGONVERTEX &point) const
{
    return {columnOf(point.x - marginX), columnOf(point.x + marginX), rowOf(point.y - marginY),
            rowOf(point.y + marginY)};
}

// Neither falls as its argument rises, rounding included; the outermost cells reach beyond the ring's box.
int RingRaster::columnOf(double x) const
{
    return static_cast<int>(qBound(0.0, (x - left) * columnsPerMetre, columns - 1.0));
}

int RingRaster::rowOf(double y) const
{
    return static_cast<int>(qBound(0.0, (y - bottom) * rowsPerMetre, rows - 1.0));
}
