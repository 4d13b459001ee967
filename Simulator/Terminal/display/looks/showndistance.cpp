#include "showndistance.h"

#include "shownnumber.h"

QString ShownDistance::text(double metres, UnitSystem system)
{
    constexpr double kilometre = 1000.0;
    constexpr double mile = 1609.344;
    return system == UnitSystem::Metric ? tr("%1 km").arg(ShownNumber::text(metres / kilometre))
                                        : tr("%1 mi").arg(ShownNumber::text(metres / mile));
}
