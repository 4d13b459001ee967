#include "speedramp.h"

#include <algorithm>
#include <cmath>

double SpeedRamp::advance(double &speed, double wanted, double seconds) const
{
    const double before = speed;
    const double rampTime = std::min(seconds, std::fabs(wanted - before) / limit);
    const double change = std::copysign(limit * rampTime, wanted - before);
    speed = rampTime < seconds ? wanted : before + change;
    return (before + 0.5 * change) * rampTime + speed * (seconds - rampTime);
}

double SpeedRamp::speedToStopWithin(double distance, double speed, double seconds) const
{
    // The distance is what the step drives, at the mean of both speeds, plus what braking takes after it.
    const double left = distance - 0.5 * speed * seconds;
    if (left <= 0.0)
        return 0.0;
    return limit * (std::sqrt(0.25 * seconds * seconds + 2.0 * left / limit) - 0.5 * seconds);
}
