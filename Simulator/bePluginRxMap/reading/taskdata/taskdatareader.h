#pragma once

#include "loadcontrol.h"
#include "rawprescription.h"
#include "readrequest.h"
#include "taskdata.h"
#include "taskdatafolder.h"

#include <QString>
#include <QStringList>

class OGRMultiPolygon;
class TaskColumns;

/// Reads the prescription of one task of task data (ISO 11783-10, versions 2 to 4): treatment zones as polygons, and
/// grids of either type as cells. Blocks; use in the loading thread.
class TaskDataReader {
public:
    /// The request names its task by designator or identifier; empty for the first task that holds a prescription.
    TaskDataReader(const ReadRequest &request, const LoadControl &control);

    /// Whether the path is a folder or an archive that holds task data, or an XML file.
    bool isTaskData() const { return !folder.mainFile().isEmpty(); }
    /// False when it cannot be used; the reason, with file and line, is then in error().
    bool read(RawPrescription &map);
    /// Reads the names of all columns of the task. False as in read().
    bool readColumnNames(QStringList &names);
    const QString &error() const { return reason; }

private:
    bool fail(const QString &text);
    bool open(RawPrescription &map);
    bool chooseTask(RawPrescription &map);
    bool checkColumns(const RawPrescription &map);
    bool readGrids(const TaskColumns &columns, RawPrescription &map);
    bool readZones(const TaskColumns &columns, RawPrescription &map);
    void readBoundary(RawPrescription &map) const;
    void warnOfMissingZones(RawPrescription &map) const;

    TaskDataFolder folder;
    ReadRequest request;
    const LoadControl &control;
    QString reason;
    TaskData data;
    const Task *task = nullptr;
};
