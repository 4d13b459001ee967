#include "symbols.h"

#include <QPolygonF>
#include <QTransform>

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
