#include "foreignmapgroup.h"

ORVIK_GROUP_PROPERTY_ACCESSORS(ForeignMapGroup, QList<OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING>, rateCalMappings,
                               RateCalMappings, d->rateCalMappings)
ORVIK_GROUP_PROPERTY_ACCESSORS(ForeignMapGroup, QList<QList<OrvikTypes::RX_RATECOLOR>>, rateColors, RateColors,
                               d->rateColors)
ORVIK_GROUP_PROPERTY_ACCESSORS(ForeignMapGroup, void *, polygonBuffer, PolygonBuffer, d->polygonBuffer)
ORVIK_GROUP_PROPERTY_ACCESSORS(ForeignMapGroup, QString, polygonCount, PolygonCount, d->polygonCount)
ORVIK_GROUP_PROPERTY_ACCESSORS(ForeignMapGroup, QString, queryRatesAtXYZ, QueryRatesAtXYZ, d->queryRatesAtXYZ)
ORVIK_GROUP_PROPERTY_ACCESSORS(ForeignMapGroup, QString, ratesAtXYZ, RatesAtXYZ, d->ratesAtXYZ)
ORVIK_GROUP_PROPERTY_ACCESSORS(ForeignMapGroup, QString, ratesAtXYZValid, RatesAtXYZValid, d->ratesAtXYZValid)

ORVIK_GROUP_PROPERTY_ACCESSORS(TextValidityMapGroup, QList<OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING>,
                               rateCalMappings, RateCalMappings, d->rateCalMappings)
ORVIK_GROUP_PROPERTY_ACCESSORS(TextValidityMapGroup, QString, queryRatesAtXYZ, QueryRatesAtXYZ, d->queryRatesAtXYZ)
ORVIK_GROUP_PROPERTY_ACCESSORS(TextValidityMapGroup, QList<float>, ratesAtXYZ, RatesAtXYZ, d->ratesAtXYZ)
ORVIK_GROUP_PROPERTY_ACCESSORS(TextValidityMapGroup, QString, ratesAtXYZValid, RatesAtXYZValid, d->ratesAtXYZValid)
