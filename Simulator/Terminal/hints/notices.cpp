#include "notices.h"

#include "hintcard.h"
#include "terminalwindow.h"

Notices::Notices(TerminalWindow *givenWindow)
    : window(givenWindow)
    , card(new HintCard(QStringLiteral("noticeCard"), QStringLiteral("noticeClose"), givenWindow))
{
    connect(card, &HintCard::closed, this, &Notices::showNext);
}

void Notices::tell(const QString &title, const QString &line)
{
    if (isCovered)
        waiting.append({title, line});
    else
        show(title, line);
}

void Notices::leave()
{
    card->leave();
}

void Notices::setCovered(bool isDisplayCovered)
{
    isCovered = isDisplayCovered;
    if (isCovered)
        leave();
    else
        showNext();
}

void Notices::show(const QString &title, const QString &line)
{
    // The scale lies at the lower border.
    card->tell(title, {line}, window->freeArea().adjusted(0, 0, 0, -Theme::touchTarget));
}

void Notices::showNext()
{
    if (waiting.isEmpty())
        return;
    const auto next = waiting.takeFirst();
    show(next.first, next.second);
}
