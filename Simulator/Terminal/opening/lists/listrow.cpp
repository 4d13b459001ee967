#include "listrow.h"

#include "buttonlook.h"
#include "symbols.h"
#include "textlines.h"
#include "theme.h"
#include "visibletext.h"

#include <QPainter>

namespace {

constexpr int textPixels = 22;
constexpr int longTextPixels = 17;
constexpr int notePixels = 16;
constexpr int textHeight = 28;
constexpr int noteHeight = 21;
/// Height of a line where a text takes several; shows as many of them and of the notes as there is room for.
constexpr int longTextHeight = 20;
constexpr int inset = 16;
constexpr int markWidth = 8;

} // namespace

ListRow::ListRow(QWidget *parent)
    : QAbstractButton(parent)
{
    setFocusPolicy(Qt::TabFocus);
}

void ListRow::setText(const QString &text)
{
    QAbstractButton::setText(VisibleText::of(text));
}

void ListRow::setSymbol(const QPainterPath &newSymbol)
{
    symbol = newSymbol;
    update();
}

void ListRow::setNotes(const QStringList &lines)
{
    notes = lines;
    setAccessibleDescription(VisibleText::of(lines.join(QStringLiteral(", "))));
    update();
}

void ListRow::setBadge(const QString &text)
{
    badge = text;
    update();
}

QSize ListRow::sizeHint() const
{
    return QSize(4 * Theme::touchTarget, Theme::touchTarget);
}

void ListRow::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const ButtonLook look = ButtonLook::of(*this, ButtonLook::Checked::ByOther);
    Theme::drawPanel(painter, rect(), look.ground);
    if (isChecked())
        Theme::drawPanel(painter, QRect(0, 0, markWidth, height()), Theme::colors().accent);
    if (hasFocus())
        Theme::drawFocus(painter, rect(), false);
    QRect inner = rect().adjusted(inset, 0, -inset, 0);
    if (!symbol.isEmpty()) {
        painter.fillPath(symbol.translated(inner.left() + Symbols::side / 2, rect().center().y()), look.mark);
        inner.setLeft(inner.left() + int(Symbols::side) + inset);
    }
    drawTexts(painter, inner, look);
}

void ListRow::drawTexts(QPainter &painter, const QRect &area, const ButtonLook &look) const
{
    const auto draw = [&painter](const QRect &line, int align, const QString &text) {
        painter.drawText(line, Qt::AlignVCenter | align, TextLines::elided(text, painter.fontMetrics(), line.width()));
    };
    QStringList texts{text()};
    painter.setFont(Theme::font(textPixels, true));
    int lineHeight = textHeight;
    const int most = height() / longTextHeight - notes.size();
    if (painter.fontMetrics().horizontalAdvance(text()) > area.width() && most > 1) {
        painter.setFont(Theme::font(longTextPixels, true));
        texts = TextLines::of(text(), painter.fontMetrics(), area.width(), most);
        lineHeight = longTextHeight;
    }
    const int all = texts.size() * lineHeight + notes.size() * noteHeight;
    QRect line(area.left(), (height() - all) / 2, area.width(), lineHeight);
    painter.setPen(look.text);
    for (const QString &part : qAsConst(texts)) {
        draw(line, Qt::AlignLeft, part);
        line.translate(0, lineHeight);
    }
    painter.setFont(Theme::font(notePixels));
    painter.setPen(look.note);
    line.setHeight(noteHeight);
    int badgeWidth = badge.isEmpty() ? 0 : QFontMetrics(Theme::font(notePixels, true)).horizontalAdvance(badge) + inset;
    const QRect besideNote = line;
    for (const QString &note : notes) {
        draw(line.adjusted(0, 0, -badgeWidth, 0), Qt::AlignLeft, note);
        badgeWidth = 0;
        line.translate(0, noteHeight);
    }
    painter.setFont(Theme::font(notePixels, true));
    painter.setPen(look.mark);
    draw(besideNote, Qt::AlignRight, badge);
}
