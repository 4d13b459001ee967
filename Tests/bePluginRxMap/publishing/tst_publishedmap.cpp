#include "fixture.h"
#include "prescriptionloader.h"
#include "publishedmap.h"
#include "testbase.h"

#include "Framework/databroker.h"

namespace {

const QString groupName = QStringLiteral("rxMap.a");

std::unique_ptr<LoadedMap> load(const char *name)
{
    const LoadControl control;
    const LoadRequest request = requestFor(fixture(name));
    return PrescriptionLoader(request, {}, control).load();
}

QStringList channelsOf(const DbGroupRxMap &group)
{
    QStringList names;
    for (const auto &mapping : group.getRateCalMappings())
        names.append(mapping.rateCalName);
    return names;
}

} // namespace

class PublishedMapTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void publishesWithTheCountLast();
    void leavesNothingBehindWhenItsNameIsTaken();
    void takesItsGroupOut();
    void startsWithTheSettingsGivenAndKeepsItsOwn();
    void adaptsSettingsToTheNumberOfProducts();
    void tellsReadersOfNewChannelsOnly();
    void writesPastAWriteProtection();

private:
    DbGroupRxMap *group() const { return qobject_cast<DbGroupRxMap *>(broker->getGroup(groupName, false)); }

    QScopedPointer<DataBroker> broker;
    const QStringList channels = {QStringLiteral("product1"), QStringLiteral("product2"), QStringLiteral("product3")};
};

void PublishedMapTest::init()
{
    TestBase::init();
    broker.reset(new DataBroker);
}

void PublishedMapTest::publishesWithTheCountLast()
{
    QStringList order;
    PublishedMap map(broker.data(), groupName);
    QVERIFY(map.publish(load("three-zones.geojson"), channels, {}));
    connect(group(), &DbGroupRxMap::polygonBufferSet, this, [&order] { order.append(QStringLiteral("buffer")); });
    connect(group(), &DbGroupRxMap::rateCalMappingsSet, this, [&order] { order.append(QStringLiteral("mappings")); });
    connect(group(), &DbGroupRxMap::rateColorsSet, this, [&order] { order.append(QStringLiteral("colors")); });
    connect(group(), &DbGroupRxMap::settingsSet, this, [&order] { order.append(QStringLiteral("settings")); });
    connect(group(), &DbGroupRxMap::polygonCountSet, this,
            [&order](unsigned count) { order.append(QStringLiteral("count %1").arg(count)); });
    QVERIFY(map.publish(load("overlap.geojson"), channels, {}));
    QCOMPARE(order.join(QLatin1Char(' ')), QStringLiteral("count 0 buffer mappings colors settings count 2"));
}

void PublishedMapTest::leavesNothingBehindWhenItsNameIsTaken()
{
    PublishedMap first(broker.data(), groupName);
    QVERIFY(first.publish(load("three-zones.geojson"), channels, {}));
    {
        PublishedMap second(broker.data(), groupName);
        QVERIFY(!second.publish(load("overlap.geojson"), channels, {}));
    }
    QCOMPARE(group()->getPolygonCount(), 3U);
    group()->setQueryRatesAtXYZ({0.0, 0.0, 0.0});
    QVERIFY(group()->getRatesAtXYZValid());
}

void PublishedMapTest::takesItsGroupOut()
{
    QScopedPointer<PublishedMap> map(new PublishedMap(broker.data(), groupName));
    QVERIFY(map->publish(load("three-zones.geojson"), channels, {}));
    const DbGroupRxMap *gone = group();
    map.reset();
    QVERIFY(group() == nullptr);
    QVERIFY(gone->isRemoved());
    QVERIFY(gone->getPolygonBuffer() == nullptr);
    QCOMPARE(gone->getPolygonCount(), 0U);
    map.reset(new PublishedMap(broker.data(), groupName));
    map.reset();
}

void PublishedMapTest::startsWithTheSettingsGivenAndKeepsItsOwn()
{
    OrvikTypes::RX_SETTINGS known;
    known.onLookAheadMs = 700;
    known.isMaster = true;
    PublishedMap map(broker.data(), groupName);
    QVERIFY(map.publish(load("three-zones.geojson"), channels, {known}));
    QCOMPARE(map.settings().size(), 3);
    QCOMPARE(map.settings().at(0).onLookAheadMs, 700);
    QVERIFY(map.settings().at(0).isMaster);
    QCOMPARE(map.settings().at(0).name, QStringLiteral("Seed"));
    QCOMPARE(map.settings().at(1).onLookAheadMs, 1000);
    QVERIFY(map.publish(load("overlap.geojson"), channels, {}));
    QCOMPARE(map.settings().at(0).onLookAheadMs, 700);
}

void PublishedMapTest::adaptsSettingsToTheNumberOfProducts()
{
    PublishedMap map(broker.data(), groupName);
    auto loaded = load("three-zones.geojson");
    loaded->productNames =
        QStringList({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c"), QStringLiteral("d")});
    QVERIFY(map.publish(std::move(loaded), channels, {}));
    QCOMPARE(map.settings().size(), 4);
    loaded = load("three-zones.geojson");
    loaded->productNames = QStringList(QStringLiteral("b"));
    QVERIFY(map.publish(std::move(loaded), channels, {}));
    QCOMPARE(map.settings().size(), 1);
    QCOMPARE(map.settings().first().name, QStringLiteral("b"));
}

void PublishedMapTest::tellsReadersOfNewChannelsOnly()
{
    PublishedMap map(broker.data(), groupName);
    QVERIFY(map.publish(load("three-zones.geojson"), channels, {}));
    QSignalSpy counts(group(), &DbGroupRxMap::polygonCountSet);
    map.feed(channels);
    QCOMPARE(counts.count(), 0);
    map.feed({QStringLiteral("product1"), QString(), QStringLiteral("product3")});
    QCOMPARE(counts.count(), 1);
    QCOMPARE(channelsOf(*group()), QStringList({QStringLiteral("product1"), QString(), QStringLiteral("product3")}));
    QCOMPARE(map.wantedRateCalNames(), channels);
}

void PublishedMapTest::writesPastAWriteProtection()
{
    PublishedMap map(broker.data(), groupName);
    QVERIFY(map.publish(load("three-zones.geojson"), channels, {}));
    for (const char *property : {"settings", "rateCalMappings", "polygonCount", "ratesAtXYZ", "ratesAtXYZValid"})
        QVERIFY(group()->setWriteProtected(property, true));
    QVERIFY(map.publish(load("overlap.geojson"), channels, {}));
    QCOMPARE(group()->getPolygonCount(), 2U);
    group()->setQueryRatesAtXYZ({0.0, 0.0, 0.0});
    QCOMPARE(group()->getRatesAtXYZ(), QList<float>({20.0F}));
}

RXMAP_TEST(PublishedMapTest, Core)
#include "tst_publishedmap.moc"
