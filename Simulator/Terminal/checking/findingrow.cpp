#include "findingrow.h"

#include "buttonlook.h"
#include "findingkind.h"
#include "textlines.h"
#include "theme.h"
#include "visibletext.h"

#include <QKeyEvent>
#include <QPainter>

namespace {

constexpr int titlePixels = 22;
constexpr int titleHeight = 27;
constexpr int textPixels = 18;
constexpr int textHeight = 22;
constexpr int mostLines = 2; // Of the text.
constexpr int inset = 16;

} // namespace

FindingRow::FindingRow(const MapFinding &finding, const QString &file, QWidget *parent)
    : QAbstractButton(parent)
    , title(FindingKind::title(finding.kind))
{
    setText(VisibleText::of(finding.text));
    if (!file.isEmpty())
        title += QStringLiteral("  \u00b7  ") + VisibleText::of(file);
    setFocusPolicy(Qt::TabFocus);
    setAccessibleName(title);
    setAccessibleDescription(text());
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    // A finding without a place cannot be shown.
    setEnabled(finding.place.has_value());
}

QSize FindingRow::sizeHint() const
{
    return QSize(rowHeight, rowHeight);
}

void FindingRow::keyPressEvent(QKeyEvent *event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    event->setAccepted(isEnter);
    if (isEnter && !event->isAutoRepeat())
        click();
}

void FindingRow::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const ButtonLook look = ButtonLook::of(*this, ButtonLook::Checked::ByOther);
    Theme::drawPanel(painter, rect(), look.ground);
    if (hasFocus())
        Theme::drawFocus(painter, rect(), false);
    const int width = rect().width() - 2 * inset;
    const QFont textFont = Theme::font(textPixels);
    const QStringList lines = TextLines::of(text(), QFontMetrics(textFont), width, mostLines);
    QRect line(inset, (height() - titleHeight - lines.size() * textHeight) / 2, width, titleHeight);
    // What has no place cannot be touched, but says no less.
    painter.setPen(isEnabled() ? look.text : Theme::colors().text);
    painter.setFont(Theme::font(titlePixels, true));
    painter.drawText(line, Qt::AlignVCenter | Qt::AlignLeft, TextLines::elided(title, painter.fontMetrics(), width));
    painter.setFont(textFont);
    line.translate(0, titleHeight);
    line.setHeight(textHeight);
    for (const QString &part : lines) {
        painter.drawText(line, Qt::AlignVCenter | Qt::AlignLeft, part);
        line.translate(0, textHeight);
    }
}
