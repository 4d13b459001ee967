#include "actuator.h"

#include <algorithm>
#include <cmath>

void Actuator::setLimits(double minRate, double maxRate)
{
    settings.minRate = minRate;
    settings.maxRate = maxRate;
}

double Actuator::target(const RateCommand &command) const
{
    return command.isOn ? std::clamp(command.commanded, settings.minRate, settings.maxRate) : 0.0;
}

double Actuator::settle(double towards, double seconds)
{
    if (settings.timeConstant <= 0.0) {
        rate = towards;
        return towards * seconds;
    }
    const double gap = rate - towards;
    const double decay = -std::expm1(-seconds / settings.timeConstant);
    rate -= gap * decay;
    return towards * seconds + gap * settings.timeConstant * decay;
}

double Actuator::step(const RateCommand &command, double seconds)
{
    // Rounding must not take a whole number of steps for one less.
    const double delay = std::floor(settings.deadTime / seconds + 1e-9);
    const double within = std::max(0.0, settings.deadTime - delay * seconds);
    const auto whole = static_cast<size_t>(delay);
    targets.push_front(target(command));
    if (targets.size() > whole + 2)
        targets.pop_back();
    const auto ago = [this](size_t steps) { return steps < targets.size() ? targets[steps] : 0.0; };
    const double former = settle(ago(whole + 1), within);
    return (former + settle(ago(whole), seconds - within)) / seconds;
}
