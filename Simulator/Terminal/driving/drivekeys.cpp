#include "drivekeys.h"

#include "drivecontrols.h"
#include "drivepanel.h"
#include "driverecord.h"
#include "wheelbar.h"

#include <QApplication>
#include <QKeyEvent>

DriveKeys::DriveKeys(DriveControls *givenControls, DriveRecord *givenRecord, DrivePanel *givenPanel, QObject *parent)
    : QObject(parent)
    , controls(givenControls)
    , record(givenRecord)
    , panel(givenPanel)
{
    qApp->installEventFilter(this);
}

bool DriveKeys::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease)
        return QObject::eventFilter(watched, event);
    const auto &key = static_cast<const QKeyEvent &>(*event);
    const bool isTaken = event->type() == QEvent::KeyRelease ? release(key) : isForDriving(watched) && press(key);
    return isTaken || QObject::eventFilter(watched, event);
}

bool DriveKeys::isForDriving(const QObject *watched) const
{
    // Any widget of this window may have the keyboard; a dialog's widgets belong to another window.
    const auto *widget = qobject_cast<const QWidget *>(watched);
    if (widget == nullptr || widget->window() != panel->window() || !panel->isVisible())
        return false;
    // A page of the terminal may lie over the panel, and has keys of its own.
    const QWidget *window = panel->window();
    const QWidget *seen = window->childAt(panel->mapTo(window, panel->rect().center()));
    return seen == nullptr ? window == panel : seen == panel || panel->isAncestorOf(seen);
}

bool DriveKeys::press(const QKeyEvent &event)
{
    if (!event.isAutoRepeat() && pressOnce(event.key()))
        return true;
    const bool isArrow = event.key() >= Qt::Key_Left && event.key() <= Qt::Key_Down;
    if (isArrow && !controls->isByHand())
        return false;
    if (!hold(event.key(), true, event.isAutoRepeat()))
        return event.isAutoRepeat();
    held.insert(event.key());
    return true;
}

bool DriveKeys::release(const QKeyEvent &event)
{
    // Even when something has come over the panel meanwhile: nobody else would release it.
    if (event.isAutoRepeat() || !held.contains(event.key()))
        return held.contains(event.key());
    held.remove(event.key());
    return hold(event.key(), false, false);
}

bool DriveKeys::hold(int key, bool isPressed, bool isRepeated)
{
    constexpr double turnOfAPress = 0.2;
    if (key == Qt::Key_Left || key == Qt::Key_Right) {
        // A held key repeats, and turns the wheel further each time.
        const double turn = key == Qt::Key_Left ? -turnOfAPress : turnOfAPress;
        panel->wheel()->setTurn(isPressed ? panel->wheel()->turn() + turn : 0.0);
        return true;
    }
    if (key == Qt::Key_Up && !isRepeated)
        controls->pressThrottle(isPressed);
    else if (key == Qt::Key_Down && !isRepeated)
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
    case Qt::Key_R:
        record->setOn(!record->isOn());
        return true;
    case Qt::Key_T:
        Q_EMIT panel->replayWanted();
        return true;
    default:
        return false;
    }
}
