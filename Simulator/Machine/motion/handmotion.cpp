#include "handmotion.h"

#include "speedramp.h"

void HandMotion::advance(MotionState &state, double seconds, double wanted, const SpeedRamp &ramp)
{
    state.pose = state.pose.advanced(ramp.advance(state.speed, wanted, seconds), curvature);
    state.isWorking = state.speed != 0.0;
}
