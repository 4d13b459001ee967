#pragma once

/// How a product's metering follows its command.
struct ActuatorSettings {
    /// Seconds until a new command begins to act.
    double deadTime = 0.0;
    /// Seconds in which it then comes within 37 % of it.
    double timeConstant = 0.0;
    /// What it can do while it is on, base units.
    double minRate = 0.0;
    double maxRate = 0.0;
};
