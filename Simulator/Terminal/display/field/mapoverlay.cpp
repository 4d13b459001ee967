#include "mapoverlay.h"

#include "fieldscene.h"
#include "shownnumber.h"
#include "theme.h"

#include <QPainter>
#include <QPainterPath>

#include <cmath>
#include <utility>

namespace {

constexpr double maxScalePixels = 200.0;
constexpr double metresPerFoot = 0.3048;
constexpr double feetPerMile = 5280.0;

/// The greatest of 1, 2, 5, 10, 20, ... that is not above `most`.
double roundLength(double most)
{
    const double decade = std::pow(10.0, std::floor(std::log10(most)));
    for (const double step : {5.0, 2.0}) {
        if (step * decade <= most)
            return step * decade;
    }
    return decade;
}

} // namespace

MapOverlay::MapOverlay(QWidget *parent)
    : QWidget(parent)
    , pace(this)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setObjectName(QStringLiteral("mapOverlay"));
}

void MapOverlay::setCamera(const Camera &newCamera)
{
    camera = newCamera;
    update();
}

void MapOverlay::setFreeArea(const QRectF &area)
{
    freeArea = area;
    update();
}

void MapOverlay::setMetric(bool metric)
{
    isMetric = metric;
    update();
}

void MapOverlay::setVehicle(const QPointF &place, double heading)
{
    vehicle = place;
    vehicleHeading = heading;
    pace.request();
}

void MapOverlay::setBoundary(const QList<QPolygonF> &rings)
{
    boundary = rings;
    pace.request();
}

void MapOverlay::setLookAhead(const std::optional<QPointF> &field)
{
    if (lookAhead == field)
        return;
    lookAhead = field;
    pace.request();
}

void MapOverlay::showBubble(const QPointF &field, const QString &newText, const QColor &color)
{
    bubbleAt = field;
    text = newText;
    bubbleColor = color;
    // A touch elsewhere means that the operator is done with what is marked.
    if (!mark.contains(field))
        mark = QRectF();
    pace.request();
}

void MapOverlay::setAimed(bool aimed)
{
    isAimed = aimed;
    pace.request();
}

void MapOverlay::setMark(const QRectF &extent, const QPointF &place)
{
    mark = extent;
    markAt = place;
    pace.request();
}

void MapOverlay::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    drawBoundary(painter);
    drawLookAhead(painter);
    drawMark(painter);
    drawVehicle(painter);
    drawNorthArrow(painter);
    drawScaleBar(painter);
    drawAim(painter);
    drawBubble(painter);
}

void MapOverlay::drawBoundary(QPainter &painter) const
{
    painter.setPen(QPen(Theme::colors().panel, 3.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    for (const QPolygonF &ring : boundary) {
        for (int i = 1; i < ring.size(); ++i) {
            const std::optional<QPointF> from = camera.project(ring.at(i - 1));
            const std::optional<QPointF> to = camera.project(ring.at(i));
            if (from && to)
                painter.drawLine(*from, *to);
        }
    }
}

void MapOverlay::drawLookAhead(QPainter &painter) const
{
    constexpr double radius = 9.0;
    const std::optional<QPointF> from = camera.project(vehicle);
    const std::optional<QPointF> to = lookAhead ? camera.project(*lookAhead) : std::nullopt;
    if (!from || !to)
        return;
    painter.setBrush(Qt::NoBrush);
    for (const QPen &pen : {QPen(Theme::colors().textOnAccent, 6.0), QPen(Theme::colors().text, 3.0)}) {
        painter.setPen(pen);
        painter.drawLine(*from, *to);
        painter.drawEllipse(*to, radius, radius);
    }
}

void MapOverlay::drawVehicle(QPainter &painter) const
{
    const std::optional<QPointF> at = camera.project(vehicle);
    if (!at)
        return;
    painter.save();
    painter.translate(*at);
    painter.rotate(vehicleHeading);
    const QPolygonF arrow({{0.0, -22.0}, {16.0, 18.0}, {0.0, 10.0}, {-16.0, 18.0}});
    painter.setPen(QPen(Theme::colors().textOnAccent, 3.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Theme::colors().accent);
    painter.drawPolygon(arrow);
    painter.restore();
}

void MapOverlay::drawNorthArrow(QPainter &painter) const
{
    const Theme::Colors &colors = Theme::colors();
    const QPointF middle(freeArea.right() - 40.0, freeArea.top() + 42.0);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colors.panel);
    painter.drawEllipse(middle, 34.0, 34.0);
    painter.setBrush(colors.accent);
    painter.drawPolygon(QPolygonF({middle + QPointF(0, -28), middle + QPointF(10, -6), middle + QPointF(-10, -6)}));
    painter.setPen(colors.text);
    painter.setFont(Theme::font(22, true));
    painter.drawText(QRectF(middle.x() - 20.0, middle.y() - 7.0, 40.0, 30.0), Qt::AlignCenter, tr("N", "north"));
}

void MapOverlay::drawScaleBar(QPainter &painter) const
{
    const double unit = isMetric ? 1.0 : metresPerFoot;
    const double perPixel = camera.metresPerPixel(camera.target()) / unit;
    if (!(perPixel > 0.0))
        return;
    double most = maxScalePixels * perPixel;
    const bool isLong = !isMetric && most >= feetPerMile;
    most = isLong ? most / feetPerMile : most;
    const double length = roundLength(most);
    const double pixels = length * (isLong ? feetPerMile : 1.0) / perPixel;
    const auto shown = [](double number) { return ShownNumber::inLanguage(QString::number(number)); };
    QString label;
    if (isMetric)
        label = length >= 1000.0 ? tr("%1 km").arg(shown(length / 1000.0)) : tr("%1 m").arg(shown(length));
    else
        label = (isLong ? tr("%1 mi") : tr("%1 ft")).arg(shown(length));

    const QPointF start(freeArea.left() + 22.0, freeArea.bottom() - 24.0);
    Theme::drawPanel(painter, QRectF(start.x() - 14.0, start.y() - 34.0, pixels + 28.0, 48.0), Theme::colors().panel);
    painter.setPen(QPen(Theme::colors().text, 3.0, Qt::SolidLine, Qt::FlatCap));
    painter.drawLine(start, start + QPointF(pixels, 0.0));
    painter.drawLine(start + QPointF(1.5, -7.0), start + QPointF(1.5, 1.5));
    painter.drawLine(start + QPointF(pixels - 1.5, -7.0), start + QPointF(pixels - 1.5, 1.5));
    painter.setFont(Theme::font(18, true));
    painter.drawText(QRectF(start.x(), start.y() - 30.0, pixels, 24.0), Qt::AlignCenter, label);
}

void MapOverlay::drawMark(QPainter &painter) const
{
    if (mark.isNull())
        return;
    QPolygonF outline;
    for (const QPointF &corner : {mark.topLeft(), mark.topRight(), mark.bottomRight(), mark.bottomLeft()}) {
        if (const std::optional<QPointF> at = camera.project(corner))
            outline.append(*at);
    }
    painter.setBrush(Qt::NoBrush);
    // Light on dark, so that it stands out from any class colour.
    for (const auto &[color, width] :
         {std::pair(Theme::colors().textOnAccent, 7.0), std::pair(Theme::colors().accent, 3.0)}) {
        painter.setPen(QPen(color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPolygon(outline);
        if (const std::optional<QPointF> at = camera.project(markAt))
            painter.drawEllipse(*at, 12.0, 12.0);
    }
}

void MapOverlay::drawAim(QPainter &painter) const
{
    constexpr double reach = 26.0;
    constexpr double gap = 8.0;
    if (!isAimed || !Theme::isFocusShown())
        return;
    const QPointF middle = freeArea.center();
    for (const QPen &pen : {QPen(Theme::colors().textOnAccent, 7.0), QPen(Theme::colors().accent, 3.0)}) {
        painter.setPen(pen);
        for (const QPointF &way : {QPointF(1, 0), QPointF(-1, 0), QPointF(0, 1), QPointF(0, -1)})
            painter.drawLine(middle + gap * way, middle + reach * way);
    }
}

void MapOverlay::drawBubble(QPainter &painter) const
{
    const std::optional<QPointF> at = camera.project(bubbleAt);
    if (text.isEmpty() || !at)
        return;
    const QFont font = Theme::font(28, true);
    const double swatch = bubbleColor.isValid() ? 44.0 : 0.0;
    const QRectF words = QFontMetricsF(font).boundingRect(QRectF(0, 0, 800, 400), Qt::AlignLeft, text);
    QRectF box(0.0, 0.0, words.width() + swatch + 40.0, words.height() + 28.0);
    // Above the finger; below it where the display ends.
    const bool isBelow = at->y() - box.height() - 26.0 < freeArea.top();
    box.moveCenter(QPointF(at->x(), isBelow ? at->y() + 26.0 + box.height() / 2 : at->y() - 26.0 - box.height() / 2));
    box.moveLeft(
        qBound(freeArea.left() + 4.0, box.left(), qMax(freeArea.left() + 4.0, freeArea.right() - box.width() - 4.0)));

    QPainterPath shape;
    shape.addRoundedRect(box, 12.0, 12.0);
    const double edge = isBelow ? box.top() + 1.0 : box.bottom() - 1.0;
    const double foot = qBound(box.left() + 26.0, at->x(), box.right() - 26.0);
    QPainterPath tip;
    tip.addPolygon(QPolygonF({QPointF(foot - 14.0, edge), *at, QPointF(foot + 14.0, edge)}));
    tip.closeSubpath();
    const Theme::Colors &colors = Theme::colors();
    painter.setPen(QPen(colors.text, 2.0));
    painter.setBrush(colors.panel);
    painter.drawPath(shape.united(tip));
    if (bubbleColor.isValid()) {
        painter.setBrush(FieldScene::onGround(bubbleColor));
        painter.drawRoundedRect(QRectF(box.left() + 16.0, box.center().y() - 17.0, 34.0, 34.0), 5.0, 5.0);
    }
    painter.setPen(colors.text);
    painter.setFont(font);
    painter.drawText(box.adjusted(20.0 + swatch, 0.0, -10.0, 0.0), Qt::AlignVCenter | Qt::AlignLeft, text);
    painter.setBrush(colors.text);
    painter.setPen(QPen(colors.textOnAccent, 2.0));
    painter.drawEllipse(*at, 5.0, 5.0);
}
