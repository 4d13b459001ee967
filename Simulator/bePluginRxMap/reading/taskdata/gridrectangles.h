#pragma once

#include "taskdata.h"

#include <QByteArray>

#include <vector>

/// Cells of a grid that hold the same, columns and rows counted from its south-west corner.
struct CellRectangle {
    int column = 0;
    int row = 0;
    int columns = 0;
    int rows = 1;
};

/// Joins equal neighbouring cells of a grid into rectangles, row by row from the south, by greedy rectangle merging of
/// run-length encoded rows: equal cells in a row make a run, and runs of the same span that hold the same in successive
/// rows make a rectangle. Linear in the cells.
///
/// On the local plane parallels and meridians are slightly bent, while a rectangle's edges are straight. So that
/// rectangles of different length meet without crack and overlap, runs end at every column whose number is a multiple
/// of mostColumns(), and rectangles have at most mostRows() rows.
class GridRectangles {
public:
    /// `cells`: the grid's cells row by row, `bytesPerCell` bytes each; not owned, outlives this.
    GridRectangles(const TaskGrid &grid, const QByteArray &cells, int bytesPerCell);

    /// Takes the next row.
    void addRow();
    /// In the order of their south-west cells, row by row.
    const std::vector<CellRectangle> &rectangles() const { return found; }

    /// Over this many cells, the edge between two rows bends away from its chord by less than half a millimetre.
    static int mostColumns(const TaskGrid &grid);
    /// The same for the edge between two columns, and the cells' height.
    static int mostRows(const TaskGrid &grid);

private:
    const char *cell(int row, int column) const;
    /// The place after the cells that hold the same from `column` on, in the row being taken.
    int endOfRun(int column) const;
    /// Whether a run from `column` on continues the rectangle, which reaches up to the row being taken.
    bool goesOn(const CellRectangle &rectangle, int column) const;

    const QByteArray &cells;
    const int cellBytes;
    const int columns;
    const int columnLimit;
    const int rowLimit;
    int row = 0;
    std::vector<CellRectangle> found;
    /// Places in `found`, from west to east, of the rectangles that reach up to the row being taken, and of those that
    /// reach into it.
    std::vector<size_t> below;
    std::vector<size_t> reaching;
};
