#pragma once

#include "motion.h"

/// Moves as the wheel is turned.
class HandMotion : public Motion {
public:
    /// Per metre, positive to the right.
    void steer(double newCurvature) { curvature = newCurvature; }

    Mode mode() const override { return Mode::Hand; }
    void advance(MotionState &state, double seconds, double wanted, const SpeedRamp &ramp) override;

private:
    double curvature = 0.0;
};
