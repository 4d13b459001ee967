#include "holdtimer.h"

HoldTimer::HoldTimer()
{
    timer.setSingleShot(true);
    connect(&timer, &QTimer::timeout, this, &HoldTimer::timeout);
}

void HoldTimer::start(int milliseconds)
{
    timer.start(milliseconds);
}

void HoldTimer::stop()
{
    timer.stop();
}
