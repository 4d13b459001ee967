#include "gridrectangles.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <type_traits>

namespace {

/// Mean radius of the WGS 84 ellipsoid, (2a + b) / 3, metres.
constexpr double earthRadius = 6371008.8;
/// Metres. Rounding corners to the plane's grid may add as much again; together that stays within a millimetre.
constexpr double mostDeviation = 0.0005;
/// No part of a map lies farther east or west of its plane's origin than this, metres.
constexpr double farthestFromOrigin = 100000.0;

double radians(double degrees)
{
    return degrees * std::acos(-1.0) / 180.0;
}

/// Over a chord L, an arc of small curvature c has the sagitta L² · c / 8.
double longestChord(double curvature)
{
    return std::sqrt(8.0 * mostDeviation / curvature);
}

/// How many cells of a length fit into another one, at least one.
int cellsWithin(double length, double cellLength, qint64 most)
{
    const double cells = std::floor(length / cellLength);
    return cells < static_cast<double>(most) ? std::max(1, static_cast<int>(cells)) : static_cast<int>(most);
}

/// How many bytes from the first on are the same in both.
qint64 equalBytes(const char *one, const char *other, qint64 count)
{
    qint64 equal = 0;
    // First in blocks as large as the library compares at once, then in words, then in bytes.
    const auto pass = [one, other, count, &equal](auto block) {
        while (equal + block <= count && std::memcmp(one + equal, other + equal, block) == 0)
            equal += block;
    };
    pass(std::integral_constant<int, 64>());
    pass(std::integral_constant<int, 8>());
    pass(std::integral_constant<int, 1>());
    return equal;
}

} // namespace

GridRectangles::GridRectangles(const TaskGrid &grid, const QByteArray &gridCells, int bytesPerCell)
    : cells(gridCells)
    , cellBytes(bytesPerCell)
    , columns(static_cast<int>(grid.columns))
    , columnLimit(mostColumns(grid))
    , rowLimit(mostRows(grid))
{
}

int GridRectangles::mostColumns(const TaskGrid &grid)
{
    const double north = grid.south + grid.cellHeight * static_cast<double>(grid.rows);
    const double farthest = radians(std::max(std::fabs(grid.south), std::fabs(north)));
    const double nearest =
        grid.south < 0.0 && north > 0.0 ? 0.0 : radians(std::min(std::fabs(grid.south), std::fabs(north)));
    // A parallel at latitude p has the curvature tan(p) / R on a plane that touches the earth near it.
    return cellsWithin(longestChord(std::tan(farthest) / earthRadius),
                       earthRadius * std::cos(nearest) * radians(grid.cellWidth), grid.columns);
}

int GridRectangles::mostRows(const TaskGrid &grid)
{
    // A meridian at the distance x from the plane's own has the curvature x / R² there.
    return cellsWithin(longestChord(farthestFromOrigin / (earthRadius * earthRadius)),
                       earthRadius * radians(grid.cellHeight), grid.rows);
}

const char *GridRectangles::cell(int cellRow, int column) const
{
    return cells.constData() + (static_cast<qint64>(cellRow) * columns + column) * cellBytes;
}

int GridRectangles::endOfRun(int column) const
{
    const int limit = std::min(columns, (column / columnLimit + 1) * columnLimit);
    // A cell equals the next one where the bytes equal those one cell further on.
    const qint64 equal = equalBytes(cell(row, column), cell(row, column + 1), qint64(limit - column - 1) * cellBytes);
    return column + 1 + static_cast<int>(equal / cellBytes);
}

bool GridRectangles::goesOn(const CellRectangle &rectangle, int column) const
{
    const int end = column + rectangle.columns;
    const auto bytes = static_cast<size_t>(cellBytes);
    return rectangle.column == column && rectangle.rows < rowLimit
        && std::memcmp(cell(row - 1, column), cell(row, column), bytes * static_cast<size_t>(rectangle.columns)) == 0
        && (end == columns || end % columnLimit == 0 || std::memcmp(cell(row, end - 1), cell(row, end), bytes) != 0);
}

void GridRectangles::addRow()
{
    reaching.clear();
    auto next = below.begin();
    for (int column = 0, end = 0; column < columns; column = end) {
        while (next != below.end() && found[*next].column < column)
            ++next;
        if (next != below.end() && goesOn(found[*next], column)) {
            end = column + found[*next].columns;
            ++found[*next].rows;
            reaching.push_back(*next);
        } else {
            end = endOfRun(column);
            reaching.push_back(found.size());
            found.emplace_back() = {column, row, end - column, 1};
        }
    }
    below.swap(reaching);
    ++row;
}
