#include "touchpress.h"

TouchPress::TouchPress(HoldTimer *timer)
    : holdTimer(timer)
{
    connect(timer, &HoldTimer::timeout, this, &TouchPress::heldLongEnough);
}

void TouchPress::press(Hold hold)
{
    holdAction = hold;
    isDown = true;
    isInside = true;
    hasRepeated = false;
    startHold();
    Q_EMIT lookChanged();
    Q_EMIT pressed();
}

void TouchPress::move(bool inside)
{
    if (!isDown || inside == isInside)
        return;
    isInside = inside;
    if (inside)
        startHold();
    else
        holdTimer->stop();
    Q_EMIT lookChanged();
}

void TouchPress::release(bool inside)
{
    const bool counts = isDown && inside && !hasRepeated;
    end();
    if (counts)
        Q_EMIT released();
}

void TouchPress::cancel()
{
    end();
}

bool TouchPress::looksPressed() const
{
    return isDown && isInside;
}

void TouchPress::startHold()
{
    if (holdAction != Hold::Nothing)
        holdTimer->start(holdAction == Hold::Repeat ? repeatDelayMs : longTouchMs);
}

void TouchPress::heldLongEnough()
{
    if (holdAction == Hold::Repeat) {
        hasRepeated = true;
        holdTimer->start(repeatIntervalMs);
        Q_EMIT released();
        return;
    }
    end();
    Q_EMIT longTouched();
}

void TouchPress::end()
{
    holdTimer->stop();
    if (!isDown)
        return;
    isDown = false;
    Q_EMIT lookChanged();
}
