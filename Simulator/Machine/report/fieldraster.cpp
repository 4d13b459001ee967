#include "fieldraster.h"

#include "machine.h"
#include "ratecontroller.h"
#include "simulation.h"
#include "vehicle.h"

#include <QPolygonF>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

/// Where a level line crosses a ring, from west to east; each end of an edge belongs to one of two edges that meet
/// there. An edge that two rings share is crossed at the same place by both.
std::vector<double> crossingsAt(double y, const QPolygonF &ring)
{
    std::vector<double> crossings;
    for (int i = 0; i < ring.size(); ++i) {
        QPointF low = ring.at(i);
        QPointF high = ring.at((i + 1) % ring.size());
        if (high.y() < low.y())
            std::swap(low, high);
        if (low.y() <= y && y < high.y())
            crossings.push_back(low.x() + (y - low.y()) / (high.y() - low.y()) * (high.x() - low.x()));
    }
    std::sort(crossings.begin(), crossings.end());
    return crossings;
}

} // namespace

FieldRaster::FieldRaster(Simulation *givenSimulation, const QRectF &givenArea, QObject *parent)
    : QObject(parent)
    , simulation(givenSimulation)
    , area(givenArea)
    , cell(std::max(leastCell, std::max(givenArea.width(), givenArea.height()) / mostCells))
    , cells(std::clamp(int(std::ceil(givenArea.width() / cell)), 1, mostCells),
            std::clamp(int(std::ceil(givenArea.height() / cell)), 1, mostCells))
{
    const Grid empty(size_t(cells.width()) * size_t(cells.height()), std::numeric_limits<float>::quiet_NaN());
    prescribedRates.assign(size_t(simulation->machine()->products().size()), empty);
    appliedRates = prescribedRates;
    connect(simulation, &Simulation::stepped, this, &FieldRaster::fill);
}

QPointF FieldRaster::middle(int column, int row) const
{
    return {area.left() + (column + 0.5) * cell, area.top() + (cells.height() - row - 0.5) * cell};
}

void FieldRaster::fill()
{
    const Vehicle &vehicle = *simulation->vehicle();
    const Pose &from = simulation->stepStart();
    const Pose &to = vehicle.pose();
    if (!vehicle.isWorking())
        return;
    const double half = 0.5 * vehicle.size().width;
    const QPolygonF passed({from.place - half * from.rightward(), from.place + half * from.rightward(),
                            to.place + half * to.rightward(), to.place - half * to.rightward()});
    const QRectF reach = passed.boundingRect();
    const auto rowAt = [this](double y) { return cells.height() - 1 - int(std::floor((y - area.top()) / cell)); };
    const int last = std::min(cells.height() - 1, rowAt(reach.top()));
    for (int row = std::max(0, rowAt(reach.bottom())); row <= last; ++row)
        fillRow(row, crossingsAt(middle(0, row).y(), passed));
}

void FieldRaster::fillRow(int row, const std::vector<double> &crossings)
{
    // The first cell whose middle lies at x or east of it.
    const auto columnFrom = [this](double x) {
        return std::clamp(int(std::ceil((x - area.left()) / cell - 0.5)), 0, cells.width());
    };
    for (size_t i = 0; i + 1 < crossings.size(); i += 2) {
        for (int column = columnFrom(crossings[i]); column < columnFrom(crossings[i + 1]); ++column) {
            for (size_t product = 0; product < appliedRates.size(); ++product) {
                float &rate = appliedRates[product][index(column, row)];
                const auto given = float(simulation->rates(int(product) + 1).meanApplied);
                rate = std::isnan(rate) ? given : rate + given;
            }
        }
    }
}

void FieldRaster::end()
{
    disconnect(simulation, nullptr, this, nullptr);
    for (int row = 0; row < cells.height(); ++row) {
        for (int column = 0; column < cells.width(); ++column) {
            const auto commands = simulation->controller()->commandsAt(middle(column, row));
            for (size_t product = 0; product < commands.size(); ++product)
                prescribedRates[product][index(column, row)] = float(commands[product].prescribed);
        }
    }
}
