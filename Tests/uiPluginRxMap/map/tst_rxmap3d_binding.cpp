#include "currentcontext.h"
#include "foreignmapgroup.h"
#include "maphost.h"
#include "recordingglu.h"
#include "rxmap3dprobe.h"
#include "testbase.h"

#include "Framework/dbgroupaam.h"
#include "bePluginRxMap/dbgrouprxmap.h"

/// Which prescription group the drawable binds to, and when.
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
    void aRemovedGroupStaysSafeToHold();
    void propertiesOfOtherTypesAreConverted();
    void propertiesThatDoNotConvertLeaveAnEmptyMap();
    void aGroupWithoutPolygonCountIsReportedOnceAndDrawsNothing();
    void aGroupThatTheHostDeletedIsLetGo();
    void withoutABrokerNothingIsBound();
    void castingByNameAnswersBothBases();
};

namespace {

QList<OrvikTypes::RX_RATECOLOR> oneClass()
{
    return {{10.0, QColor(255, 0, 0)}};
}

/// A map of product 1 from a different back-end, with one square in `chain` that its count leaves out for now.
ForeignMapGroup *publishForeignMap(MapHost &host, HandMadeChain &chain)
{
    auto *group = new ForeignMapGroup(QStringLiteral("rxMap.foreign"));
    host.broker.publishGroup(group);
    chain.addOuter(square(0, 0, 10));
    group->setPolygonBuffer(chain.first());
    group->setRateCalMappings({mappingFor(MapHost::productGroup(1))});
    group->setRateColors({oneClass()});
    return group;
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
    HandMadeChain chain;
    chain.addOuter(square(0, 0, 10));
    MapHost::publish(*group, chain, oneClass());
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

void TestRxMap3DBinding::propertiesOfOtherTypesAreConverted()
{
    MapHost host;
    HandMadeChain chain;
    ForeignMapGroup *group = publishForeignMap(host, chain);
    RxMap3D map(&host.broker, nullptr);
    map.setAamGroup(host.aam(1));
    map.updateRxMapGroup();
    group->setPolygonCount(QStringLiteral("1"));
    QCOMPARE(RxMap3DProbe::banks(map).at(0).vertices.size(), 6);
}

void TestRxMap3DBinding::propertiesThatDoNotConvertLeaveAnEmptyMap()
{
    MapHost host;
    HandMadeChain chain;
    ForeignMapGroup *group = publishForeignMap(host, chain);
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

void TestRxMap3DBinding::aGroupThatTheHostDeletedIsLetGo()
{
    MapHost host;
    RxMap3D map(&host.broker, nullptr);
    map.setAamGroup(host.aam(1));
    auto *group = new DbGroupAAM(QStringLiteral("rxMap.other"));
    host.broker.publishGroup(group);
    map.setDbGroup(group);
    messages().clear();
    host.broker.removeGroup(QStringLiteral("rxMap.other"));
    delete group;
    map.setDbGroup(nullptr);
    QCOMPARE(RxMap3DProbe::boundGroup(map), nullptr);
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

RXMAP_TEST(TestRxMap3DBinding, Widgets)
#include "tst_rxmap3d_binding.moc"
