#include "gridreader.h"

#include "Backend/backendtext.h"
#include "taskcolumns.h"
#include "taskdatafolder.h"

#include <QtEndian>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr int codesType = 1;
constexpr qint64 cellsPerReport = 1 << 16;

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
        return fail(
            grid.zone == Task::noZone
                ? BackendText::tr("%1: the grid names no treatment zone (J)").arg(grid.place)
                : BackendText::tr("%1: there is no treatment zone %2").arg(grid.place, QString::number(grid.zone)));
    QByteArray bytes;
    if (!checkSize(grid, zone) || !readBytes(grid, bytes))
        return false;
    GridRectangles joined(grid, bytes, static_cast<int>(bytesPerCell));
    if (!join(grid, joined))
        return false;
    const std::vector<CellRectangle> &rectangles = joined.rectangles();
    if (grid.type != codesType)
        takeValues(grid, *zone, bytes, rectangles, map);
    else if (!takeCodes(grid, bytes, rectangles, map))
        return false;
    append(grid, rectangles, map);
    return true;
}

bool GridReader::checkSize(const TaskGrid &grid, const TreatmentZone *zone)
{
    cells += grid.columns * grid.rows;
    if (cells > mostCells || columns.areTooMany(cells))
        return fail(BackendText::tr("%1: the grid of %2 x %3 cells is too large")
                        .arg(grid.place, QString::number(grid.rows), QString::number(grid.columns)));
    if (grid.south + grid.cellHeight * static_cast<double>(grid.rows) > 90.0
        || grid.cellWidth * static_cast<double>(grid.columns) > 360.0)
        return fail(BackendText::tr("%1: the grid does not end on the earth").arg(grid.place));
    bytesPerCell =
        grid.type == codesType ? 1 : static_cast<qint64>(sizeof(qint32)) * static_cast<qint64>(zone->values.size());
    return bytesPerCell > 0
        || fail(BackendText::tr("%1: treatment zone %2 has no values").arg(grid.place, QString::number(grid.zone)));
}

bool GridReader::readBytes(const TaskGrid &grid, QByteArray &bytes)
{
    QString base = grid.file;
    if (base.endsWith(QLatin1String(".bin"), Qt::CaseInsensitive))
        base.chop(4);
    file = folder.find(base, QStringLiteral("BIN"));
    if (file.isEmpty())
        return fail(BackendText::tr("%1: there is no file %2.BIN beside it").arg(grid.place, base));
    const qint64 wanted = grid.rows * grid.columns * bytesPerCell;
    QString error;
    // A file that is too long is not read at all.
    if (folder.sizeOf(file) <= wanted && !folder.read(file, wanted, bytes, error))
        return fail(error);
    if (bytes.size() == wanted)
        return true;
    const qint64 found = std::max(folder.sizeOf(file), qint64(bytes.size()));
    return fail(BackendText::tr("%1 is too %2 for %3 x %4 cells: %5 of %6 bytes")
                    .arg(file, found < wanted ? BackendText::tr("short") : BackendText::tr("long"),
                         QString::number(grid.rows), QString::number(grid.columns), QString::number(found),
                         QString::number(wanted)));
}

bool GridReader::join(const TaskGrid &grid, GridRectangles &joined)
{
    for (qint64 row = 0; row < grid.rows; ++row) {
        if (control.isCancelled())
            return fail(BackendText::tr("loading was cancelled"));
        joined.addRow();
        if ((row + 1) * grid.columns / cellsPerReport > row * grid.columns / cellsPerReport)
            control.report(static_cast<double>(row + 1) / static_cast<double>(grid.rows));
    }
    return true;
}

const char *GridReader::bytesOf(const CellRectangle &rectangle, const TaskGrid &grid, const QByteArray &bytes) const
{
    return bytes.constData() + (rectangle.row * grid.columns + rectangle.column) * bytesPerCell;
}

bool GridReader::takeCodes(const TaskGrid &grid, const QByteArray &bytes, const std::vector<CellRectangle> &rectangles,
                           RawPrescription &map)
{
    constexpr size_t codes = 256;
    std::array<std::vector<double>, codes> rates;
    for (const TreatmentZone &zone : task.zones) {
        const bool isByte = zone.code >= 0 && zone.code < static_cast<int>(codes);
        // The first zone with a code counts, as everywhere.
        if (isByte && rates[static_cast<size_t>(zone.code)].empty())
            rates[static_cast<size_t>(zone.code)] = columns.ratesOf(zone);
    }
    for (const CellRectangle &rectangle : rectangles) {
        const auto code = static_cast<quint8>(*bytesOf(rectangle, grid, bytes));
        const std::vector<double> &rate = rates[code];
        if (rate.empty())
            return fail(BackendText::tr("%1: there is no treatment zone %2, which row %3, column %4 names")
                            .arg(file, QString::number(code), QString::number(rectangle.row + 1),
                                 QString::number(rectangle.column + 1)));
        for (size_t column = 0; column < rate.size(); ++column)
            map.columns[column].values.push_back(rate[column]);
    }
    return true;
}

void GridReader::takeValues(const TaskGrid &grid, const TreatmentZone &zone, const QByteArray &bytes,
                            const std::vector<CellRectangle> &rectangles, RawPrescription &map)
{
    const std::vector<size_t> places = columns.placesOf(zone);
    const auto known = static_cast<size_t>(map.records);
    for (SourceColumn &column : map.columns)
        column.values.resize(known + rectangles.size(), std::numeric_limits<double>::quiet_NaN());
    for (size_t i = 0; i < places.size(); ++i) {
        SourceColumn &column = map.columns[places[i]];
        for (size_t k = 0; k < rectangles.size(); ++k) {
            const char *value = bytesOf(rectangles[k], grid, bytes) + i * sizeof(qint32);
            const double rate = columns.rate(places[i], qFromLittleEndian<qint32>(value));
            column.values[known + k] = rate;
            if (std::isnan(rate))
                column.unreadable.push_back(map.records + static_cast<int>(k));
        }
    }
}

void GridReader::append(const TaskGrid &grid, const std::vector<CellRectangle> &rectangles, RawPrescription &map)
{
    constexpr size_t corners = 4;
    size_t vertex = map.xs.size();
    size_t ring = map.rings.size();
    map.rings.resize(ring + rectangles.size());
    map.xs.resize(vertex + rectangles.size() * corners);
    map.ys.resize(vertex + rectangles.size() * corners);
    // Neighbours compute the same sum, so that they share their corners.
    const auto longitude = [&grid](int column) { return grid.west + static_cast<double>(column) * grid.cellWidth; };
    const auto latitude = [&grid](int row) { return grid.south + static_cast<double>(row) * grid.cellHeight; };
    const auto put = [&map, &vertex](double x, double y) {
        map.xs[vertex] = x;
        map.ys[vertex++] = y;
    };
    for (const CellRectangle &rectangle : rectangles) {
        const double west = longitude(rectangle.column);
        const double east = longitude(rectangle.column + rectangle.columns);
        const double south = latitude(rectangle.row);
        const double north = latitude(rectangle.row + rectangle.rows);
        map.rings[ring++] = {vertex, corners, map.records, false};
        put(west, south);
        put(east, south);
        put(east, north);
        put(west, north);
        map.cells.push_back(rectangle.columns * rectangle.rows);
        ++map.records;
    }
}
