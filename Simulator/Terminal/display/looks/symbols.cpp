#include "symbols.h"

#include <QPolygonF>
#include <QTransform>

namespace {

/// The corner at the lower right, four times around the middle.
QPainterPath corners(const QPolygonF &corner)
{
    QPainterPath path;
    for (int quarter = 0; quarter < 4; ++quarter) {
        path.addPolygon(QTransform().rotate(90.0 * quarter).map(corner));
        path.closeSubpath();
    }
    return path;
}

} // namespace

QPainterPath Symbols::folder()
{
    QPainterPath path;
    path.addPolygon(QPolygonF({{-16, 12}, {-16, -12}, {-5, -12}, {-1, -8}, {14, -8}, {14, -4}, {-10, -4}}));
    path.closeSubpath();
    path.addPolygon(QPolygonF({{-13, 12}, {-8, -1}, {16, -1}, {11, 12}}));
    path.closeSubpath();
    return path;
}

QPainterPath Symbols::file()
{
    QPainterPath path;
    path.addPolygon(QPolygonF({{-11, 15}, {-11, -15}, {3, -15}, {3, -7}, {11, -7}, {11, 15}}));
    path.closeSubpath();
    path.addPolygon(QPolygonF({{5, -15}, {11, -9}, {5, -9}}));
    path.closeSubpath();
    return path;
}

QPainterPath Symbols::sun()
{
    constexpr double disc = 7.5;
    constexpr int rays = 8;
    QPainterPath path;
    path.addEllipse(QPointF(), disc, disc);
    for (int ray = 0; ray < rays; ++ray) {
        const QPolygonF outline({{-1.6, -15}, {1.6, -15}, {1.6, -10.5}, {-1.6, -10.5}});
        path.addPolygon(QTransform().rotate(360.0 / rays * ray).map(outline));
        path.closeSubpath();
    }
    return path;
}

QPainterPath Symbols::moon()
{
    constexpr double radius = 14.0;
    QPainterPath disc;
    disc.addEllipse(QPointF(), radius, radius);
    QPainterPath shadow;
    shadow.addEllipse(QPointF(7.0, -5.0), radius - 2.0, radius - 2.0);
    return disc.subtracted(shadow);
}

QPainterPath Symbols::fullScreen()
{
    return corners(QPolygonF({{14, 4}, {14, 14}, {4, 14}, {4, 10}, {10, 10}, {10, 4}}));
}

QPainterPath Symbols::plainWindow()
{
    return corners(QPolygonF({{4, 14}, {4, 4}, {14, 4}, {14, 8}, {8, 8}, {8, 14}}));
}
