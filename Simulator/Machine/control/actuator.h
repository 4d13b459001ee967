#pragma once

#include "actuatorsettings.h"
#include "ratecommand.h"

#include <deque>

/// Follows a product's command by a dead time and a first-order lag, solved exactly from step to step while the command
/// is constant within each.
class Actuator {
public:
    explicit Actuator(const ActuatorSettings &givenSettings)
        : settings(givenSettings)
    {
    }

    /// Limits that hold from the next step on, base units.
    void setLimits(double minRate, double maxRate);
    /// The rate that the command stands for in the end, base units.
    double target(const RateCommand &command) const;
    /// Lets `seconds` (above 0, the same at every call) pass under `command`; returns the mean rate meanwhile.
    double step(const RateCommand &command, double seconds);
    /// The rate now, base units.
    double applied() const { return rate; }

private:
    /// The rate's integral over `seconds` on its way to `towards`.
    double settle(double towards, double seconds);

    ActuatorSettings settings;
    /// Targets of this step and those before it, newest first, as far back as the dead time reaches.
    std::deque<double> targets;
    double rate = 0.0;
};
