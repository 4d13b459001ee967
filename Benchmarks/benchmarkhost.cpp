#include "benchmarkhost.h"

#include "rxmap3d.h"
#include "rxmap3dprobe.h"

#include "Framework/dbgroupaam.h"
#include "bePluginRxMap/dbgrouprxmap.h"

QList<OrvikTypes::RX_RATECOLOR> benchmarkLegend()
{
    QList<OrvikTypes::RX_RATECOLOR> legend;
    for (int i = 0; i < 7; ++i)
        legend.append({i * 30.0, QColor(30 * i, 255 - 30 * i, 128)});
    return legend;
}

BenchmarkHost::BenchmarkHost(BenchmarkMap &map)
    : rxMapGroup(new DbGroupRxMap(QStringLiteral("rxMap.benchmark")))
    , rxMap3D(new RxMap3D(&broker, nullptr))
{
    OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING mapping;
    mapping.rateCalName = QStringLiteral("product.1");
    rxMapGroup->setRateCalMappings({mapping});
    rxMapGroup->setRateColors({benchmarkLegend()});
    rxMapGroup->setPolygonBuffer(map.chain());
    rxMapGroup->setPolygonCount(map.count());
    broker.publishGroup(rxMapGroup);
    auto *aam = new DbGroupAAM(QStringLiteral("aam"));
    aam->setProductGroupName(mapping.rateCalName);
    broker.publishGroup(aam);
    rxMap3D->setAamGroup(aam);
    rxMap3D->setDbGroup(rxMapGroup);
}

int BenchmarkHost::bankVertices() const
{
    return RxMap3DProbe::banks(*rxMap3D).at(0).vertices.size();
}

BenchmarkHost::~BenchmarkHost()
{
    delete rxMap3D;
}
