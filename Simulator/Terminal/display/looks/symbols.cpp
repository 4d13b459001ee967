#include "symbols.h"

#include <QPolygonF>

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
