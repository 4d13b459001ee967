#include "windowstack.h"

#include "screenwindow.h"
#include "terminalwindow.h"

#include <QApplication>
#include <QPainter>

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

QImage WindowStack::picture(TerminalWindow *display)
{
    QImage image = display->grab().toImage().convertToFormat(QImage::Format_RGB32);
    QPainter painter(&image);
    const QWidgetList windows = fromTop();
    for (auto window = windows.rbegin(); window != windows.rend(); ++window) {
        if (*window != display && (*window)->isVisible())
            painter.drawPixmap((*window)->pos() - display->mapToGlobal(QPoint(0, 0)), (*window)->grab());
    }
    return image;
}
