#include "pathmotion.h"

#include "speedramp.h"

#include <algorithm>

void PathMotion::advance(MotionState &state, double seconds, double wanted, const SpeedRamp &ramp)
{
    constexpr double arrived = 1e-6; // Metres.
    const double left = path.length() - driven;
    const double most = ramp.speedToStopWithin(left, state.speed, seconds);
    driven += std::min(left, ramp.advance(state.speed, std::clamp(wanted, 0.0, most), seconds));
    if (path.length() - driven <= arrived) {
        state.speed = 0.0;
        state.isOver = true;
    }
    const DrivePath::Point point = path.at(driven);
    state.pose = point.pose;
    state.isWorking = point.isWorked && state.speed > 0.0;
}
