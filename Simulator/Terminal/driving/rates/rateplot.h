#pragma once

#include "ratehistory.h"
#include "shownunit.h"

#include <QWidget>

class Machine;

/// A rolling plot of the active product: the rate that is prescribed under the implement, and the one that is applied
/// there, over the last half minute of simulated time.
class RatePlot : public QWidget {
    Q_OBJECT

public:
    /// Neither is owned; both outlive the plot's use.
    RatePlot(const Machine *machine, const RateHistory *history, QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    /// The range of the axes: seconds back from now, and rates in the operator's unit.
    struct Axes {
        QRectF area;
        double now = 0.0;
        double least = 0.0;
        double most = 1.0;
        double step = 1.0;

        QPointF at(double time, double rate) const;
    };
    using Samples = std::deque<RateHistory::Sample>;

    static Axes axes(const QRectF &area, const Samples &samples, double factor);
    void drawAxes(QPainter &painter, const Axes &axes, const QString &unit) const;
    static void drawPrescribed(QPainter &painter, const Axes &axes, const Samples &samples, double factor);
    static void drawApplied(QPainter &painter, const Axes &axes, const Samples &samples, double factor);
    void drawKey(QPainter &painter, const QRectF &row) const;

    const Machine *machine;
    const RateHistory *history;
};
