#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>

class QPainter;
class QRectF;

/// Colours, sizes and type of all that the terminal paints itself: its panels, pages and the ground under the map. By
/// day panels are light with dark figures; by night they are dark, so that the map is the brightest thing on the
/// display. Plug-ins and their dialogs keep the looks of the application (OwnLooks).
namespace Theme {

enum class Kind { Day, Night };

/// A theme's colours by what they are for.
struct Colors {
    QColor panel;         ///< not quite opaque: the map shows through
    QColor button;        ///< and rows of lists
    QColor pressedButton; ///< only text is written on it
    QColor disabledButton;
    QColor accent;
    QColor text; ///< on panel and buttons
    QColor faintText;
    QColor disabledText; ///< on panel and disabledButton
    QColor accentText;   ///< on panel and button
    QColor textOnAccent;
    QColor caution; ///< ground of what needs the operator's attention
    QColor textOnCaution;
    QColor prescribed; ///< a plot's line; the same hue by day and by night, as is
    QColor applied;    ///< the line beside it
    QColor ground;     ///< under the map
    QColor groundLine; ///< of the grid on the ground
};

/// The whole display has one theme: day, until another one is taken by TerminalWindow::setTheme().
Kind inUse();
void use(Kind kind);
const Colors &colors(Kind kind = inUse());
/// The theme that suits a desktop of these colours.
Kind suiting(const QPalette &desktop);
/// Of the theme in use, for the labels of the terminal.
QPalette palette();

constexpr int margin = 12;
/// The display stands for a panel of 10.1 inches with 1280 × 800 pixels.
constexpr double millimetresPerPixel = 0.17;
/// Side of what a gloved finger must hit, pixels.
constexpr int touchTarget = 72;
/// No side may be shorter than this, millimetres.
constexpr double leastTouchTarget = 9.0;

/// The terminal's font in `pixels`.
QFont font(int pixels, bool bold = false);

/// Fills a rounded panel.
void drawPanel(QPainter &painter, const QRectF &area, const QColor &color);
/// Sets whether the control that has the keyboard is marked: a finger has no use for that. False if that was so
/// already. By design one for the whole program, as the theme is: there is one operator, and controls of every window
/// draw themselves by it.
bool showFocus(bool isShown);
bool isFocusShown();
/// Draws the frame around the control that has the keyboard.
void drawFocus(QPainter &painter, const QRectF &area, bool onAccent);

} // namespace Theme
