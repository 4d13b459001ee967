#include "recordpicture.h"

#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QRectF>

#include <algorithm>
#include <cmath>

namespace {

/// Each record is drawn in a colour of 24 bits that stands for its number; the ground's stands for none.
constexpr int ground = 0xffffff;

QRectF extentOf(const std::vector<PlanePolygon> &polygons)
{
    double west = HUGE_VAL, south = HUGE_VAL, east = -HUGE_VAL, north = -HUGE_VAL;
    for (const PlanePolygon &polygon : polygons) {
        for (const PlaneVertex &vertex : polygon.outer) {
            west = std::min(west, vertex.x);
            east = std::max(east, vertex.x);
            south = std::min(south, vertex.y);
            north = std::max(north, vertex.y);
        }
    }
    return west <= east ? QRectF(QPointF(west, south), QPointF(east, north)) : QRectF();
}

/// The ring in pixels, without vertices that lie within a quarter of a pixel of the one before.
QPolygonF inPixels(const PlaneRing &ring, const QRectF &extent, double scale)
{
    constexpr double nearby = 0.25;
    QPolygonF result;
    for (const PlaneVertex &vertex : ring) {
        const QPointF point((vertex.x - extent.left()) * scale, (extent.bottom() - vertex.y) * scale);
        if (result.isEmpty() || (point - result.last()).manhattanLength() >= nearby)
            result.append(point);
    }
    return result;
}

} // namespace

RecordPicture::RecordPicture(const std::vector<PlanePolygon> &polygons, int side)
{
    const QRectF extent = extentOf(polygons);
    const double longer = std::max(extent.width(), extent.height());
    if (!(longer > 0.0))
        return;
    const double scale = side / longer;
    const auto length = [scale, side](double metres) { return std::clamp(int(std::ceil(metres * scale)), 1, side); };
    pixels = QSize(length(extent.width()), length(extent.height()));
    QImage image(pixels, QImage::Format_RGB32);
    image.fill(QRgb(ground));
    QPainter painter(&image);
    painter.setPen(Qt::NoPen);
    for (const PlanePolygon &polygon : polygons) {
        if (polygon.record >= ground)
            break;
        QPainterPath path;
        path.addPolygon(inPixels(polygon.outer, extent, scale));
        path.closeSubpath();
        for (const PlaneRing &hole : polygon.holes) {
            path.addPolygon(inPixels(hole, extent, scale));
            path.closeSubpath();
        }
        painter.fillPath(path, QColor(QRgb(polygon.record)));
    }
    painter.end();
    seen.reserve(pixels.width() * pixels.height());
    for (int y = 0; y < pixels.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        for (int x = 0; x < pixels.width(); ++x) {
            const int record = int(line[x] & RGB_MASK);
            seen.append(record == ground ? -1 : record);
        }
    }
}
