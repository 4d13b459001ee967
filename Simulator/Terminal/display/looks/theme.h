#pragma once

#include <QColor>
#include <QFont>

class QPainter;
class QRectF;

/// Colours, sizes and type of the terminal's own panels: dark with white figures, so that the map is the brightest
/// thing on the display, at contrasts that hold in sunlight.
namespace Theme {

constexpr int margin = 12;
/// The least edge of anything that a gloved finger is to hit, pixels.
constexpr int touchTarget = 72;

QColor panel();
QColor button();
QColor pressedButton();
QColor accent();
QColor textOnAccent();
QColor text();
QColor faintText();

/// The terminal's font in `pixels`.
QFont font(int pixels, bool bold = false);

/// Fills a rounded panel.
void drawPanel(QPainter &painter, const QRectF &area, const QColor &color);
/// Frames what has the keyboard.
void drawFocus(QPainter &painter, const QRectF &area, bool onAccent);

} // namespace Theme
