#include "windowstack.h"

#include "screenwindow.h"
#include "terminalwindow.h"

#include <QApplication>

namespace {

void putOnTop(QWidget *window, QWidgetList &stack)
{
    if (window == nullptr)
        return;
    stack.removeAll(window);
    stack.prepend(window);
}

} // namespace

QWidgetList WindowStack::fromTop()
{
    QWidgetList over;
    QWidgetList base;
    const QWidgetList all = QApplication::topLevelWidgets();
    for (QWidget *window : all) {
        if (qobject_cast<ScreenWindow *>(window) == nullptr)
            (qobject_cast<TerminalWindow *>(window) == nullptr ? over : base).append(window);
    }
    putOnTop(QApplication::activeModalWidget(), over);
    putOnTop(QApplication::activePopupWidget(), over);
    return over + base;
}
