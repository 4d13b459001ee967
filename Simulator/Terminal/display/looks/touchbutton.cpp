#include "touchbutton.h"

#include "buttonlook.h"
#include "textlines.h"
#include "theme.h"
#include "visibletext.h"

#include <QKeyEvent>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int textPixels = 24;
constexpr int notePixels = 15;
/// A text is made no smaller than this; a longer one goes on in another line.
constexpr int leastPixels = 15;
/// A single word is made smaller than that rather than broken.
constexpr int leastWordPixels = 13;
constexpr int inset = 10;

} // namespace

TouchButton::TouchButton(const QString &text, QWidget *parent)
    : QAbstractButton(parent)
{
    setText(text);
    setFocusPolicy(Qt::TabFocus);
}

void TouchButton::setText(const QString &text)
{
    QAbstractButton::setText(VisibleText::of(text));
}

void TouchButton::setNote(const QString &newNote)
{
    note = VisibleText::of(newNote);
    setAccessibleDescription(note);
    update();
}

void TouchButton::setCaution(bool isWanted)
{
    wantsCaution = isWanted;
    update();
}

QSize TouchButton::sizeHint() const
{
    return QSize(Theme::touchTarget, Theme::touchTarget);
}

void TouchButton::setSymbol(const QPainterPath &newSymbol)
{
    symbol = newSymbol;
    update();
}

void TouchButton::keyPressEvent(QKeyEvent *event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Space)
        QAbstractButton::keyPressEvent(event);
    else
        event->setAccepted(isEnter);
    if (isEnter && !event->isAutoRepeat())
        click();
}

void TouchButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    ButtonLook look = ButtonLook::of(*this, ButtonLook::Checked::ByAccent);
    if (wantsCaution && !ButtonLook::isOutOfReach(*this) && !isDown()) {
        const Theme::Colors &colors = Theme::colors();
        look = {colors.caution, colors.textOnCaution, colors.textOnCaution, colors.textOnCaution, false};
    }
    Theme::drawPanel(painter, rect(), look.ground);
    if (hasFocus())
        Theme::drawFocus(painter, rect(), look.isOnAccent);
    if (symbol.isEmpty()) {
        drawTexts(painter, look);
        return;
    }
    painter.translate(rect().center());
    painter.fillPath(symbol, look.text);
}

void TouchButton::drawTexts(QPainter &painter, const ButtonLook &look) const
{
    const QRect inner = rect().adjusted(inset, 0, -inset, 0);

    QFont font = Theme::font(textPixels, true);
    const double needed = QFontMetricsF(font).horizontalAdvance(text());
    const int least = text().contains(QLatin1Char(' ')) ? leastPixels : leastWordPixels;
    if (needed > inner.width())
        font.setPixelSize(std::max(least, int(textPixels * inner.width() / needed)));
    painter.setFont(font);
    painter.setPen(look.text);
    const QFontMetrics metrics(font);
    const int noteHeight = note.isEmpty() ? 0 : QFontMetrics(Theme::font(notePixels)).height();
    const int most = std::max(1, (height() - noteHeight) / metrics.height());
    const QStringList lines = TextLines::of(text(), metrics, inner.width(), most);
    const QString shown = lines.join(QLatin1Char('\n'));
    if (note.isEmpty()) {
        painter.drawText(inner, Qt::AlignCenter, shown);
        return;
    }
    const int middle = height() / 2 + 2 + (lines.size() - 1) * metrics.height() / 2;
    painter.drawText(QRect(inner.left(), 0, inner.width(), middle), Qt::AlignHCenter | Qt::AlignBottom, shown);
    painter.setFont(Theme::font(notePixels));
    painter.setPen(look.note);
    painter.drawText(QRect(inner.left(), middle + 2, inner.width(), height() - middle - 2),
                     Qt::AlignHCenter | Qt::AlignTop,
                     TextLines::elided(note, QFontMetrics(painter.font()), inner.width(), Qt::ElideRight));
}
