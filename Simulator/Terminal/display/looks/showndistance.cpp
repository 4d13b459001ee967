#include "showndistance.h"

#include "shownnumber.h"

QString ShownDistance::text(double metres, UnitSystem system)
{
    constexpr double kilometre = 1000.0;
    constexpr double mile = 1609.344;
    return system == UnitSystem::Metric ? tr("%1 km").arg(ShownNumber::text(metres / kilometre))
                                        : tr("%1 mi").arg(ShownNumber::text(metres / mile));
}

QString ShownDistance::width(double metres, UnitSystem system)
{
    constexpr double foot = 0.3048;
    constexpr double small = 1.0;
    const bool isMetric = system == UnitSystem::Metric;
    const double shown = isMetric ? metres : metres / foot;
    return (isMetric ? tr("%1 m") : tr("%1 ft")).arg(ShownNumber::text(shown, shown < small ? 2 : 1));
}
