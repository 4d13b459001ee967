#include "testbase.h"

#include "Framework/databroker.h"
#include "bePluginRxMap/dbgrouprxmap.h"

#include <QMetaProperty>

class DbGroupRxMapTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void startsWithoutAMap();
    void offersItsPropertiesInOrder();
    void storesEachPropertyUnderItsOwnName();
    void readsByNameWhatTheTypedSetterWrote();
    void tellsSubscribersOfEverySetOfTheCount();
    void keepsItsValuesOnceItIsTakenOut();
};

void DbGroupRxMapTest::startsWithoutAMap()
{
    const DbGroupRxMap group(QStringLiteral("rxMap.a"));
    QVERIFY(group.getSettings().isEmpty());
    QVERIFY(group.getRateCalMappings().isEmpty());
    QVERIFY(group.getRateColors().isEmpty());
    QVERIFY(group.getPolygonBuffer() == nullptr);
    QCOMPARE(group.getPolygonCount(), 0U);
    QVERIFY(group.getRatesAtXYZ().isEmpty());
    QVERIFY(!group.getRatesAtXYZValid());
}

void DbGroupRxMapTest::offersItsPropertiesInOrder()
{
    const DbGroupRxMap group(QStringLiteral("rxMap.a"));
    const QMetaObject &meta = *group.metaObject();
    QStringList names;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        names.append(QString::fromLatin1(meta.property(i).name()));
        QVERIFY2(meta.property(i).userType() != QMetaType::UnknownType, meta.property(i).typeName());
    }
    QCOMPARE(
        names,
        QStringList({QStringLiteral("settings"), QStringLiteral("rateCalMappings"), QStringLiteral("rateColors"),
                     QStringLiteral("polygonBuffer"), QStringLiteral("polygonCount"), QStringLiteral("queryRatesAtXYZ"),
                     QStringLiteral("ratesAtXYZ"), QStringLiteral("ratesAtXYZValid")}));
}

void DbGroupRxMapTest::storesEachPropertyUnderItsOwnName()
{
    DbGroupRxMap group(QStringLiteral("rxMap.a"));
    OrvikTypes::RX_SETTINGS setting;
    setting.onLookAheadMs = 1260;
    OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING mapping;
    mapping.dbfColumnName = QStringLiteral("RATE");
    int place = 0;
    group.setSettings({setting});
    group.setRateCalMappings({mapping});
    group.setRateColors({{{10.0, QColor(1, 2, 3)}}});
    group.setPolygonBuffer(&place);
    group.setPolygonCount(7);
    group.setQueryRatesAtXYZ({1.0, 2.0, 3.0});
    group.setRatesAtXYZ({4.0F});
    group.setRatesAtXYZValid(true);
    QCOMPARE(group.getSettings(), QList<OrvikTypes::RX_SETTINGS>({setting}));
    QCOMPARE(group.getRateCalMappings(), QList<OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING>({mapping}));
    QCOMPARE(group.getRateColors().value(0).value(0).rate, 10.0);
    QCOMPARE(group.getPolygonBuffer(), static_cast<void *>(&place));
    QCOMPARE(group.getPolygonCount(), 7U);
    QCOMPARE(group.getQueryRatesAtXYZ(), OrvikTypes::XYZ(1.0, 2.0, 3.0));
    QCOMPARE(group.getRatesAtXYZ(), QList<float>({4.0F}));
    QVERIFY(group.getRatesAtXYZValid());
}

void DbGroupRxMapTest::readsByNameWhatTheTypedSetterWrote()
{
    DbGroupRxMap group(QStringLiteral("rxMap.a"));
    int place = 0;
    group.setPolygonBuffer(&place);
    group.setPolygonCount(7);
    group.setRatesAtXYZ({4.0F, 5.0F});
    QVariant value;
    QCOMPARE(group.getProperty("polygonBuffer", value), int(DataBrokerGroup::Success));
    QCOMPARE(value.userType(), int(QMetaType::VoidStar));
    QCOMPARE(value.value<void *>(), static_cast<void *>(&place));
    QCOMPARE(group.getProperty("polygonCount", value), int(DataBrokerGroup::Success));
    QCOMPARE(value.userType(), int(QMetaType::UInt));
    QCOMPARE(value.toUInt(), 7U);
    QCOMPARE(group.getProperty("ratesAtXYZ", value), int(DataBrokerGroup::Success));
    QCOMPARE(value.value<QList<float>>(), QList<float>({4.0F, 5.0F}));
}

void DbGroupRxMapTest::tellsSubscribersOfEverySetOfTheCount()
{
    DbGroupRxMap group(QStringLiteral("rxMap.a"));
    QSignalSpy changed(&group, &DbGroupRxMap::polygonCountChanged);
    QSignalSpy set(&group, &DbGroupRxMap::polygonCountSet);
    group.setPolygonCount(3);
    group.setPolygonCount(3);
    QCOMPARE(changed.count(), 2);
    QCOMPARE(set.count(), 2);
    QCOMPARE(set.last().first().toUInt(), 3U);
}

void DbGroupRxMapTest::keepsItsValuesOnceItIsTakenOut()
{
    DataBroker broker;
    auto *group = new DbGroupRxMap(QStringLiteral("rxMap.a"));
    QCOMPARE(broker.publishGroup(group), int(DataBrokerGroup::Success));
    group->setPolygonCount(3);
    QCOMPARE(broker.removeGroup(QStringLiteral("rxMap.a")), int(DataBrokerGroup::Success));
    group->setPolygonCount(4);
    QCOMPARE(group->mostRecentErr(), int(DataBrokerGroup::ErrGroupRemoved));
    QCOMPARE(group->getPolygonCount(), 3U);
}

RXMAP_TEST(DbGroupRxMapTest, Core)
#include "tst_dbgrouprxmap.moc"
