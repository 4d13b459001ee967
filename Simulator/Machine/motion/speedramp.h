#pragma once

/// Speeds up and brakes within a limit.
class SpeedRamp {
public:
    /// Metres per second squared, above 0.
    explicit SpeedRamp(double acceleration)
        : limit(acceleration)
    {
    }

    /// Takes `speed` towards `wanted` (metres per second) for that time; the metres driven meanwhile.
    double advance(double &speed, double wanted, double seconds) const;
    /// The greatest speed after the next `seconds` from which the machine can still stop within `distance` metres.
    double speedToStopWithin(double distance, double speed, double seconds) const;

private:
    double limit;
};
