#pragma once

#include "boxindex.h"

#include "Framework/rxpolygon.h"

#include <QVector>

/// Answers the even-odd test of one ring as isInsideRing() does, to the last bit, from a raster of cells over the
/// ring's box: all points of a cell that no edge comes near lie on one side of the ring, and what lies between such a
/// cell and a point left of it in its row are the only edges that the two can differ by.
/// Takes at most two cells and a handful of entries per edge, and a cell per point. The ring is not owned and may not
/// change.
class RingRaster {
public:
    /// The ring is ordinary (see isOrdinary()) and has at least one vertex; about so many points will be asked for.
    RingRaster(const OrvikTypes::RX_POLYGONVERTEX *vertices, int count, int points);

    bool isInside(double x, double y);
    /// Whether all points of the box are known to lie on one side of the ring. False also for a box of many cells.
    bool isClear(const Box &box) const;

private:
    enum Cell : quint8 { Unknown, Crossed, Inside, Outside };

    void chooseCells(double width, double height, double run, double climb, int points);
    struct CellRange {
        int firstColumn;
        int lastColumn;
        int firstRow;
        int lastRow;
    };
    struct Crossing {
        int cell;
        int edge;
    };

    void listEdges();
    void findCells(int edge, CellRange start, const CellRange &last, QVector<Crossing> &found) const;
    CellRange cellsNear(const OrvikTypes::RX_POLYGONVERTEX &point) const;
    void resolveRow(int row, double y);
    bool differsBetween(double x, double otherX, double y);
    void gather(int cell, double y);
    const OrvikTypes::RX_POLYGONVERTEX &startOf(int edge) const;
    bool middleOf(int column, double &x) const;
    int columnOf(double x) const;
    int rowOf(double y) const;

    const OrvikTypes::RX_POLYGONVERTEX *vertices;
    int count;
    double left;
    double bottom;
    double marginX = 0.0; ///< How far from an edge, metres, the edge test can err; likewise marginY.
    double marginY = 0.0;
    double columnsPerMetre = 0.0;
    double rowsPerMetre = 0.0;
    int columns = 1;
    int rows = 1;
    QVector<quint8> cells;    ///< Row by row from the bottom.
    QVector<bool> isResolved; ///< For each row, whether the sides of its cells have been looked for.
    QVector<int> cellStart;   ///< Position in `cellEdges` of each cell's first edge, and the end.
    QVector<int> cellEdges;   ///< An edge is named by the vertex that it ends at.
    QVector<int> gathered;
};
