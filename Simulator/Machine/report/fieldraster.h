#pragma once

#include <QObject>
#include <QPointF>
#include <QRectF>
#include <QSize>

#include <vector>

class Simulation;

/// The ground of a drive as a grid of square cells, north up: for each product what was prescribed and what was applied
/// there. A cell belongs to what passes over its middle; passed over twice, it got both.
class FieldRaster : public QObject {
    Q_OBJECT

public:
    /// Cells along the longer side.
    static constexpr int mostCells = 400;
    /// Metres; smaller cells would tell nothing more.
    static constexpr double leastCell = 0.25;

    /// `area` is in metres of the local plane. `simulation` is not owned and outlives the raster. It is filled from now
    /// on.
    FieldRaster(Simulation *simulation, const QRectF &area, QObject *parent = nullptr);

    /// Stops filling, and looks up what is prescribed.
    void end();

    /// In cells.
    QSize size() const { return cells; }
    /// Metres.
    double cellSize() const { return cell; }
    /// Base units, of a product by number from 1; not a number where nothing was prescribed, or nothing passed. Row 0
    /// is the northernmost.
    float prescribed(int number, int column, int row) const
    {
        return prescribedRates[size_t(number - 1)][index(column, row)];
    }
    float applied(int number, int column, int row) const
    {
        return appliedRates[size_t(number - 1)][index(column, row)];
    }

private:
    using Grid = std::vector<float>;

    size_t index(int column, int row) const { return size_t(row) * size_t(cells.width()) + size_t(column); }
    QPointF middle(int column, int row) const;
    void fill();
    void fillRow(int row, const std::vector<double> &crossings);

    Simulation *simulation;
    QRectF area;
    double cell;
    QSize cells;
    std::vector<Grid> prescribedRates;
    std::vector<Grid> appliedRates;
};
