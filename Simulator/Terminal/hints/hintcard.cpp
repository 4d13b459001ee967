#include "hintcard.h"

#include "textlines.h"
#include "theme.h"
#include "touchbutton.h"
#include "visibletext.h"

#include <QBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>

namespace {

constexpr int cardWidth = 680;
constexpr int titlePixels = 24;
constexpr int textPixels = 19;
constexpr int buttonWidth = 180;
constexpr int inset = 20;

} // namespace

HintCard::HintCard(const QString &name, const QString &buttonName, QWidget *parent)
    : QWidget(parent)
    , heading(new QLabel(this))
    , body(new QLabel(this))
    , button(new TouchButton(tr("Got it"), this))
{
    setObjectName(name);
    heading->setFont(Theme::font(titlePixels, true));
    body->setFont(Theme::font(textPixels));
    for (QLabel *label : {heading, body}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
    }
    button->setObjectName(buttonName);
    button->setFixedSize(buttonWidth, Theme::touchTarget);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(inset, inset, inset, inset);
    layout->setSpacing(Theme::margin);
    layout->addWidget(heading);
    layout->addWidget(body);
    layout->addWidget(button, 0, Qt::AlignRight);
    connect(button, &TouchButton::clicked, this, &HintCard::close);
    hide();
}

void HintCard::tell(const QString &title, const QStringList &lines, const QRect &area)
{
    const auto cards = parentWidget()->findChildren<HintCard *>(QString(), Qt::FindDirectChildrenOnly);
    for (HintCard *card : cards) {
        if (card != this)
            card->leave();
    }
    heading->setText(TextLines::breakable(title));
    const QString bullet = lines.size() > 1 ? QStringLiteral("\u2022 ") : QString();
    QStringList shown;
    QStringList spoken;
    for (const QString &line : lines) {
        shown.append(bullet + TextLines::breakable(line));
        spoken.append(VisibleText::of(line));
    }
    body->setText(shown.join(QLatin1Char('\n')));
    setAccessibleName(VisibleText::of(title));
    setAccessibleDescription(spoken.join(QLatin1Char('\n')));
    const int wide = qMin(cardWidth, area.width());
    const int tall = layout()->heightForWidth(wide);
    setGeometry(area.left() + (area.width() - wide) / 2, area.bottom() + 1 - tall - Theme::margin, wide, tall);
    show();
    raise();
    if (!hasKeyboard())
        before = window()->focusWidget();
    // Takes the keyboard for Escape; other keys go on to the display.
    setFocus();
}

bool HintCard::hasKeyboard() const
{
    const QWidget *focused = window()->focusWidget();
    return focused == this || isAncestorOf(focused);
}

void HintCard::leave()
{
    // If it were hidden while it has the keyboard, a control that nobody chose would get it.
    if (hasKeyboard()) {
        window()->focusWidget()->clearFocus();
        if (before && before->isVisible())
            before->setFocus();
    }
    hide();
}

void HintCard::close()
{
    leave();
    Q_EMIT closed();
}

void HintCard::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(event);
}

void HintCard::mousePressEvent(QMouseEvent *event)
{
    // The touch is not meant for the map under the card.
    event->accept();
}

void HintCard::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    Theme::drawPanel(painter, rect(), QColor(Theme::colors().panel.rgb()));
    Theme::drawFocus(painter, rect(), false);
}
