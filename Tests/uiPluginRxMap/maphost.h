#pragma once

#include "handmadechain.h"

#include "Framework/databroker.h"
#include "Framework/rxdbfcolumntoratecalmapping.h"

#include <QList>
#include <QString>

class DbGroupAAM;
class DbGroupJob;
class DbGroupProductGroupInfo;
class DbGroupQmlUnitsConverter;
class DbGroupRxMap;

OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING mappingFor(const QString &rateCalName);

/// The host as the map sees it: a broker with a job, application maps for the products "system.productGroup.1" and
/// "system.productGroup.2", units, and whatever prescription groups a test needs.
class MapHost {
public:
    /// `iniFile`: the terminal's settings; empty: none.
    explicit MapHost(const QString &iniFile = QString());

    static QString productGroup(int number);
    static QString aamName(int number);
    DbGroupAAM *aam(int number) const;
    void activateProduct(int number);
    /// Publishes an empty prescription group "rxMap.<name>" that maps the given products in order.
    DbGroupRxMap *addMap(const QString &name, const QList<int> &products);
    /// Publishes the chain, with one and the same legend for every mapping.
    static void publish(DbGroupRxMap &group, HandMadeChain &chain, const QList<OrvikTypes::RX_RATECOLOR> &legend);

    DataBroker broker;
    DbGroupJob *job;
    DbGroupQmlUnitsConverter *units;
};
