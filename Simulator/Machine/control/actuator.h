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

    /// What it can do from the next step on.
    void setLimits(double minRate, double maxRate);
    /// The rate that the command stands for in the end, base units.
    double target(const RateCommand &command) const;
    /// Lets `seconds` (above 0, at every call the same) pass under that command; the mean rate meanwhile.
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
