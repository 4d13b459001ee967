#include "currentcontext.h"
#include "foreignmapgroup.h"
#include "maphost.h"
#include "recordingglu.h"
#include "rxmap3dprobe.h"
#include "testbase.h"

#include "Framework/dbgroupaam.h"
#include "bePluginRxMap/dbgrouprxmap.h"

#include <QCoreApplication>

#include <limits>
#include <thread>

/// Which prescription group the drawable binds to, when, and which colour a polygon gets.
class TestRxMap3DBinding : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void constructionChoosesOnceAndBindsNothing();
    void anAamGroupSetBeforeInitIsOnlyRemembered();
    void anAamGroupSetAfterInitBindsAtOnce();
    void theFirstGroupThatMapsTheProductWins();
    void channelsThatDifferInLetterCaseDoNotMatch();
    void losingTheMatchUnbindsAndEmptiesTheBanks();
    void withoutAnAamGroupNothingIsBound();
    void withoutPrescriptionGroupsNothingIsBound();
    void everySetOfPolygonCountRebuilds();
    void bindingTwiceLeavesOneConnection();
    void aFormerGroupNoLongerRebuilds();
    void destructionEndsTheConnectionAndLeavesTheRecords();
    void aRemovedGroupStaysSafeToHold();
    void aPolygonTakesTheFirstClassNotBelowItsRate_data();
    void aPolygonTakesTheFirstClassNotBelowItsRate();
    void anEmptyLegendKeepsTheColourOfThePolygonBefore();
    void theColourSurvivesRebuilds();
    void theColourStartsInvalidAndDrawsBlackAtHalfAlpha();
    void theColumnIsThePositionOfTheMapping();
    void everyPolygonTakesItsOwnColour();
    void theRateIsWidenedBeforeItIsCompared();
    void propertiesOfOtherTypesAreConverted();
    void propertiesThatDoNotConvertLeaveAnEmptyMap();
    void aGroupWithoutPolygonCountIsReportedOnceAndDrawsNothing();
    void propertiesAreReadInOrder();
    void theConnectionIsUnique();
    void aSetFromAnotherThreadRebuildsLater();
    void withoutABrokerNothingIsBound();
    void castingByNameAnswersBothBases();
};

namespace {

quint32 firstColor(const RxMap3D &map)
{
    const QList<VertexBank> &banks = RxMap3DProbe::banks(map);
    return banks.isEmpty() || banks.at(0).vertices.isEmpty() ? 0U : banks.at(0).vertices.at(0).color;
}

QList<OrvikTypes::RX_RATECOLOR> threeClasses()
{
    return {{10.0, QColor(255, 0, 0)}, {20.0, QColor(0, 255, 0)}, {30.0, QColor(0, 0, 255)}};
}

} // namespace

void TestRxMap3DBinding::constructionChoosesOnceAndBindsNothing()
{
    MapHost host;
    host.addMap(QStringLiteral("field"), {1});
    RecordingGlu::clear();
    RxMap3D map(&host.broker, nullptr);
    QCOMPARE(RxMap3DProbe::boundGroup(map), nullptr);
    QVERIFY(RxMap3DProbe::banks(map).isEmpty());
    QCOMPARE(RecordingGlu::calls(), QStringList{"gluNewTess"});
}

void TestRxMap3DBinding::anAamGroupSetBeforeInitIsOnlyRemembered()
{
    MapHost host;
    host.addMap(QStringLiteral("field"), {1});
    RxMap3D map(&host.broker, nullptr);
    map.setAamGroup(host.aam(1));
    QCOMPARE(RxMap3DProbe::aamGroup(map), host.aam(1));
    QCOMPARE(RxMap3DProbe::boundGroup(map), nullptr);
}

void TestRxMap3DBinding::anAamGroupSetAfterInitBindsAtOnce()
{
    MapHost host;
    DataBrokerGroup *group = host.addMap(QStringLiteral("field"), {1});
    const CurrentContext current;
    RxMap3D map(&host.broker, nullptr);
    map.init();
    map.setAamGroup(host.aam(1));
    QCOMPARE(RxMap3DProbe::boundGroup(map), group);
    map.setAamGroup(nullptr);
    QCOMPARE(RxMap3DProbe::boundGroup(map), nullptr);
}

void TestRxMap3DBinding::theFirstGroupThatMapsTheProductWins()
{
    MapHost host;
    host.addMap(QStringLiteral("zzz"), {2});
    DataBrokerGroup *first = host.addMap(QStringLiteral("second"), {2, 1});
    host.addMap(QStringLiteral("aaa"), {1});
    RxMap3D map(&host.broker, nullptr);
    map.setAamGroup(host.aam(1));
    map.updateRxMapGroup();
    QCOMPARE(RxMap3DProbe::boundGroup(map), first);
}

void TestRxMap3DBinding::channelsThatDifferInLetterCaseDoNotMatch()
{
    MapHost host;
    DbGroupRxMap *group = host.addMap(QStringLiteral("field"), {});
    group->setRateCalMappings({mappingFor(QStringLiteral("System.productGroup.1"))});
    RxMap3D map(&host.broker, nullptr);
    map.setAamGroup(host.aam(1));
    map.updateRxMapGroup();
    QCOMPARE(RxMap3DProbe::boundGroup(map), nullptr);
}

void TestRxMap3DBinding::losingTheMatchUnbindsAndEmptiesTheBanks()
{
    MapHost host;
    DbGroupRxMap *group = host.addMap(QStringLiteral("field"), {1});
    PolygonChain chain;
    chain.addOuter(square(0, 0, 10));
    MapHost::publish(*group, chain, threeClasses());
    RxMap3D map(&host.broker, nullptr);
    map.setAamGroup(host.aam(1));
    map.updateRxMapGroup();
    QCOMPARE(RxMap3DProbe::banks(map).size(), 1);
    group->setRateCalMappings({mappingFor(MapHost::productGroup(2))});
    map.updateRxMapGroup();
    QCOMPARE(RxMap3DProbe::boundGroup(map), nullptr);
    QVERIFY(RxMap3DProbe::banks(map).isEmpty());
}

void TestRxMap3DBinding::withoutAnAamGroupNothingIsBound()
{
    MapHost host;
    host.addMap(QStringLiteral("field"), {1});
    RxMap3D map(&host.broker, nullptr);
    map.updateRxMapGroup();
    QCOMPARE(RxMap3DProbe::boundGroup(map), nullptr);
}

void TestRxMap3DBinding::withoutPrescriptionGroupsNothingIsBound()
{
    MapHost host;
    RxMap3D map(&host.broker, nullptr);
    map.setAamGroup(host.aam(1));
    map.updateRxMapGroup();
    QCOMPARE(RxMap3DProbe::boundGroup(map), nullptr);
}

void TestRxMap3DBinding::everySetOfPolygonCountRebuilds()
{
    MapHost host;
    DbGroupRxMap *group = host.addMap(QStringLiteral("field"), {1});
    RxMap3D map(&host.broker, nullptr);
    map.setAamGroup(host.aam(1));
    map.updateRxMapGroup();
    PolygonChain chain;
    chain.addOuter(square(0, 0, 10));
    MapHost::publish(*group, chain, threeClasses());
    QCOMPARE(RxMap3DProbe::banks(map).at(0).vertices.size(), 6);
    RecordingGlu::clear();
    QCOMPARE(host.broker.setProperty("rxMap.field", "polygonCount", 1U), 0);
    group->setPolygonCount(1);
    QCOMPARE(RecordingGlu::count(QStringLiteral("gluNewTess")), 2);
}

void TestRxMap3DBinding::bindingTwiceLeavesOneConnection()
{
    MapHost host;
    DbGroupRxMap *group = host.addMap(QStringLiteral("field"), {1});
    RxMap3D map(&host.broker, nullptr);
    map.setAamGroup(host.aam(1));
    map.setDbGroup(group);
    map.setDbGroup(group);
    RecordingGlu::clear();
    group->setPolygonCount(0);
    QCOMPARE(RecordingGlu::count(QStringLiteral("gluNewTess")), 1);
}

void TestRxMap3DBinding::aFormerGroupNoLongerRebuilds()
{
    MapHost host;
    DbGroupRxMap *former = host.addMap(QStringLiteral("former"), {1});
    DbGroupRxMap *next = host.addMap(QStringLiteral("next"), {1});
    RxMap3D map(&host.broker, nullptr);
    map.setAamGroup(host.aam(1));
    map.setDbGroup(former);
    map.setDbGroup(next);
    RecordingGlu::clear();
    former->setPolygonCount(0);
    QVERIFY(RecordingGlu::calls().isEmpty());
    next->setPolygonCount(0);
    QCOMPARE(RecordingGlu::count(QStringLiteral("gluNewTess")), 1);
}

void TestRxMap3DBinding::destructionEndsTheConnectionAndLeavesTheRecords()
{
    MapHost host;
    DbGroupRxMap *group = host.addMap(QStringLiteral("field"), {1});
    PolygonChain chain;
    chain.addOuter(square(0, 0, 10));
    MapHost::publish(*group, chain, threeClasses());
    auto *map = new RxMap3D(&host.broker, nullptr);
    map->setAamGroup(host.aam(1));
    map->updateRxMapGroup();
    delete map;
    RecordingGlu::clear();
    group->setPolygonCount(1);
    QVERIFY(RecordingGlu::calls().isEmpty());
    QCOMPARE(chain.at(0).drawIndex, 1);
    QCOMPARE(chain.at(0).vertices[2].x, 10.0);
}

void TestRxMap3DBinding::aRemovedGroupStaysSafeToHold()
{
    MapHost host;
    DbGroupRxMap *group = host.addMap(QStringLiteral("field"), {1});
    RxMap3D map(&host.broker, nullptr);
    map.setAamGroup(host.aam(1));
    map.updateRxMapGroup();
    host.broker.removeGroup(QStringLiteral("rxMap.field"));
    map.updatePolygons();
    QCOMPARE(RxMap3DProbe::boundGroup(map), group);
    map.updateRxMapGroup();
    QCOMPARE(RxMap3DProbe::boundGroup(map), nullptr);
}

void TestRxMap3DBinding::aPolygonTakesTheFirstClassNotBelowItsRate_data()
{
    QTest::addColumn<float>("rate");
    QTest::addColumn<quint32>("color");
    const quint32 red = 0x800000FFU;
    const quint32 green = 0x8000FF00U;
    const quint32 blue = 0x80FF0000U;
    QTest::newRow("below all") << -5.0F << red;
    QTest::newRow("a limit belongs to its class") << 10.0F << red;
    QTest::newRow("just above a limit") << 10.001F << green;
    QTest::newRow("last limit") << 30.0F << blue;
    QTest::newRow("above every limit") << 31.0F << blue;
    QTest::newRow("not a number") << std::numeric_limits<float>::quiet_NaN() << blue;
}

void TestRxMap3DBinding::aPolygonTakesTheFirstClassNotBelowItsRate()
{
    QFETCH(float, rate);
    MapHost host;
    DbGroupRxMap *group = host.addMap(QStringLiteral("field"), {1});
    RxMap3D map(&host.broker, nullptr);
    map.setAamGroup(host.aam(1));
    map.setDbGroup(group);
    PolygonChain chain;
    chain.addOuter(square(0, 0, 10), {rate});
    MapHost::publish(*group, chain, threeClasses());
    QTEST(firstColor(map), "color");

    // List order decides: with the last class first, it takes every rate up to its limit.
    QList<OrvikTypes::RX_RATECOLOR> unsorted = threeClasses();
    unsorted.move(2, 0);
    MapHost::publish(*group, chain, unsorted);
    const quint32 expected = rate <= 30.0F ? 0x80FF0000U : 0x8000FF00U;
    QCOMPARE(firstColor(map), expected);
}

void TestRxMap3DBinding::anEmptyLegendKeepsTheColourOfThePolygonBefore()
{
    MapHost host;
    DbGroupRxMap *group = host.addMap(QStringLiteral("field"), {1});
    RxMap3D map(&host.broker, nullptr);
    map.setAamGroup(host.aam(1));
    map.setDbGroup(group);
    PolygonChain chain;
    chain.addOuter(square(0, 0, 10), {15.0F});
    MapHost::publish(*group, chain, threeClasses());
    QCOMPARE(firstColor(map), 0x8000FF00U);
    MapHost::publish(*group, chain, {});
    QCOMPARE(RxMap3DProbe::banks(map).at(0).vertices.size(), 6);
    QCOMPARE(firstColor(map), 0x8000FF00U);
}

void TestRxMap3DBinding::theColourSurvivesRebuilds()
{
    MapHost host;
    DbGroupRxMap *group = host.addMap(QStringLiteral("field"), {1});
    RxMap3D map(&host.broker, nullptr);
    map.setAamGroup(host.aam(1));
    map.setDbGroup(group);
    PolygonChain chain;
    chain.addOuter(square(0, 0, 10), {15.0F});
    MapHost::publish(*group, chain, threeClasses());
    map.setDbGroup(nullptr);
    QCOMPARE(RxMap3DProbe::currentColor(map), QColor(0, 255, 0));
}

void TestRxMap3DBinding::theColourStartsInvalidAndDrawsBlackAtHalfAlpha()
{
    MapHost host;
    DbGroupRxMap *group = host.addMap(QStringLiteral("field"), {1});
    RxMap3D map(&host.broker, nullptr);
    QVERIFY(!RxMap3DProbe::currentColor(map).isValid());
    map.setAamGroup(host.aam(1));
    map.setDbGroup(group);
    PolygonChain chain;
    chain.addOuter(square(0, 0, 10));
    MapHost::publish(*group, chain, {});
    QCOMPARE(firstColor(map), 0x80000000U);
}

void TestRxMap3DBinding::theColumnIsThePositionOfTheMapping()
{
    MapHost host;
    DbGroupRxMap *group = host.addMap(QStringLiteral("field"), {2, 1});
    RxMap3D map(&host.broker, nullptr);
    map.setDbGroup(group);
    map.setAamGroup(host.aam(1));
    PolygonChain chain;
    chain.addOuter(square(0, 0, 10), {5.0F, 25.0F});
    MapHost::publish(*group, chain, threeClasses());
    QCOMPARE(firstColor(map), 0x80FF0000U);
    map.setAamGroup(host.aam(2));
    map.updateRxMapGroup();
    QCOMPARE(firstColor(map), 0x800000FFU);
}

void TestRxMap3DBinding::everyPolygonTakesItsOwnColour()
{
    MapHost host;
    DbGroupRxMap *group = host.addMap(QStringLiteral("field"), {1});
    RxMap3D map(&host.broker, nullptr);
    map.setAamGroup(host.aam(1));
    map.setDbGroup(group);
    PolygonChain chain;
    for (float rate : {5.0F, 25.0F, 15.0F})
        chain.addOuter(square(20.0 * chain.count(), 0, 10), {rate});
    MapHost::publish(*group, chain, threeClasses());
    const QVector<Vertex> &vertices = RxMap3DProbe::banks(map).at(0).vertices;
    QCOMPARE(vertices.size(), 18);
    QCOMPARE(vertices.at(0).color, 0x800000FFU);
    QCOMPARE(vertices.at(6).color, 0x80FF0000U);
    QCOMPARE(vertices.at(12).color, 0x8000FF00U);
}

void TestRxMap3DBinding::theRateIsWidenedBeforeItIsCompared()
{
    MapHost host;
    DbGroupRxMap *group = host.addMap(QStringLiteral("field"), {1});
    RxMap3D map(&host.broker, nullptr);
    map.setAamGroup(host.aam(1));
    map.setDbGroup(group);
    PolygonChain chain;
    chain.addOuter(square(0, 0, 10), {0.1F});
    // 0.1 as a float is a little more than 0.1.
    MapHost::publish(*group, chain, {{0.1, QColor(255, 0, 0)}, {1.0, QColor(0, 255, 0)}});
    QCOMPARE(firstColor(map), 0x8000FF00U);
}

void TestRxMap3DBinding::propertiesOfOtherTypesAreConverted()
{
    MapHost host;
    auto *group = new ForeignMapGroup(QStringLiteral("rxMap.foreign"));
    host.broker.publishGroup(group);
    PolygonChain chain;
    chain.addOuter(square(0, 0, 10));
    group->setPolygonBuffer(chain.first());
    group->setRateCalMappings({mappingFor(MapHost::productGroup(1))});
    group->setRateColors({threeClasses()});
    RxMap3D map(&host.broker, nullptr);
    map.setAamGroup(host.aam(1));
    map.updateRxMapGroup();
    group->setPolygonCount(QStringLiteral("1"));
    QCOMPARE(RxMap3DProbe::banks(map).at(0).vertices.size(), 6);
}

void TestRxMap3DBinding::propertiesThatDoNotConvertLeaveAnEmptyMap()
{
    MapHost host;
    auto *group = new ForeignMapGroup(QStringLiteral("rxMap.foreign"));
    host.broker.publishGroup(group);
    PolygonChain chain;
    chain.addOuter(square(0, 0, 10));
    group->setPolygonBuffer(chain.first());
    group->setRateCalMappings({mappingFor(MapHost::productGroup(1))});
    group->setRateColors({threeClasses()});
    RxMap3D map(&host.broker, nullptr);
    map.setAamGroup(host.aam(1));
    map.updateRxMapGroup();
    group->setPolygonCount(QStringLiteral("many"));
    QCOMPARE(RxMap3DProbe::banks(map).size(), 1);
    QVERIFY(RxMap3DProbe::banks(map).at(0).vertices.isEmpty());
}

void TestRxMap3DBinding::aGroupWithoutPolygonCountIsReportedOnceAndDrawsNothing()
{
    MapHost host;
    host.broker.publishGroup(new DbGroupAAM(QStringLiteral("rxMap.other")));
    RxMap3D map(&host.broker, nullptr);
    map.setAamGroup(host.aam(1));
    map.updateRxMapGroup();
    QCOMPARE(RxMap3DProbe::boundGroup(map), nullptr);
    messages().clear();
    map.setDbGroup(host.broker.getGroup(QStringLiteral("rxMap.other"), false));
    QVERIFY(RxMap3DProbe::banks(map).isEmpty());
    QCOMPARE(messages().debugLines().filter(QStringLiteral("connectPropertySetSlot")).size(), 1);
    map.setDbGroup(nullptr);
}

void TestRxMap3DBinding::propertiesAreReadInOrder()
{
    MapHost host;
    DbGroupRxMap *group = host.addMap(QStringLiteral("field"), {1});
    RxMap3D map(&host.broker, nullptr);
    map.setAamGroup(host.aam(1));
    map.setDbGroup(group);
    static QStringList order;
    order.clear();
    static const char *const names[] = {"polygonBuffer", "polygonCount", "rateCalMappings", "rateColors"};
    for (const char *const &name : names) {
        const auto note = [](void *argument) {
            order.append(QString::fromLatin1(*static_cast<const char *const *>(argument)));
        };
        group->setBeforeReadHook(name, note, const_cast<char **>(const_cast<char *const *>(&name)));
    }
    map.updatePolygons();
    QCOMPARE(order, (QStringList{"polygonBuffer", "polygonCount", "rateCalMappings", "rateColors"}));
}

void TestRxMap3DBinding::theConnectionIsUnique()
{
    MapHost host;
    DbGroupRxMap *group = host.addMap(QStringLiteral("field"), {1});
    RxMap3D map(&host.broker, nullptr);
    map.setAamGroup(host.aam(1));
    map.setDbGroup(group);
    QVERIFY(!group->connectPropertySetSlot("polygonCount", &map, SLOT(updatePolygons()), Qt::UniqueConnection, true));
}

void TestRxMap3DBinding::aSetFromAnotherThreadRebuildsLater()
{
    MapHost host;
    DbGroupRxMap *group = host.addMap(QStringLiteral("field"), {1});
    RxMap3D map(&host.broker, nullptr);
    map.setAamGroup(host.aam(1));
    map.setDbGroup(group);
    RecordingGlu::clear();
    std::thread([group] { group->setPolygonCount(0); }).join();
    QVERIFY(RecordingGlu::calls().isEmpty());
    QCoreApplication::processEvents();
    QCOMPARE(RecordingGlu::count(QStringLiteral("gluNewTess")), 1);
}

void TestRxMap3DBinding::withoutABrokerNothingIsBound()
{
    MapHost host;
    RxMap3D map(nullptr, nullptr);
    map.setAamGroup(host.aam(1));
    map.updateRxMapGroup();
    QCOMPARE(RxMap3DProbe::boundGroup(map), nullptr);
}

void TestRxMap3DBinding::castingByNameAnswersBothBases()
{
    MapHost host;
    RxMap3D map(&host.broker, nullptr);
    QCOMPARE(map.qt_metacast("RxMap3D"), static_cast<void *>(&map));
    QCOMPARE(map.qt_metacast("Object3D"), static_cast<void *>(static_cast<Object3D *>(&map)));
    QCOMPARE(map.qt_metacast("Object2D"), nullptr);
    QCOMPARE(map.metaObject()->methodOffset() + 1, map.metaObject()->methodCount());
    QCOMPARE(map.metaObject()->indexOfSlot("updatePolygons()"), map.metaObject()->methodOffset());
    QCOMPARE(map.drawingOrder(), -4.99F);
}

QTEST_MAIN(TestRxMap3DBinding)
#include "tst_rxmap3d_binding.moc"
