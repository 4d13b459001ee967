#pragma once

#include "Framework/groupproperty.h"
#include "Framework/rxdbfcolumntoratecalmapping.h"
#include "Framework/rxpolygon.h"
#include "Framework/rxsettings.h"
#include "Framework/xyz.h"
#include "bePluginRxMap/bepluginrxmapglobal.h"

class DbGroupRxMapPrivate;

/// One loaded prescription map, published as "rxMap.<name>".
///
/// The polygon chain is the back-end's memory. It stays valid while "polygonCount" is greater than 0: a back-end sets
/// the count to 0 before it changes or frees what "polygonBuffer" points to, and sets the new count last, when all else
/// is in place.
class BEPLUGINRXMAP_EXPORT DbGroupRxMap : public DataBrokerGroup {
    Q_OBJECT
    /// One entry per product, in product order.
    ORVIK_GROUP_PROPERTY(QList<OrvikTypes::RX_SETTINGS>, settings, Settings)
    /// One entry per prescription-file column that drives a product; its order is that of all rates.
    ORVIK_GROUP_PROPERTY(QList<OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING>, rateCalMappings, RateCalMappings)
    /// One colour legend per mapping; a legend's classes ascend by rate.
    ORVIK_GROUP_PROPERTY(QList<QList<OrvikTypes::RX_RATECOLOR>>, rateColors, RateColors)
    /// The first OrvikTypes::RX_POLYGON of the chain; null when there is none.
    ORVIK_GROUP_PROPERTY(void *, polygonBuffer, PolygonBuffer)
    /// Records in the chain. Setting it asks the subscribers to read the map again.
    ORVIK_GROUP_PROPERTY(unsigned int, polygonCount, PolygonCount)
    /// A point of the local plane; writing it answers in the next two properties before the write returns.
    ORVIK_GROUP_PROPERTY(OrvikTypes::XYZ, queryRatesAtXYZ, QueryRatesAtXYZ)
    /// Rates at the queried point, base units, one per mapping.
    ORVIK_GROUP_PROPERTY(QList<float>, ratesAtXYZ, RatesAtXYZ)
    ORVIK_GROUP_PROPERTY(bool, ratesAtXYZValid, RatesAtXYZValid)

public:
    explicit DbGroupRxMap(const QString &name, QObject *parent = nullptr);
    ~DbGroupRxMap() override;

private:
    QScopedPointer<DbGroupRxMapPrivate> d;
};
