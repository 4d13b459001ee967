#include "activemap.h"

#include "Framework/databroker.h"
#include "Framework/rxdbfcolumntoratecalmapping.h"

#include <algorithm>
#include <cmath>

namespace {

template <typename T> T read(const DataBroker &broker, const QString &group, const char *property)
{
    QVariant value;
    broker.getProperty(group.toLatin1().constData(), property, value);
    return value.value<T>();
}

} // namespace

QList<OrvikTypes::RX_RATECOLOR> ActiveMap::drawnClasses(QList<OrvikTypes::RX_RATECOLOR> legend)
{
    const auto isUnseen = [](const OrvikTypes::RX_RATECOLOR &entry) { return entry.color.alpha() == 0; };
    legend.erase(std::remove_if(legend.begin(), legend.end(), isUnseen), legend.end());
    return legend;
}

int ActiveMap::classOf(double rate) const
{
    if (std::isnan(rate))
        return -1;
    const auto holds = [rate](const OrvikTypes::RX_RATECOLOR &entry) { return entry.rate >= rate; };
    const auto found = std::find_if(legend.begin(), legend.end(), holds);
    return std::min(int(found - legend.begin()), legend.size() - 1);
}

QColor ActiveMap::classColor(double rate) const
{
    const int place = classOf(rate);
    return place >= 0 ? legend.at(place).color : QColor();
}

QColor ActiveMap::appliedColor(double rate, bool hasSingleRates) const
{
    constexpr double exactness = 0.01;
    constexpr double farOff = 0.5;
    const bool isBeyond = !legend.isEmpty()
        && (rate > (1.0 + farOff) * legend.last().rate
            || (hasSingleRates && rate < (1.0 - farOff) * legend.first().rate));
    if (isBeyond)
        return unplannedColor();
    if (!hasSingleRates)
        return classColor((1.0 - exactness) * rate);
    const auto isNearer = [rate](const OrvikTypes::RX_RATECOLOR &a, const OrvikTypes::RX_RATECOLOR &b) {
        return std::fabs(a.rate - rate) < std::fabs(b.rate - rate);
    };
    const auto nearest = std::min_element(legend.begin(), legend.end(), isNearer);
    return nearest != legend.end() && !std::isnan(rate) ? nearest->color : QColor();
}

ActiveMap ActiveMap::find(const DataBroker &broker, const QString &rateCalName)
{
    const QStringList groups = broker.findGroup(QStringLiteral("rxMap.*"), true, false);
    for (const QString &group : groups) {
        const auto mappings =
            read<QList<OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING>>(broker, group, "rateCalMappings");
        for (int i = 0; i < mappings.size(); ++i) {
            if (mappings.at(i).rateCalName != rateCalName)
                continue;
            const auto legends = read<QList<QList<OrvikTypes::RX_RATECOLOR>>>(broker, group, "rateColors");
            return {group, mappings.at(i).dbfColumnName, i, drawnClasses(legends.value(i))};
        }
    }
    return {};
}
