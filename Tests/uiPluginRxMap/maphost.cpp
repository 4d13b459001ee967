#include "maphost.h"

#include "Framework/dbgroupaam.h"
#include "Framework/dbgroupjob.h"
#include "Framework/dbgroupproductgroupinfo.h"
#include "Framework/dbgroupqmlunitsconverter.h"
#include "bePluginRxMap/dbgrouprxmap.h"

OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING mappingFor(const QString &rateCalName)
{
    OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING mapping;
    mapping.rateCalName = rateCalName;
    return mapping;
}

MapHost::MapHost(const QString &iniFile)
    : broker(iniFile)
    , job(new DbGroupJob(QStringLiteral("system.current.job")))
    , units(new DbGroupQmlUnitsConverter(QStringLiteral("QmlUnitsConverter")))
{
    broker.publishGroup(job);
    broker.publishGroup(units);
    units->setAreaUnitSystem(1);
    for (int number = 1; number <= 2; ++number) {
        auto *aamGroup = new DbGroupAAM(aamName(number));
        aamGroup->setProductGroupName(productGroup(number));
        broker.publishGroup(aamGroup);
        auto *info = new DbGroupProductGroupInfo(productGroup(number));
        info->setProductNumber(number);
        info->setRateKind(DbGroupProductGroupInfo::WeightRate);
        broker.publishGroup(info);
    }
}

QString MapHost::productGroup(int number)
{
    return QStringLiteral("system.productGroup.%1").arg(number);
}

QString MapHost::aamName(int number)
{
    return QStringLiteral("system.aam.%1").arg(number);
}

DbGroupAAM *MapHost::aam(int number) const
{
    return qobject_cast<DbGroupAAM *>(broker.getGroup(aamName(number), false));
}

void MapHost::activateProduct(int number)
{
    job->setActiveAAMGroupName(aamName(number));
}

DbGroupRxMap *MapHost::addMap(const QString &name, const QList<int> &products)
{
    auto *group = new DbGroupRxMap(QStringLiteral("rxMap.") + name);
    QList<OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING> mappings;
    for (int product : products)
        mappings.append(mappingFor(productGroup(product)));
    group->setRateCalMappings(mappings);
    broker.publishGroup(group);
    return group;
}

void MapHost::publish(DbGroupRxMap &group, HandMadeChain &chain, const QList<OrvikTypes::RX_RATECOLOR> &legend)
{
    QList<QList<OrvikTypes::RX_RATECOLOR>> legends;
    for (int i = 0; i < group.getRateCalMappings().size(); ++i)
        legends.append(legend);
    group.setRateColors(legends);
    group.setPolygonBuffer(chain.first());
    group.setPolygonCount(chain.count());
}
