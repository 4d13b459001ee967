#include "bePluginRxMap/dbgrouprxmap.h"

class DbGroupRxMapPrivate {
public:
    QList<OrvikTypes::RX_SETTINGS> settings;
    QList<OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING> rateCalMappings;
    QList<QList<OrvikTypes::RX_RATECOLOR>> rateColors;
    void *polygonBuffer = nullptr;
    unsigned int polygonCount = 0;
    OrvikTypes::XYZ queryRatesAtXYZ;
    QList<float> ratesAtXYZ;
    bool ratesAtXYZValid = false;
};

namespace {

/// Access by name finds a property's type by the type's name, which is known once its id has been asked for.
void makeTypesKnown()
{
    qMetaTypeId<QList<OrvikTypes::RX_SETTINGS>>();
    qMetaTypeId<QList<OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING>>();
    qMetaTypeId<QList<QList<OrvikTypes::RX_RATECOLOR>>>();
    qMetaTypeId<OrvikTypes::XYZ>();
    qRegisterMetaType<QList<float>>();
}

} // namespace

DbGroupRxMap::DbGroupRxMap(const QString &name, QObject *parent)
    : DataBrokerGroup(name, parent)
    , d(new DbGroupRxMapPrivate)
{
    makeTypesKnown();
}

DbGroupRxMap::~DbGroupRxMap() = default;

ORVIK_GROUP_PROPERTY_ACCESSORS(DbGroupRxMap, QList<OrvikTypes::RX_SETTINGS>, settings, Settings, d->settings)
ORVIK_GROUP_PROPERTY_ACCESSORS(DbGroupRxMap, QList<OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING>, rateCalMappings,
                               RateCalMappings, d->rateCalMappings)
ORVIK_GROUP_PROPERTY_ACCESSORS(DbGroupRxMap, QList<QList<OrvikTypes::RX_RATECOLOR>>, rateColors, RateColors,
                               d->rateColors)
ORVIK_GROUP_PROPERTY_ACCESSORS(DbGroupRxMap, void *, polygonBuffer, PolygonBuffer, d->polygonBuffer)
ORVIK_GROUP_PROPERTY_ACCESSORS(DbGroupRxMap, unsigned int, polygonCount, PolygonCount, d->polygonCount)
ORVIK_GROUP_PROPERTY_ACCESSORS(DbGroupRxMap, OrvikTypes::XYZ, queryRatesAtXYZ, QueryRatesAtXYZ, d->queryRatesAtXYZ)
ORVIK_GROUP_PROPERTY_ACCESSORS(DbGroupRxMap, QList<float>, ratesAtXYZ, RatesAtXYZ, d->ratesAtXYZ)
ORVIK_GROUP_PROPERTY_ACCESSORS(DbGroupRxMap, bool, ratesAtXYZValid, RatesAtXYZValid, d->ratesAtXYZValid)
