#include "shuttlemotion.h"

#include <algorithm>

void ShuttleMotion::want(MotionState &state, double speed)
{
    state.speed = speed;
    state.isWorking = speed > 0.0;
}

void ShuttleMotion::advance(MotionState &state, double seconds, double, const SpeedRamp &)
{
    QPointF &place = state.pose.place;
    place.ry() += (isNorthbound ? 1.0 : -1.0) * state.speed * seconds;
    if (!area.isEmpty()) {
        if (place.y() > area.bottom())
            isNorthbound = false;
        else if (place.y() < area.top())
            isNorthbound = true;
        place.setY(std::clamp(place.y(), area.top(), area.bottom()));
    }
    state.pose.heading = isNorthbound ? 0.0 : radiansOf(180.0);
}
