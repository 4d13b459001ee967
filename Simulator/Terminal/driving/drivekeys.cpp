#include "drivekeys.h"

#include "drivecontrols.h"
#include "drivepanel.h"
#include "wheelbar.h"

#include <QApplication>
#include <QKeyEvent>

DriveKeys::DriveKeys(DriveControls *controls, DrivePanel *panel, QObject *parent)
    : QObject(parent)
    , controls(controls)
    , panel(panel)
{
    qApp->installEventFilter(this);
}

bool DriveKeys::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease)
        return QObject::eventFilter(watched, event);
    // Whichever of the window's widgets has the keyboard; a dialog's are another window's.
    const auto *widget = qobject_cast<const QWidget *>(watched);
    if (widget == nullptr || widget->window() != panel->window() || !panel->isVisible())
        return QObject::eventFilter(watched, event);
    const auto &key = static_cast<const QKeyEvent &>(*event);
    const bool isTaken = event->type() == QEvent::KeyPress ? press(key) : release(key);
    return isTaken || QObject::eventFilter(watched, event);
}

bool DriveKeys::press(const QKeyEvent &event)
{
    constexpr double turnOfAPress = 0.2;
    if (event.key() == Qt::Key_Left || event.key() == Qt::Key_Right) {
        // A held key repeats itself.
        const double turn = event.key() == Qt::Key_Left ? -turnOfAPress : turnOfAPress;
        panel->wheel()->setTurn(panel->wheel()->turn() + turn);
        return true;
    }
    return event.isAutoRepeat() || holdPedal(event.key(), true) || pressOnce(event.key());
}

bool DriveKeys::release(const QKeyEvent &event)
{
    if (event.isAutoRepeat())
        return true;
    if (event.key() == Qt::Key_Left || event.key() == Qt::Key_Right) {
        panel->wheel()->setTurn(0.0);
        return true;
    }
    return holdPedal(event.key(), false);
}

bool DriveKeys::holdPedal(int key, bool isPressed)
{
    if (key == Qt::Key_Up)
        controls->pressThrottle(isPressed);
    else if (key == Qt::Key_Down)
        controls->pressBrake(isPressed);
    return key == Qt::Key_Up || key == Qt::Key_Down;
}

bool DriveKeys::pressOnce(int key)
{
    switch (key) {
    case Qt::Key_Space:
        controls->isUnderWay() ? controls->stop() : controls->start();
        return true;
    case Qt::Key_P:
        controls->setPaused(!controls->isPaused());
        return true;
    case Qt::Key_Plus:
        controls->faster();
        return true;
    case Qt::Key_Minus:
        controls->slower();
        return true;
    case Qt::Key_PageUp:
        controls->paceUp();
        return true;
    case Qt::Key_PageDown:
        controls->paceDown();
        return true;
    case Qt::Key_S:
        controls->takeSwaths();
        return true;
    case Qt::Key_H:
        controls->takeHand();
        return true;
    case Qt::Key_L:
        controls->setSignal(!controls->hasSignal());
        return true;
    default:
        return false;
    }
}
