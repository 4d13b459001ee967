#include "trackmotion.h"

#include <cmath>

TrackMotion::TrackMotion(std::unique_ptr<TrackReader> read, double givenAntennaOffset)
    : track(std::move(read))
    , antennaOffset(givenAntennaOffset)
{
    if (track->next(from))
        goesOn = track->next(to);
    time = from.time;
}

void TrackMotion::advance(MotionState &state, double seconds, double wanted, const SpeedRamp &)
{
    if (wanted <= 0.0) {
        state.speed = 0.0;
        state.isWorking = false;
        return;
    }
    time += seconds;
    // Tenths of seconds add up to less than an entry's time.
    constexpr double rounding = 1e-6;
    while (goesOn && to.time <= time + rounding) {
        from = to;
        goesOn = track->next(to);
    }
    place(state);
}

void TrackMotion::place(MotionState &state) const
{
    state.isOver = !goesOn;
    state.hasFix = from.hasFix;
    state.speed = state.isOver ? 0.0 : from.speed.value_or(state.speed);
    const double ahead = from.working ? 0.0 : antennaOffset;
    QPointF antenna = state.pose.place + ahead * state.pose.forward();
    if (from.hasFix)
        antenna = from.place;
    if (from.heading)
        state.pose.heading = *from.heading;
    if (goesOn && from.hasFix && to.hasFix && to.time > from.time) {
        constexpr double noMove = 0.02; // Metres; a shorter move does not tell which way the machine faces.
        const QPointF way = to.place - from.place;
        const double length = std::hypot(way.x(), way.y());
        antenna += (time - from.time) / (to.time - from.time) * way;
        if (!from.heading && length > noMove)
            state.pose.heading = headingOf(way);
        if (!from.speed)
            state.speed = length / (to.time - from.time);
    }
    state.pose.place = antenna - ahead * state.pose.forward();
    state.isWorking = state.speed > 0.0 && from.working.value_or(true);
}
