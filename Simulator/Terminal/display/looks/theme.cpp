#include "theme.h"

#include <QPainter>

namespace {

constexpr double radius = 10.0;

}

QColor Theme::panel()
{
    return QColor(22, 30, 38, 244);
}

QColor Theme::button()
{
    return QColor(54, 66, 78);
}

QColor Theme::pressedButton()
{
    return QColor(104, 120, 136);
}

QColor Theme::accent()
{
    return QColor(255, 198, 0);
}

QColor Theme::textOnAccent()
{
    return QColor(14, 18, 22);
}

QColor Theme::text()
{
    return QColor(255, 255, 255);
}

QColor Theme::faintText()
{
    return QColor(196, 206, 216);
}

QFont Theme::font(int pixels, bool bold)
{
    QFont font(QStringLiteral("Liberation Sans"));
    font.setPixelSize(pixels);
    font.setBold(bold);
    return font;
}

void Theme::drawPanel(QPainter &painter, const QRectF &area, const QColor &color)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawRoundedRect(area, radius, radius);
}

void Theme::drawFocus(QPainter &painter, const QRectF &area, bool onAccent)
{
    constexpr double width = 3.0;
    const double half = width / 2.0;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(onAccent ? textOnAccent() : accent(), width));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(area.adjusted(half, half, -half, -half), radius, radius);
}
