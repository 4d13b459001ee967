#pragma once

#include "gridrectangles.h"
#include "loadcontrol.h"
#include "rawprescription.h"
#include "taskdata.h"

#include <QString>

class TaskColumns;
class TaskDataFolder;

/// Reads a grid of task data: one record for each rectangle of equal cells, in the order of their south-west cells, row
/// by row from the south-west.
class GridReader {
public:
    /// Grids with more cells together are refused: no field has so many, and memory is limited.
    static constexpr qint64 mostCells = 2000000;

    /// Nothing is owned; all outlive this.
    GridReader(const TaskDataFolder &folder, const Task &task, const TaskColumns &columns, const LoadControl &control);

    /// Appends to `map`, whose columns are those of the task. False when the grid cannot be read; the reason, with its
    /// place, is then in error().
    bool read(const TaskGrid &grid, RawPrescription &map);
    const QString &error() const { return reason; }

private:
    bool fail(const QString &text);
    bool checkSize(const TaskGrid &grid, const TreatmentZone *zone);
    bool readBytes(const TaskGrid &grid, QByteArray &bytes);
    bool join(const TaskGrid &grid, GridRectangles &joined);
    /// The bytes that all cells of a rectangle hold.
    const char *bytesOf(const CellRectangle &rectangle, const TaskGrid &grid, const QByteArray &bytes) const;
    bool takeCodes(const TaskGrid &grid, const QByteArray &bytes, const std::vector<CellRectangle> &rectangles,
                   RawPrescription &map);
    void takeValues(const TaskGrid &grid, const TreatmentZone &zone, const QByteArray &bytes,
                    const std::vector<CellRectangle> &rectangles, RawPrescription &map);
    static void append(const TaskGrid &grid, const std::vector<CellRectangle> &rectangles, RawPrescription &map);

    const TaskDataFolder &folder;
    const Task &task;
    const TaskColumns &columns;
    const LoadControl &control;
    QString reason;
    /// Name of the grid's file as spelled.
    QString file;
    qint64 bytesPerCell = 0;
    /// Number of cells of all grids so far.
    qint64 cells = 0;
};
