#pragma once

#include "Framework/databroker.h"
#include "Framework/databrokergroup.h"
#include "Framework/rxdbfcolumntoratecalmapping.h"
#include "Framework/rxpolygon.h"
#include "Framework/rxsettings.h"

using Mappings = QList<OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING>;
using Settings = QList<OrvikTypes::RX_SETTINGS>;
using Legends = QList<QList<OrvikTypes::RX_RATECOLOR>>;

/// The group's property, or `T()` if the group is gone or the property has another type.
template <typename T> T valueOf(const DataBrokerGroup *group, const char *property)
{
    QVariant value;
    if (group != nullptr)
        group->getProperty(property, value);
    return value.value<T>();
}

template <typename Group> Group *findGroup(const DataBroker &broker, const QString &name)
{
    return qobject_cast<Group *>(broker.getGroup(name, false));
}

/// Place of the first mapping of that name; -1 when there is none.
inline int placeOf(const Mappings &mappings, const QString &rateCalName)
{
    for (int i = 0; i < mappings.size(); ++i) {
        if (mappings.at(i).rateCalName == rateCalName)
            return i;
    }
    return -1;
}
