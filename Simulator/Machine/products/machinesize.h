#pragma once

/// What the machine's build sets for its driving.
struct MachineSize {
    /// Metres worked in one pass.
    double width = 12.0;
    /// Metres by which the antenna stands before (positive) or behind the implement.
    double antennaOffset = 0.0;
    /// Metres; the machine turns no tighter.
    double minRadius = 6.0;
    /// Metres per second squared, speeding up and braking.
    double acceleration = 1.0;
};
