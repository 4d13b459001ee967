#pragma once

#include "motion.h"

#include <QRectF>

/// North and south over the middle of an area, turning about at its border; speeds are reached at once.
class ShuttleMotion : public Motion {
public:
    explicit ShuttleMotion(const QRectF &givenArea)
        : area(givenArea)
    {
    }
    /// The middle of the area's south border, looking north.
    Pose start() const { return {{area.center().x(), area.top()}, 0.0}; }

    Mode mode() const override { return Mode::Shuttle; }
    void want(MotionState &state, double speed) override;
    void advance(MotionState &state, double seconds, double wanted, const SpeedRamp &ramp) override;

private:
    QRectF area;
    bool isNorthbound = true;
};
