#include "messagepage.h"

#include "textlines.h"
#include "theme.h"
#include "touchbutton.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace {

constexpr int titlePixels = 28;
constexpr int textPixels = 22;
constexpr int buttonWidth = 300;
constexpr int sideSpace = 160;

QLabel *addText(QVBoxLayout *layout, int pixels, bool isBold)
{
    auto *label = new QLabel;
    label->setFont(Theme::font(pixels, isBold));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    layout->addWidget(label);
    return label;
}

TouchButton *addButton(QHBoxLayout *layout, const QString &text, const char *name)
{
    auto *button = new TouchButton(text);
    button->setObjectName(QLatin1String(name));
    button->setFixedSize(buttonWidth, Theme::touchTarget);
    button->setFocusPolicy(Qt::TabFocus);
    layout->addWidget(button);
    return button;
}

} // namespace

MessagePage::MessagePage(QWidget *parent)
    : QWidget(parent)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(sideSpace, 0, sideSpace, 0);
    layout->addStretch();
    addText(layout, titlePixels, true)->setText(tr("This cannot be opened"));
    layout->addSpacing(Theme::margin);
    text = addText(layout, textPixels, false);
    text->setObjectName(QStringLiteral("openMessage"));
    layout->addSpacing(Theme::margin);
    addText(layout, textPixels, false)->setText(tr("What was loaded before stays."));
    layout->addSpacing(3 * Theme::margin);
    auto *buttons = new QHBoxLayout;
    TouchButton *back = addButton(buttons, tr("Back"), "openBack");
    other = addButton(buttons, tr("Another layer or task"), "openOther");
    buttons->addStretch();
    layout->addLayout(buttons);
    layout->addStretch();
    connect(back, &TouchButton::clicked, this, &MessagePage::left);
    connect(other, &TouchButton::clicked, this, &MessagePage::otherWanted);
}

void MessagePage::tell(const QString &reason, bool offersOther)
{
    text->setText(TextLines::breakable(reason));
    other->setVisible(offersOther);
}
