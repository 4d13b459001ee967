#include "gridreader.h"

#include "taskcolumns.h"
#include "taskdatafolder.h"

#include <QtEndian>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr int codesType = 1;

} // namespace

GridReader::GridReader(const TaskDataFolder &taskDataFolder, const Task &gridTask, const TaskColumns &taskColumns,
                       const LoadControl &loadControl)
    : folder(taskDataFolder)
    , task(gridTask)
    , columns(taskColumns)
    , control(loadControl)
{
}

bool GridReader::fail(const QString &text)
{
    reason = text;
    return false;
}

bool GridReader::read(const TaskGrid &grid, RawPrescription &map)
{
    const TreatmentZone *zone = task.zone(grid.zone);
    if (grid.type != codesType && zone == nullptr)
        return fail(grid.zone == Task::noZone
                        ? QStringLiteral("%1: the grid names no treatment zone (J)").arg(grid.place)
                        : QStringLiteral("%1: there is no treatment zone %2").arg(grid.place).arg(grid.zone));
    QByteArray bytes;
    if (!checkSize(grid, zone, map) || !readBytes(grid, bytes))
        return false;
    if (grid.type != codesType)
        takeValues(grid, *zone, bytes, map);
    else if (!takeCodes(grid, bytes, map))
        return false;
    return appendCells(grid, map);
}

bool GridReader::checkSize(const TaskGrid &grid, const TreatmentZone *zone, const RawPrescription &map)
{
    const qint64 cells = grid.columns * grid.rows;
    const qint64 known = map.records;
    if (known + cells > mostCells || columns.areTooMany(known + cells))
        return fail(QStringLiteral("%1: the grid of %2 x %3 cells is too large")
                        .arg(grid.place, QString::number(grid.rows), QString::number(grid.columns)));
    if (grid.south + grid.cellHeight * static_cast<double>(grid.rows) > 90.0
        || grid.west + grid.cellWidth * static_cast<double>(grid.columns) > 180.0)
        return fail(QStringLiteral("%1: the grid does not end on the earth").arg(grid.place));
    bytesPerCell =
        grid.type == codesType ? 1 : static_cast<qint64>(sizeof(qint32)) * static_cast<qint64>(zone->values.size());
    return bytesPerCell > 0
        || fail(QStringLiteral("%1: treatment zone %2 has no values").arg(grid.place).arg(grid.zone));
}

bool GridReader::readBytes(const TaskGrid &grid, QByteArray &bytes)
{
    QString base = grid.file;
    if (base.endsWith(QLatin1String(".bin"), Qt::CaseInsensitive))
        base.chop(4);
    file = folder.find(base, QStringLiteral("BIN"));
    if (file.isEmpty())
        return fail(QStringLiteral("%1: there is no file %2.BIN beside it").arg(grid.place, base));
    const qint64 wanted = grid.rows * grid.columns * bytesPerCell;
    QString error;
    // A file too long is not read at all.
    if (folder.sizeOf(file) <= wanted && !folder.read(file, wanted, bytes, error))
        return fail(error);
    if (bytes.size() == wanted)
        return true;
    const qint64 found = std::max(folder.sizeOf(file), qint64(bytes.size()));
    return fail(QStringLiteral("%1 is too %2 for %3 x %4 cells: %5 of %6 bytes")
                    .arg(file, found < wanted ? QStringLiteral("short") : QStringLiteral("long"))
                    .arg(grid.rows)
                    .arg(grid.columns)
                    .arg(found)
                    .arg(wanted));
}

bool GridReader::takeCodes(const TaskGrid &grid, const QByteArray &bytes, RawPrescription &map)
{
    constexpr size_t codes = 256;
    std::array<std::vector<double>, codes> rates;
    for (const TreatmentZone &zone : task.zones) {
        const bool isByte = zone.code >= 0 && zone.code < static_cast<int>(codes);
        // The first one of a code counts, as everywhere.
        if (isByte && rates[static_cast<size_t>(zone.code)].empty())
            rates[static_cast<size_t>(zone.code)] = columns.ratesOf(zone);
    }
    for (int i = 0; i < bytes.size(); ++i) {
        const auto code = static_cast<quint8>(bytes.at(i));
        const std::vector<double> &cell = rates[code];
        if (cell.empty())
            return fail(QStringLiteral("%1: there is no treatment zone %2, which row %3, column %4 names")
                            .arg(file)
                            .arg(code)
                            .arg(i / grid.columns + 1)
                            .arg(i % grid.columns + 1));
        for (size_t column = 0; column < cell.size(); ++column)
            map.columns[column].values.push_back(cell[column]);
    }
    return true;
}

void GridReader::takeValues(const TaskGrid &grid, const TreatmentZone &zone, const QByteArray &bytes,
                            RawPrescription &map)
{
    const std::vector<size_t> places = columns.placesOf(zone);
    const auto cells = static_cast<size_t>(grid.rows * grid.columns);
    const size_t known = static_cast<size_t>(map.records);
    for (SourceColumn &column : map.columns)
        column.values.resize(known + cells, std::numeric_limits<double>::quiet_NaN());
    for (size_t i = 0; i < places.size(); ++i) {
        SourceColumn &column = map.columns[places[i]];
        const char *bytesOfValue = bytes.constData() + i * sizeof(qint32);
        for (size_t cell = 0; cell < cells; ++cell, bytesOfValue += bytesPerCell) {
            const double rate = columns.rate(places[i], qFromLittleEndian<qint32>(bytesOfValue));
            column.values[known + cell] = rate;
            if (std::isnan(rate))
                column.unreadable.push_back(map.records + static_cast<int>(cell));
        }
    }
}

bool GridReader::appendCells(const TaskGrid &grid, RawPrescription &map)
{
    constexpr size_t cellVertices = 5;
    const auto cells = static_cast<size_t>(grid.rows * grid.columns);
    map.rings.reserve(map.rings.size() + cells);
    map.xs.reserve(map.xs.size() + cells * cellVertices);
    map.ys.reserve(map.ys.size() + cells * cellVertices);
    for (qint64 row = 0; row < grid.rows; ++row) {
        if (control.isCancelled())
            return fail(QStringLiteral("loading was cancelled"));
        // The same sum for neighbours, so that they share their corners.
        const double south = grid.south + static_cast<double>(row) * grid.cellHeight;
        const double north = grid.south + static_cast<double>(row + 1) * grid.cellHeight;
        for (qint64 column = 0; column < grid.columns; ++column) {
            const double west = grid.west + static_cast<double>(column) * grid.cellWidth;
            const double east = grid.west + static_cast<double>(column + 1) * grid.cellWidth;
            map.rings.push_back({map.xs.size(), cellVertices, map.records, false});
            map.xs.insert(map.xs.end(), {west, east, east, west, west});
            map.ys.insert(map.ys.end(), {south, south, north, north, south});
            ++map.records;
        }
        control.report(static_cast<double>(row + 1) / static_cast<double>(grid.rows));
    }
    return true;
}
