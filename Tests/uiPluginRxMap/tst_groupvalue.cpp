#include "groupvalue.h"
#include "testbase.h"

#include "Framework/groupproperty.h"
#include "Framework/rxdbfcolumntoratecalmapping.h"
#include "Framework/rxpolygon.h"

/// A group that gives everything as text.
class TextGroup : public DataBrokerGroup {
    Q_OBJECT
    ORVIK_GROUP_PROPERTY(QString, polygonBuffer, PolygonBuffer)
    ORVIK_GROUP_PROPERTY(QString, polygonCount, PolygonCount)
    ORVIK_GROUP_PROPERTY(QString, rateCalMappings, RateCalMappings)
    ORVIK_GROUP_PROPERTY(QString, rateColors, RateColors)

public:
    using DataBrokerGroup::DataBrokerGroup;

private:
    QString text = QStringLiteral("12");
};

ORVIK_GROUP_PROPERTY_ACCESSORS(TextGroup, QString, polygonBuffer, PolygonBuffer, text)
ORVIK_GROUP_PROPERTY_ACCESSORS(TextGroup, QString, polygonCount, PolygonCount, text)
ORVIK_GROUP_PROPERTY_ACCESSORS(TextGroup, QString, rateCalMappings, RateCalMappings, text)
ORVIK_GROUP_PROPERTY_ACCESSORS(TextGroup, QString, rateColors, RateColors, text)

class TestGroupValue : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void textIsConvertedWhereItCanBe();
    void aFailedConversionLeavesNothing();
    void anUnknownPropertyLeavesNothing();
    void aBrokersGroupsAreReadByNameTheSameWay();
};

void TestGroupValue::textIsConvertedWhereItCanBe()
{
    const TextGroup group(QStringLiteral("texts"));
    QCOMPARE(groupValue<QString>(group, "polygonCount"), QStringLiteral("12"));
    QCOMPARE(groupValue<unsigned int>(group, "polygonCount"), 12U);
}

void TestGroupValue::aFailedConversionLeavesNothing()
{
    TextGroup group(QStringLiteral("texts"));
    QCOMPARE(groupValue<void *>(group, "polygonBuffer"), nullptr);
    const auto mappings = groupValue<QList<OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING>>(group, "rateCalMappings");
    QVERIFY(mappings.isEmpty());
    const auto legends = groupValue<QList<QList<OrvikTypes::RX_RATECOLOR>>>(group, "rateColors");
    QVERIFY(legends.isEmpty());
    group.setPolygonCount(QStringLiteral("12 rings"));
    QCOMPARE(groupValue<unsigned int>(group, "polygonCount"), 0U);
}

void TestGroupValue::anUnknownPropertyLeavesNothing()
{
    const TextGroup group(QStringLiteral("texts"));
    QCOMPARE(groupValue<unsigned int>(group, "polygons"), 0U);
}

void TestGroupValue::aBrokersGroupsAreReadByNameTheSameWay()
{
    DataBroker broker;
    broker.publishGroup(new TextGroup(QStringLiteral("texts")));
    QCOMPARE(groupValue<unsigned int>(broker, "texts", "polygonCount"), 12U);
    QCOMPARE(groupValue<void *>(broker, "texts", "polygonBuffer"), nullptr);
    QCOMPARE(groupValue<unsigned int>(broker, "texts", "polygons"), 0U);
    QCOMPARE(groupValue<unsigned int>(broker, "others", "polygonCount"), 0U);
}

RXMAP_TEST(TestGroupValue, None)
#include "tst_groupvalue.moc"
