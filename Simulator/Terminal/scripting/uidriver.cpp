#include "uidriver.h"

#include "screenwindow.h"
#include "terminalwindow.h"
#include "windowstack.h"

#include "Framework/orvikbutton.h"
#include "Framework/orvikbuttonqgw.h"
#include "Framework/orviklineedit.h"

#include <QAbstractButton>
#include <QApplication>
#include <QGraphicsObject>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QWindow>

#include <algorithm>

namespace {

const QWidget *displayWindow()
{
    const QWidgetList all = QApplication::topLevelWidgets();
    const auto display = std::find_if(all.begin(), all.end(), [](const QWidget *window) {
        return qobject_cast<const TerminalWindow *>(window) != nullptr;
    });
    return display != all.end() ? *display : nullptr;
}

QList<QObject *> matchesIn(QWidget *window, const QString &name)
{
    QList<QObject *> matches;
    if (window->objectName() == name)
        matches.append(window);
    const QList<QWidget *> widgets = window->findChildren<QWidget *>(name);
    for (QWidget *widget : widgets) {
        if (widget->window() == window)
            matches.append(widget);
    }
    const QList<QGraphicsView *> views = window->findChildren<QGraphicsView *>();
    for (QGraphicsView *view : views) {
        const QList<QGraphicsItem *> items = view->items();
        for (QGraphicsItem *item : items) {
            QGraphicsObject *object = item->toGraphicsObject();
            if (object != nullptr && object->objectName() == name)
                matches.append(object);
        }
    }
    return matches;
}

QGraphicsView *viewOf(const QGraphicsObject *item)
{
    const QList<QGraphicsView *> views = item->scene() != nullptr ? item->scene()->views() : QList<QGraphicsView *>();
    return views.isEmpty() ? nullptr : views.first();
}

/// A place in one of the terminal's windows, where it is on the screen.
UiDriver::Spot seenSpot(const QWidget *window, const QPointF &place)
{
    const ScreenWindow *screen = ScreenWindow::find();
    return screen == nullptr ? UiDriver::Spot{window->windowHandle(), place}
                             : UiDriver::Spot{screen->windowHandle(), screen->placeOf(place + window->pos())};
}

/// The item's outline in its view's viewport.
QRect viewportRect(const QGraphicsObject *item, const QGraphicsView *view)
{
    return view->viewportTransform().mapRect(item->sceneBoundingRect()).toRect();
}

} // namespace

QObject *UiDriver::find(const QString &name)
{
    QObject *hidden = nullptr;
    const QWidgetList windows = WindowStack::fromTop();
    for (QWidget *window : windows) {
        const QList<QObject *> matches = matchesIn(window, name);
        for (QObject *match : matches) {
            if (isVisible(match))
                return match;
            if (hidden == nullptr)
                hidden = match;
        }
    }
    return hidden;
}

QString UiDriver::text(const QObject *control)
{
    if (auto *button = qobject_cast<const OrvikButton *>(control))
        return button->text(0);
    if (auto *edit = qobject_cast<const OrvikLineEdit *>(control))
        return edit->getText();
    if (auto *label = qobject_cast<const QLabel *>(control))
        return label->text();
    if (auto *button = qobject_cast<const QAbstractButton *>(control))
        return button->text();
    return {};
}

int UiDriver::image(const QObject *control)
{
    if (auto *button = qobject_cast<const OrvikButton *>(control))
        return button->currentImage();
    if (auto *button = qobject_cast<const OrvikButtonQgw *>(control))
        return button->currentImage();
    return -1;
}

bool UiDriver::isVisible(const QObject *control)
{
    if (auto *widget = qobject_cast<const QWidget *>(control))
        return widget->isVisible();
    auto *item = qobject_cast<const QGraphicsObject *>(control);
    if (item == nullptr || !item->isVisible())
        return false;
    const QGraphicsView *view = viewOf(item);
    return view != nullptr && view->isVisible();
}

bool UiDriver::isEnabled(const QObject *control)
{
    if (auto *widget = qobject_cast<const QWidget *>(control))
        return widget->isEnabled();
    auto *item = qobject_cast<const QGraphicsObject *>(control);
    return item != nullptr && item->isEnabled();
}

QRect UiDriver::geometry(const QObject *control)
{
    if (auto *widget = qobject_cast<const QWidget *>(control)) {
        const QWidget *display = widget->isWindow() ? displayWindow() : nullptr;
        return display != nullptr ? widget->geometry().translated(-display->mapToGlobal(QPoint(0, 0)))
                                  : widget->geometry();
    }
    auto *item = qobject_cast<const QGraphicsObject *>(control);
    const QGraphicsView *view = item != nullptr ? viewOf(item) : nullptr;
    if (view == nullptr)
        return {};
    const QRect area = viewportRect(item, view);
    return QRect(view->viewport()->mapTo(view->window(), area.topLeft()), area.size());
}

UiDriver::Spot UiDriver::middle(const QObject *control)
{
    if (!isVisible(control))
        return {};
    if (auto *widget = qobject_cast<const QWidget *>(control))
        return seenSpot(widget->window(), widget->mapTo(widget->window(), widget->rect().center()));
    auto *item = qobject_cast<const QGraphicsObject *>(control);
    QGraphicsView *view = viewOf(item);
    const QPoint centre = viewportRect(item, view).center();
    return seenSpot(view->window(), view->viewport()->mapTo(view->window(), centre));
}

void UiDriver::press(const Spot &spot)
{
    if (!spot.window)
        return;
    const QPointF global = spot.window->mapToGlobal(spot.place.toPoint());
    QCoreApplication::postEvent(spot.window,
                                new QMouseEvent(QEvent::MouseButtonPress, spot.place, spot.place, global,
                                                Qt::LeftButton, Qt::LeftButton, Qt::NoModifier));
}

void UiDriver::release(const Spot &spot)
{
    if (!spot.window)
        return;
    const QPointF global = spot.window->mapToGlobal(spot.place.toPoint());
    QCoreApplication::postEvent(spot.window,
                                new QMouseEvent(QEvent::MouseButtonRelease, spot.place, spot.place, global,
                                                Qt::LeftButton, Qt::NoButton, Qt::NoModifier));
}

bool UiDriver::hasKeyboard(const QObject *control)
{
    const QWidget *popup = QApplication::activePopupWidget();
    for (const QObject *object = popup; object != nullptr; object = object->parent()) {
        if (object == control)
            return true;
    }
    auto *widget = qobject_cast<const QWidget *>(control);
    return popup == nullptr && widget != nullptr && widget->isEnabled() && widget->hasFocus();
}

void UiDriver::type(const QObject *control, const QString &text)
{
    auto *widget = qobject_cast<const QWidget *>(control);
    const QWidget *popup = QApplication::activePopupWidget();
    if (widget == nullptr)
        return;
    QWindow *window = seenSpot(popup != nullptr ? popup : widget->window(), QPointF()).window;
    const auto key = [window](int code, const QString &character) {
        for (const QEvent::Type kind : {QEvent::KeyPress, QEvent::KeyRelease})
            QCoreApplication::postEvent(window, new QKeyEvent(kind, code, Qt::NoModifier, character));
    };
    if (text.isEmpty())
        key(Qt::Key_Delete, QString());
    // For the characters of a number the key codes are the characters' own.
    for (const QChar character : text)
        key(character.toUpper().unicode(), QString(character));
    key(Qt::Key_Return, QStringLiteral("\r"));
}
