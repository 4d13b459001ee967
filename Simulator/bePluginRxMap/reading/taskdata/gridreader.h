#pragma once

#include "loadcontrol.h"
#include "rawprescription.h"
#include "taskdata.h"

#include <QString>

class TaskColumns;
class TaskDataFolder;

/// Reads a grid of task data: one record for each cell, row by row from the south-west.
class GridReader {
public:
    /// Grids of more cells together are refused: no field has so many, and memory is bounded.
    static constexpr qint64 mostCells = 2000000;

    /// Nothing is owned; all outlive this.
    GridReader(const TaskDataFolder &folder, const Task &task, const TaskColumns &columns, const LoadControl &control);

    /// Appends to `map`, whose columns are those of the task. False when the grid cannot be read; the reason, with its
    /// place, is then in error().
    bool read(const TaskGrid &grid, RawPrescription &map);
    const QString &error() const { return reason; }

private:
    bool fail(const QString &text);
    bool checkSize(const TaskGrid &grid, const TreatmentZone *zone, const RawPrescription &map);
    bool readBytes(const TaskGrid &grid, QByteArray &bytes);
    bool takeCodes(const TaskGrid &grid, const QByteArray &bytes, RawPrescription &map);
    void takeValues(const TaskGrid &grid, const TreatmentZone &zone, const QByteArray &bytes, RawPrescription &map);
    bool appendCells(const TaskGrid &grid, RawPrescription &map);

    const TaskDataFolder &folder;
    const Task &task;
    const TaskColumns &columns;
    const LoadControl &control;
    QString reason;
    /// The grid's file as it is spelled.
    QString file;
    qint64 bytesPerCell = 0;
};
