#include "shownunit.h"

#include "machine.h"
#include "shownnumber.h"

#include "Framework/databroker.h"
#include "Framework/dbgroupproductgroupinfo.h"

#include <algorithm>
#include <cmath>

ShownUnit ShownUnit::of(const Machine &machine, int number)
{
    DataBrokerGroup *group = machine.dataBroker()->getGroup(Machine::productGroupName(number), false);
    const Product &product = machine.products().at(number - 1);
    return {getRateConversion(qobject_cast<DbGroupProductGroupInfo *>(group)),
            rateUnit(product.rateKind(), machine.unitSystem())};
}

QString ShownUnit::rateText(double rate) const
{
    constexpr int mostDecimals = 4;
    constexpr double leastShown = 0.00005;
    const double value = rate * factor;
    if (std::fabs(value) < leastShown)
        return QStringLiteral("0");
    // A rate that rounds up to one digit more counts as having that digit.
    constexpr double roundedUp = 1.0005;
    const int digits = int(std::floor(std::log10(roundedUp * std::fabs(value)))) + 1;
    return ShownNumber::text(value, std::clamp(3 - digits, 0, mostDecimals));
}
