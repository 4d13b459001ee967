#pragma once

#include "motion.h"
#include "trackreader.h"

#include <memory>

/// Moves as a recorded track did, straight on between its entries; it stands still while no speed is wanted.
class TrackMotion : public Motion {
public:
    /// `antennaOffset`: metres by which the antenna, whose track it is, stands before the implement.
    TrackMotion(std::unique_ptr<TrackReader> track, double antennaOffset);

    Mode mode() const override { return Mode::Replay; }
    void advance(MotionState &state, double seconds, double wanted, const SpeedRamp &ramp) override;

private:
    void place(MotionState &state) const;

    std::unique_ptr<TrackReader> track;
    double antennaOffset;
    TrackPoint from;
    TrackPoint to;
    /// False: `from` is the last entry.
    bool goesOn = false;
    double time = 0.0;
};
