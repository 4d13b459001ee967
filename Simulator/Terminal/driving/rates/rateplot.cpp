#include "rateplot.h"

#include "machine.h"
#include "roundstep.h"
#include "theme.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace {

constexpr int inset = 10;
constexpr double keyHeight = 26.0;
constexpr double timeHeight = 22.0;
constexpr double rateWidth = 52.0;
constexpr int textPixels = 15;

} // namespace

RatePlot::RatePlot(const Machine *givenMachine, const RateHistory *givenHistory, QWidget *parent)
    : QWidget(parent)
    , machine(givenMachine)
    , history(givenHistory)
{
    setObjectName(QStringLiteral("ratePlot"));
    setAccessibleName(tr("Rates of the last half minute"));
}

QPointF RatePlot::Axes::at(double time, double rate) const
{
    const double across = 1.0 - (now - time) / RateHistory::span;
    return {area.left() + across * area.width(), area.bottom() - (rate - least) / (most - least) * area.height()};
}

RatePlot::Axes RatePlot::axes(const QRectF &area, const Samples &samples, double factor)
{
    Axes axes;
    axes.area = area;
    if (samples.empty())
        return axes;
    axes.now = samples.back().time;
    axes.least = axes.most = factor * samples.back().applied;
    for (const RateHistory::Sample &sample : samples) {
        for (const double rate : {sample.applied, sample.prescribed}) {
            if (std::isnan(rate))
                continue;
            axes.least = std::min(axes.least, factor * rate);
            axes.most = std::max(axes.most, factor * rate);
        }
    }
    // Rates that hardly differ must not look as if they did.
    constexpr double leastShare = 0.1;
    constexpr double steps = 2.0;
    constexpr double leastSpread = 1e-6;
    const double spread = std::max(axes.most - axes.least, leastShare * axes.most);
    axes.step = roundStep((spread > leastSpread ? spread : steps) / steps);
    axes.least = axes.step * std::floor(axes.least / axes.step);
    axes.most = std::max(axes.step * std::ceil(axes.most / axes.step), axes.least + axes.step);
    return axes;
}

void RatePlot::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF inner = QRectF(rect()).adjusted(inset, 4, -inset, -4);
    const Samples &samples = history->samples(machine->activeProduct());
    const ShownUnit unit = ShownUnit::of(*machine, machine->activeProduct());
    const Axes scale = axes(inner.adjusted(rateWidth, keyHeight + 6, -4, -timeHeight), samples, unit.factor);
    drawKey(painter, QRectF(inner.left(), inner.top(), inner.width(), keyHeight));
    drawAxes(painter, scale, unit.text);
    drawPrescribed(painter, scale, samples, unit.factor);
    drawApplied(painter, scale, samples, unit.factor);
}

void RatePlot::drawAxes(QPainter &painter, const Axes &axes, const QString &unit) const
{
    painter.setFont(Theme::font(textPixels));
    const QRectF &area = axes.area;
    for (int i = 0; axes.least + i * axes.step <= axes.most + axes.step / 2; ++i) {
        const double rate = axes.least + i * axes.step;
        const double y = axes.at(axes.now, rate).y();
        painter.setPen(QPen(Theme::colors().button, 1.0));
        painter.drawLine(QPointF(area.left(), y), QPointF(area.right(), y));
        painter.setPen(Theme::colors().faintText);
        painter.drawText(QRectF(area.left() - rateWidth, y - 10.0, rateWidth - 6.0, 20.0),
                         Qt::AlignVCenter | Qt::AlignRight, ShownUnit().rateText(rate));
    }
    const QRectF below(area.left(), area.bottom() + 2.0, area.width(), timeHeight);
    painter.setPen(Theme::colors().faintText);
    painter.drawText(QRectF(area.left() - rateWidth, area.top() - 6.0 - keyHeight, rateWidth - 6.0, keyHeight),
                     Qt::AlignVCenter | Qt::AlignRight, unit);
    painter.drawText(below, Qt::AlignVCenter | Qt::AlignHCenter, tr("\u2212%1 s").arg(RateHistory::span / 2));
    painter.drawText(below, Qt::AlignVCenter | Qt::AlignRight, tr("now"));
}

void RatePlot::drawPrescribed(QPainter &painter, const Axes &axes, const Samples &samples, double factor)
{
    QPainterPath path;
    bool isOpen = false;
    for (const RateHistory::Sample &sample : samples) {
        const bool isThere = !std::isnan(sample.prescribed);
        const QPointF point = axes.at(sample.time, factor * sample.prescribed);
        if (isThere && isOpen) {
            path.lineTo(QPointF(point.x(), path.currentPosition().y()));
            path.lineTo(point);
        } else if (isThere) {
            path.moveTo(point);
        }
        isOpen = isThere;
    }
    painter.setBrush(Qt::NoBrush);
    // Wide enough to be seen beside the line that lies over it.
    painter.setPen(QPen(Theme::colors().prescribed, 4.5, Qt::SolidLine, Qt::FlatCap));
    painter.drawPath(path);
}

void RatePlot::drawApplied(QPainter &painter, const Axes &axes, const Samples &samples, double factor)
{
    QPolygonF line;
    for (const RateHistory::Sample &sample : samples)
        line.append(axes.at(sample.time, factor * sample.applied));
    painter.setPen(QPen(Theme::colors().applied, 2.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(line);
}

void RatePlot::drawKey(QPainter &painter, const QRectF &row) const
{
    painter.setFont(Theme::font(textPixels));
    double left = row.left() + rateWidth;
    const auto add = [&](const QColor &color, const QString &text) {
        painter.setPen(QPen(color, 3.0));
        painter.drawLine(QPointF(left, row.center().y()), QPointF(left + 20.0, row.center().y()));
        left += 26.0;
        painter.setPen(Theme::colors().text);
        painter.drawText(QRectF(left, row.top(), row.right() - left, row.height()), Qt::AlignVCenter, text);
        left += painter.fontMetrics().horizontalAdvance(text) + 16.0;
    };
    add(Theme::colors().prescribed, tr("Plan here"));
    add(Theme::colors().applied, tr("Applied"));
}
