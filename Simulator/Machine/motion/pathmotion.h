#pragma once

#include "drivepath.h"
#include "motion.h"

/// Moves along a path and stops at its end.
class PathMotion : public Motion {
public:
    explicit PathMotion(DrivePath givenPath)
        : path(std::move(givenPath))
    {
    }

    Mode mode() const override { return Mode::Swaths; }
    void advance(MotionState &state, double seconds, double wanted, const SpeedRamp &ramp) override;

private:
    DrivePath path;
    double driven = 0.0;
};
