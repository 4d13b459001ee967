#pragma once

#include "Framework/groupproperty.h"
#include "Framework/rxdbfcolumntoratecalmapping.h"
#include "Framework/rxpolygon.h"

/// A prescription group of another back-end, which gives some values as text.
class ForeignMapGroup : public DataBrokerGroup {
    Q_OBJECT
    ORVIK_GROUP_PROPERTY(QList<OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING>, rateCalMappings, RateCalMappings)
    ORVIK_GROUP_PROPERTY(QList<QList<OrvikTypes::RX_RATECOLOR>>, rateColors, RateColors)
    ORVIK_GROUP_PROPERTY(void *, polygonBuffer, PolygonBuffer)
    ORVIK_GROUP_PROPERTY(QString, polygonCount, PolygonCount)
    ORVIK_GROUP_PROPERTY(QString, queryRatesAtXYZ, QueryRatesAtXYZ)
    ORVIK_GROUP_PROPERTY(QString, ratesAtXYZ, RatesAtXYZ)
    ORVIK_GROUP_PROPERTY(QString, ratesAtXYZValid, RatesAtXYZValid)

public:
    using DataBrokerGroup::DataBrokerGroup;

private:
    struct Values {
        QList<OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING> rateCalMappings;
        QList<QList<OrvikTypes::RX_RATECOLOR>> rateColors;
        void *polygonBuffer = nullptr;
        QString polygonCount;
        QString queryRatesAtXYZ;
        QString ratesAtXYZ;
        QString ratesAtXYZValid;
    };
    QScopedPointer<Values> d{new Values};
};

/// A prescription group of a back-end that gives its rates as they are and their validity as text.
class TextValidityMapGroup : public DataBrokerGroup {
    Q_OBJECT
    ORVIK_GROUP_PROPERTY(QList<OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING>, rateCalMappings, RateCalMappings)
    ORVIK_GROUP_PROPERTY(QString, queryRatesAtXYZ, QueryRatesAtXYZ)
    ORVIK_GROUP_PROPERTY(QList<float>, ratesAtXYZ, RatesAtXYZ)
    ORVIK_GROUP_PROPERTY(QString, ratesAtXYZValid, RatesAtXYZValid)

public:
    using DataBrokerGroup::DataBrokerGroup;

private:
    struct Values {
        QList<OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING> rateCalMappings;
        QString queryRatesAtXYZ;
        QList<float> ratesAtXYZ;
        QString ratesAtXYZValid;
    };
    QScopedPointer<Values> d{new Values};
};
