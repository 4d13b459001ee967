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

QColor ActiveMap::classColor(double rate) const
{
    if (std::isnan(rate))
        return {};
    for (const OrvikTypes::RX_RATECOLOR &entry : legend) {
        if (entry.rate >= rate)
            return entry.color;
    }
    return legend.isEmpty() ? QColor() : legend.last().color;
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
