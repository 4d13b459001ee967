#include "unseenwindows.h"

#include "terminalwindow.h"
#include "windowstack.h"

#include <QApplication>
#include <QBackingStore>
#include <QPaintEngine>
#include <QPaintEvent>
#include <QPainter>
#include <QWindow>

#include <algorithm>

UnseenWindows::UnseenWindows(QWidget *terminal, QWidget *visible)
    : QObject(visible)
    , display(terminal)
    , seen(visible)
{
    setObjectName(QStringLiteral("unseenWindows"));
    display->setAttribute(Qt::WA_DontShowOnScreen);
    display->move(0, 0);
    qApp->installEventFilter(this);
}

QWidgetList UnseenWindows::stacked() const
{
    QWidgetList windows = WindowStack::fromTop();
    const auto isClosed = [](const QWidget *window) { return !window->isVisible(); };
    windows.erase(std::remove_if(windows.begin(), windows.end(), isClosed), windows.end());
    std::reverse(windows.begin(), windows.end());
    return windows;
}

QWidget *UnseenWindows::foremost() const
{
    QWidget *modal = QApplication::activeModalWidget();
    return modal != nullptr ? modal : display;
}

bool UnseenWindows::isBlocked(const QWidget *window)
{
    const QWidget *modal = QApplication::activeModalWidget();
    return modal != nullptr && window != modal && window != QApplication::activePopupWidget();
}

QWidget *UnseenWindows::windowAt(const QPointF &pixel) const
{
    if (QWidget *popup = QApplication::activePopupWidget())
        return popup;
    const QWidgetList windows = stacked();
    const auto found = std::find_if(windows.rbegin(), windows.rend(), [&pixel](const QWidget *window) {
        return QRectF(window->geometry()).contains(pixel);
    });
    return found != windows.rend() && !isBlocked(*found) ? *found : nullptr;
}

bool UnseenWindows::eventFilter(QObject *watched, QEvent *event)
{
    auto *widget = qobject_cast<QWidget *>(watched);
    if (widget == nullptr)
        return false;
    switch (event->type()) {
    case QEvent::Polish:
        // Comes once, before the window is shown.
        if (isOwn(widget))
            widget->setAttribute(Qt::WA_DontShowOnScreen);
        break;
    case QEvent::Show:
        if (isOwn(widget) && !event->spontaneous())
            prepare(widget);
        break;
    case QEvent::Hide:
    case QEvent::Move:
    case QEvent::Resize:
        if (isOwn(widget))
            Q_EMIT changed(QRect(QPoint(), display->size()));
        if (isOwn(widget) && event->type() == QEvent::Hide)
            Q_EMIT foremostChanged();
        break;
    case QEvent::Paint:
        if (isOwn(widget->window()) && !isForScreen(widget)) {
            const QPoint corner = widget->mapTo(widget->window(), QPoint()) + widget->window()->pos();
            Q_EMIT changed(static_cast<QPaintEvent *>(event)->region().translated(corner));
            return true;
        }
        break;
    default:
        break;
    }
    return false;
}

void UnseenWindows::prepare(QWidget *window)
{
    window->setProperty("displayArea", QRect(QPoint(), display->size()));
    // Qt blocks all windows outside a modal dialog, except those over it; the window seen has to be such a one.
    if (window->isModal() && seen->windowHandle() != nullptr)
        seen->windowHandle()->setTransientParent(window->windowHandle());
    // Controls that a modal dialog keeps out of reach look different, too.
    Q_EMIT changed(window->isModal() ? QRect(QPoint(), display->size()) : window->geometry());
    Q_EMIT foremostChanged();
}

/// Whether a paint event is to paint on the screen rather than into the window's own memory, which nobody sees.
bool UnseenWindows::isForScreen(QWidget *widget) const
{
    QBackingStore *memory = widget->window()->backingStore();
    const QPainter painter(widget);
    return memory == nullptr || painter.paintEngine() == nullptr
        || painter.paintEngine()->paintDevice() != memory->paintDevice();
}
