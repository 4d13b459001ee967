#pragma once

/// How a product's metering follows its command.
struct ActuatorSettings {
    /// Seconds until a new command begins to act.
    double deadTime = 0.0;
    /// Seconds after which 37 % of the change is still to come (time constant of a first-order lag).
    double timeConstant = 0.0;
    /// What it can meter while it is on, base units.
    double minRate = 0.0;
    double maxRate = 0.0;
};
