#include "samplegroup.h"

SampleGroup::SampleGroup(const QString &name, QObject *parent)
    : DataBrokerGroup(name, parent)
{
}

ORVIK_GROUP_PROPERTY_ACCESSORS(SampleGroup, QList<OrvikTypes::RX_SETTINGS>, settings, Settings, values.settings)
ORVIK_GROUP_PROPERTY_ACCESSORS(SampleGroup, QList<OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING>, rateCalMappings,
                               RateCalMappings, values.rateCalMappings)
ORVIK_GROUP_PROPERTY_ACCESSORS(SampleGroup, QList<QList<OrvikTypes::RX_RATECOLOR>>, rateColors, RateColors,
                               values.rateColors)
ORVIK_GROUP_PROPERTY_ACCESSORS(SampleGroup, QList<float>, rates, Rates, values.rates)
ORVIK_GROUP_PROPERTY_ACCESSORS(SampleGroup, OrvikTypes::XYZ, point, Point, values.point)
ORVIK_GROUP_PROPERTY_ACCESSORS(SampleGroup, void *, buffer, Buffer, values.buffer)
ORVIK_GROUP_PROPERTY_ACCESSORS(SampleGroup, unsigned int, count, Count, values.count)
ORVIK_GROUP_PROPERTY_ACCESSORS(SampleGroup, int, level, Level, values.level)
ORVIK_GROUP_PROPERTY_ACCESSORS(SampleGroup, double, factor, Factor, values.factor)
ORVIK_GROUP_PROPERTY_ACCESSORS(SampleGroup, bool, valid, Valid, values.valid)
ORVIK_GROUP_PROPERTY_ACCESSORS(SampleGroup, QString, text, Text, values.text)

QList<OrvikTypes::RX_SETTINGS> taggedSettings(int size, qint32 tag)
{
    OrvikTypes::RX_SETTINGS entry;
    entry.onLookAheadMs = tag;
    entry.name = QString::number(tag);
    QList<OrvikTypes::RX_SETTINGS> settings;
    for (int i = 0; i < size; ++i)
        settings.append(entry);
    return settings;
}
