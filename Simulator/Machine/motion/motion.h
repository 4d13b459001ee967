#pragma once

#include "pose.h"

#include <QString>

class SpeedRamp;

/// How the vehicle stands at a moment.
struct MotionState {
    /// The implement's middle.
    Pose pose;
    /// Metres per second; below 0 backwards.
    double speed = 0.0;
    /// The implement is down and moves.
    bool isWorking = false;
    /// The receiver has a position.
    bool hasFix = true;
    /// The way is at its end.
    bool isOver = false;
};

/// A way to move.
class Motion {
public:
    enum class Mode { Shuttle, Swaths, Hand, Replay };

    virtual ~Motion() = default;
    /// As scripts name it.
    static QString modeName(Mode mode);
    virtual Mode mode() const = 0;
    /// Takes a newly wanted speed (metres per second) at once, where this way of moving has no ramp.
    virtual void want(MotionState &, double) { }
    /// Moves on by `seconds` at the wanted speed or towards it.
    virtual void advance(MotionState &state, double seconds, double wanted, const SpeedRamp &ramp) = 0;
};
