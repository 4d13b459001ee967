#include "maphost.h"

#include "Framework/dbgroupaam.h"
#include "Framework/dbgroupjob.h"
#include "Framework/dbgroupproductgroupinfo.h"
#include "Framework/dbgroupqmlunitsconverter.h"
#include "bePluginRxMap/dbgrouprxmap.h"

#include <cmath>
#include <utility>

using OrvikTypes::RX_POLYGON;

Ring square(double left, double bottom, double size)
{
    return {{left, bottom}, {left + size, bottom}, {left + size, bottom + size}, {left, bottom + size}};
}

double signedArea(const Ring &ring)
{
    double doubled = 0.0;
    for (std::size_t i = 0, j = ring.size() - 1; i < ring.size(); j = i++)
        doubled += ring[j].x * ring[i].y - ring[i].x * ring[j].y;
    return doubled / 2.0;
}

RX_POLYGON &PolygonChain::addOuter(const Ring &ring, std::vector<float> rates)
{
    return add(ring, std::move(rates), false);
}

RX_POLYGON &PolygonChain::addHole(const Ring &ring)
{
    return add(ring, {0.0F}, true);
}

RX_POLYGON *PolygonChain::first()
{
    return polygons.empty() ? nullptr : &polygons.front();
}

RX_POLYGON &PolygonChain::add(const Ring &ring, std::vector<float> rates, bool isHole)
{
    rings.push_back(ring);
    rateLists.push_back(std::move(rates));
    polygons.push_back({ring.empty() ? 0.0 : std::fabs(signedArea(ring)), 0, rings.back().data(),
                        static_cast<quint32>(ring.size()), rateLists.back().data(), isHole, nullptr});
    if (polygons.size() > 1)
        polygons[polygons.size() - 2].next = &polygons.back();
    return polygons.back();
}

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

void MapHost::publish(DbGroupRxMap &group, PolygonChain &chain, const QList<OrvikTypes::RX_RATECOLOR> &legend)
{
    QList<QList<OrvikTypes::RX_RATECOLOR>> legends;
    for (int i = 0; i < group.getRateCalMappings().size(); ++i)
        legends.append(legend);
    group.setRateColors(legends);
    group.setPolygonBuffer(chain.first());
    group.setPolygonCount(chain.count());
}
