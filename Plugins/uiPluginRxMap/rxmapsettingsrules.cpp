#include "rxmapsettingsrules.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace RxMapSettingsRules {

bool hasMaster(const Settings &settings)
{
    return std::any_of(settings.cbegin(), settings.cend(),
                       [](const OrvikTypes::RX_SETTINGS &entry) { return entry.isMaster; });
}

Settings withoutMaster(Settings settings)
{
    for (OrvikTypes::RX_SETTINGS &entry : settings)
        entry.isMaster = false;
    return settings;
}

Settings withMaster(Settings settings, int master)
{
    settings = withoutMaster(settings);
    if (master < 0 || master >= settings.size())
        return settings;
    settings[master].isMaster = true;
    const bool shutoff = settings.at(master).zeroRateShutoff;
    // By design: choosing a master copies its shut-off to every product; switching it later changes only the followers.
    for (OrvikTypes::RX_SETTINGS &entry : settings)
        entry.zeroRateShutoff = shutoff;
    return settings;
}

Settings withShutoff(Settings settings, int product, bool shutoff, bool appliesToAll)
{
    for (int i = 0; i < settings.size(); ++i) {
        // By design: under a master even the product shown changes only if it follows.
        if (appliesToAll ? settings.at(i).followsMaster : i == product)
            settings[i].zeroRateShutoff = shutoff;
    }
    return settings;
}

int lookAheadMs(const QString &seconds)
{
    const double value = std::trunc(seconds.toDouble() * 1000.0);
    if (std::isnan(value))
        return 0;
    return static_cast<int>(qBound<double>(std::numeric_limits<int>::min(), value, std::numeric_limits<int>::max()));
}

// By design: mappings carry no group, so a group that has grown takes entries of the next one.
Mappings shareOf(const Mappings &working, int first, Mappings held)
{
    for (int k = 0; k < held.size() && first + k < working.size(); ++k)
        held[k] = working.at(first + k);
    return held;
}

bool needsReInit(const Settings &old, const Settings &settings)
{
    // The group's list may have grown since the dialog read it.
    for (int i = 0; i < qMin(old.size(), settings.size()); ++i) {
        if (old.at(i).isMaster != settings.at(i).isMaster
            || old.at(i).zeroRateShutoff != settings.at(i).zeroRateShutoff)
            return true;
    }
    return false;
}

} // namespace RxMapSettingsRules
