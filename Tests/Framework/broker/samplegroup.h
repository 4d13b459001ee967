#pragma once

#include "Framework/groupproperty.h"
#include "Framework/rxdbfcolumntoratecalmapping.h"
#include "Framework/rxpolygon.h"
#include "Framework/rxsettings.h"
#include "Framework/xyz.h"

/// A group with a property of every kind of value that travels through the broker.
class SampleGroup : public DataBrokerGroup {
    Q_OBJECT
    ORVIK_GROUP_PROPERTY(QList<OrvikTypes::RX_SETTINGS>, settings, Settings)
    ORVIK_GROUP_PROPERTY(QList<OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING>, rateCalMappings, RateCalMappings)
    ORVIK_GROUP_PROPERTY(QList<QList<OrvikTypes::RX_RATECOLOR>>, rateColors, RateColors)
    ORVIK_GROUP_PROPERTY(QList<float>, rates, Rates)
    ORVIK_GROUP_PROPERTY(OrvikTypes::XYZ, point, Point)
    ORVIK_GROUP_PROPERTY(void *, buffer, Buffer)
    ORVIK_GROUP_PROPERTY(unsigned int, count, Count)
    ORVIK_GROUP_PROPERTY(int, level, Level)
    ORVIK_GROUP_PROPERTY(double, factor, Factor)
    ORVIK_GROUP_PROPERTY(bool, valid, Valid)
    ORVIK_GROUP_PROPERTY(QString, text, Text)

public:
    explicit SampleGroup(const QString &name, QObject *parent = nullptr);

private:
    struct Values {
        QList<OrvikTypes::RX_SETTINGS> settings;
        QList<OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING> rateCalMappings;
        QList<QList<OrvikTypes::RX_RATECOLOR>> rateColors;
        QList<float> rates;
        OrvikTypes::XYZ point;
        void *buffer = nullptr;
        unsigned int count = 0;
        int level = 0;
        double factor = 0.0;
        bool valid = false;
        QString text;
    };
    Values values;
};

/// A settings list of `size` entries that all carry `tag`.
QList<OrvikTypes::RX_SETTINGS> taggedSettings(int size, qint32 tag);
