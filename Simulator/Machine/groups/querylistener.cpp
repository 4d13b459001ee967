#include "querylistener.h"

#include "activemap.h"

#include "Framework/databroker.h"
#include "bePluginRxMap/dbgrouprxmap.h"

QueryListener::QueryListener(const DataBroker &broker, const ActiveMap &map, QObject *parent)
    : QObject(parent)
{
    auto *group = qobject_cast<DbGroupRxMap *>(broker.getGroup(map.groupName, false));
    if (group == nullptr)
        return;
    // The validity is written last, when the rates stand.
    connect(
        group, &DbGroupRxMap::ratesAtXYZValidChanged, this,
        [this, group, mapping = map.mapping](bool isValid) {
            const QList<float> rates = isValid ? group->getRatesAtXYZ() : QList<float>();
            latestRate = static_cast<double>(rates.value(mapping, std::numeric_limits<float>::quiet_NaN()));
        },
        Qt::DirectConnection);
}
