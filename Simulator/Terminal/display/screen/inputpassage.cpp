#include "inputpassage.h"

#include "unseenwindows.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTouchEvent>
#include <QWheelEvent>
#include <QWindow>

namespace {

/// A widget's place on the terminal's display.
QPointF placeOf(const QWidget *widget)
{
    return widget->mapTo(widget->window(), QPoint()) + widget->window()->pos();
}

void focusByTouch(QWidget *widget)
{
    while (widget != nullptr && !(widget->isEnabled() && (widget->focusPolicy() & Qt::ClickFocus) != 0))
        widget = widget->isWindow() ? nullptr : widget->parentWidget();
    if (widget != nullptr)
        widget->setFocus(Qt::MouseFocusReason);
}

} // namespace

InputPassage::InputPassage(UnseenWindows *unseen, QWidget *visible)
    : QObject(visible)
    , windows(unseen)
    , seen(visible)
{
    seen->windowHandle()->installEventFilter(this);
}

bool InputPassage::eventFilter(QObject *, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
        passMouse(static_cast<QMouseEvent &>(*event));
        return true;
    case QEvent::Wheel:
        passWheel(static_cast<QWheelEvent &>(*event));
        return true;
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
        event->setAccepted(passTouch(static_cast<QTouchEvent &>(*event)));
        return true;
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        passKey(static_cast<QKeyEvent *>(event));
        return true;
    default:
        return false;
    }
}

QWidget *InputPassage::widgetAt(const QPointF &pixel) const
{
    QWidget *window = windows->windowAt(pixel);
    QWidget *child = window != nullptr ? window->childAt((pixel - window->pos()).toPoint()) : nullptr;
    return child != nullptr ? child : window;
}

void InputPassage::passMouse(const QMouseEvent &event)
{
    const QPointF pixel = fit().toTerminal(event.localPos());
    QWidget *target = pressed ? pressed.data() : widgetAt(pixel);
    if (event.type() == QEvent::MouseButtonPress && !pressed)
        pressed = target;
    if (event.buttons() == Qt::NoButton)
        pressed = nullptr;
    if (target == nullptr || UnseenWindows::isBlocked(target->window()))
        return;
    if (event.type() == QEvent::MouseButtonPress)
        focusByTouch(target);
    QMouseEvent passed(event.type(), pixel - placeOf(target), pixel - target->window()->pos(), pixel, event.button(),
                       event.buttons(), event.modifiers(), event.source());
    passed.setTimestamp(event.timestamp());
    QCoreApplication::sendEvent(target, &passed);
}

void InputPassage::passWheel(const QWheelEvent &event)
{
    const QPointF pixel = fit().toTerminal(event.position());
    QWidget *target = widgetAt(pixel);
    if (target == nullptr)
        return;
    QWheelEvent passed(pixel - placeOf(target), pixel, event.pixelDelta(), event.angleDelta(), event.buttons(),
                       event.modifiers(), event.phase(), event.inverted(), event.source());
    passed.setTimestamp(event.timestamp());
    QCoreApplication::sendEvent(target, &passed);
}

bool InputPassage::passTouch(const QTouchEvent &event)
{
    const ScreenFit place = fit();
    QList<QTouchEvent::TouchPoint> points = event.touchPoints();
    if (event.type() == QEvent::TouchBegin && !points.isEmpty())
        touched = widgetAt(place.toTerminal(points.first().pos()));
    if (!touched || UnseenWindows::isBlocked(touched->window()))
        return false;
    const QPointF corner = placeOf(touched);
    for (QTouchEvent::TouchPoint &point : points) {
        point.setScreenPos(place.toTerminal(point.pos()));
        point.setStartPos(place.toTerminal(point.startPos()) - corner);
        point.setLastPos(place.toTerminal(point.lastPos()) - corner);
        point.setPos(point.screenPos() - corner);
    }
    QTouchEvent passed(event.type(), event.device(), event.modifiers(), event.touchPointStates(), points);
    passed.setTimestamp(event.timestamp());
    QCoreApplication::sendEvent(touched, &passed);
    return passed.isAccepted();
}

void InputPassage::passKey(QKeyEvent *event)
{
    QWidget *popup = QApplication::activePopupWidget();
    QWidget *window = popup != nullptr ? popup : windows->foremost();
    QWidget *focused = window->focusWidget();
    // Accepted at first, as when Qt sends it: a widget that has no use for a key ignores it.
    event->accept();
    QCoreApplication::sendEvent(focused != nullptr ? focused : window, event);
    // A key that nothing on the display wants may be meant for the window around it.
    if (!event->isAccepted())
        QCoreApplication::sendEvent(seen, event);
}
