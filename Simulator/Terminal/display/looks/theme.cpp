#include "theme.h"

#include <QPainter>

#include <utility>

namespace {

constexpr double radius = 10.0;

bool focusShown = false;

Theme::Colors dayColors()
{
    Theme::Colors colors;
    colors.panel = QColor(250, 251, 252, 244);
    colors.button = QColor(214, 221, 228);
    colors.pressedButton = QColor(138, 152, 166);
    colors.disabledButton = QColor(236, 239, 242);
    colors.accent = QColor(0, 92, 168);
    colors.text = QColor(16, 24, 32);
    colors.faintText = QColor(66, 78, 90);
    colors.disabledText = QColor(94, 104, 114);
    colors.accentText = QColor(0, 84, 156);
    colors.textOnAccent = QColor(255, 255, 255);
    colors.caution = QColor(255, 196, 60);
    colors.textOnCaution = QColor(16, 24, 32);
    colors.prescribed = QColor(190, 104, 0);
    colors.applied = QColor(0, 92, 168);
    colors.ground = QColor(222, 216, 202);
    colors.groundLine = QColor(40, 44, 36);
    return colors;
}

Theme::Colors nightColors()
{
    Theme::Colors colors;
    colors.panel = QColor(22, 30, 38, 244);
    colors.button = QColor(54, 66, 78);
    colors.pressedButton = QColor(98, 114, 130);
    colors.disabledButton = QColor(30, 39, 48);
    colors.accent = QColor(255, 198, 0);
    colors.text = QColor(255, 255, 255);
    colors.faintText = QColor(196, 206, 216);
    colors.disabledText = QColor(146, 156, 166);
    colors.accentText = QColor(255, 198, 0);
    colors.textOnAccent = QColor(14, 18, 22);
    colors.caution = QColor(150, 56, 0);
    colors.textOnCaution = QColor(255, 255, 255);
    colors.prescribed = QColor(255, 166, 40);
    colors.applied = QColor(120, 200, 255);
    colors.ground = QColor(38, 42, 38);
    colors.groundLine = QColor(214, 220, 204);
    return colors;
}

Theme::Kind current = Theme::Kind::Day;

} // namespace

const Theme::Colors &Theme::colors(Kind kind)
{
    static const Colors day = dayColors();
    static const Colors night = nightColors();
    return kind == Kind::Day ? day : night;
}

Theme::Kind Theme::inUse()
{
    return current;
}

void Theme::use(Kind kind)
{
    current = kind;
}

Theme::Kind Theme::suiting(const QPalette &desktop)
{
    const auto lightness = [&desktop](QPalette::ColorRole role) { return qGray(desktop.color(role).rgb()); };
    return lightness(QPalette::Window) < lightness(QPalette::WindowText) ? Kind::Night : Kind::Day;
}

QPalette Theme::palette()
{
    const Colors &now = colors();
    const QBrush button = now.button;
    QPalette palette(now.text, button, button, button, button, now.text, now.text, now.panel, now.panel);
    palette.setColor(QPalette::Highlight, now.accent);
    palette.setColor(QPalette::HighlightedText, now.textOnAccent);
    return palette;
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

bool Theme::showFocus(bool isShown)
{
    return std::exchange(focusShown, isShown) != isShown;
}

bool Theme::isFocusShown()
{
    return focusShown;
}

void Theme::drawFocus(QPainter &painter, const QRectF &area, bool onAccent)
{
    if (!focusShown)
        return;
    constexpr double width = 3.0;
    const double half = width / 2.0;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(onAccent ? colors().textOnAccent : colors().accent, width));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(area.adjusted(half, half, -half, -half), radius, radius);
}
