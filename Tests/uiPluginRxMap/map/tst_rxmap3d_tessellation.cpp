#include "recordingglu.h"
#include "tesscallbacks.h"
#include "tessellationtest.h"

#include "bePluginRxMap/dbgrouprxmap.h"

#include <GL/glu.h>

/// What a rebuild passes to the tessellator, and which bank it makes.
class TestRxMap3DTessellation : public TessellationTest {
    Q_OBJECT

private Q_SLOTS:
    void withoutABoundGroupTheTessellatorStays();
    void withoutAnAamGroupTheTessellatorStays();
    void aFailedTessellatorLeavesNoBank();
    void noMappingForTheProductLeavesNoBank();
    void anIndexBeyondTheLegendsLeavesNoBank();
    void noPolygonsLeaveOneEmptyBank();
    void aNewBankHasItsDefaults();
    void callbacksAreRegisteredInOrder();
    void callsForAnOuterRingWithAHole();
    void positionsStartAgainForEveryPolygon();
    void nothingIsHeldBetweenRebuilds();
    void halfAlphaOfAnOpaqueColourIs128();
    void aChainShorterThanItsCountEndsEarly();
    void aChainLongerThanItsCountIsCutOff();
    void withoutABufferThereIsAnEmptyBank();
};

void TestRxMap3DTessellation::withoutABoundGroupTheTessellatorStays()
{
    HandMadeChain chain;
    chain.addOuter(square(0, 0, 10));
    rebuild(chain);
    RecordingGlu::clear();
    const int living = RecordingGlu::living();
    map->setDbGroup(nullptr);
    QCOMPARE(RecordingGlu::calls(), QStringList{"gluNewTess"});
    QCOMPARE(RecordingGlu::living(), living + 1);
    QVERIFY(RxMap3DProbe::banks(*map).isEmpty());
}

void TestRxMap3DTessellation::withoutAnAamGroupTheTessellatorStays()
{
    HandMadeChain chain;
    chain.addOuter(square(0, 0, 10));
    rebuild(chain);
    RecordingGlu::clear();
    const int living = RecordingGlu::living();
    map->setAamGroup(nullptr);
    map->updatePolygons();
    QCOMPARE(RecordingGlu::calls(), QStringList{"gluNewTess"});
    QCOMPARE(RecordingGlu::living(), living + 1);
    QVERIFY(RxMap3DProbe::banks(*map).isEmpty());
}

void TestRxMap3DTessellation::aFailedTessellatorLeavesNoBank()
{
    HandMadeChain chain;
    chain.addOuter(square(0, 0, 10));
    rebuild(chain);
    RecordingGlu::clear();
    RecordingGlu::failNext();
    map->updatePolygons();
    QVERIFY(RxMap3DProbe::banks(*map).isEmpty());
    QCOMPARE(RecordingGlu::calls(), QStringList{"gluNewTess"});
}

void TestRxMap3DTessellation::noMappingForTheProductLeavesNoBank()
{
    HandMadeChain chain;
    chain.addOuter(square(0, 0, 10));
    rebuild(chain);
    group->setRateCalMappings({mappingFor(MapHost::productGroup(2))});
    const int living = RecordingGlu::living();
    RecordingGlu::clear();
    map->updatePolygons();
    QVERIFY(RxMap3DProbe::banks(*map).isEmpty());
    QCOMPARE(RecordingGlu::living(), living);
    QCOMPARE(RecordingGlu::count(QStringLiteral("gluDeleteTess")), 1);
}

void TestRxMap3DTessellation::anIndexBeyondTheLegendsLeavesNoBank()
{
    HandMadeChain chain;
    chain.addOuter(square(0, 0, 10));
    rebuild(chain);
    group->setRateColors({});
    map->updatePolygons();
    QVERIFY(RxMap3DProbe::banks(*map).isEmpty());
    QCOMPARE(RecordingGlu::count(QStringLiteral("gluNewTess")), RecordingGlu::count(QStringLiteral("gluDeleteTess")));
}

void TestRxMap3DTessellation::noPolygonsLeaveOneEmptyBank()
{
    HandMadeChain chain;
    QVERIFY(rebuild(chain).isEmpty());
    QCOMPARE(RxMap3DProbe::banks(*map).size(), 1);
    QCOMPARE(RxMap3DProbe::banks(*map).at(0).name, QStringLiteral("RxMap3D_Verts"));
}

void TestRxMap3DTessellation::aNewBankHasItsDefaults()
{
    const VertexBank *bank = map->addVertexBank(QStringLiteral("name"));
    QCOMPARE(bank, &RxMap3DProbe::banks(*map).last());
    QCOMPARE(bank->name, QStringLiteral("name"));
    QCOMPARE(bank->enabled, false);
    QCOMPARE(bank->scale, 1.0F);
    QCOMPARE(bank->primitive, 4);
    QVERIFY(bank->vertices.isEmpty());
    QVERIFY(bank->indices.isEmpty());
}

void TestRxMap3DTessellation::callbacksAreRegisteredInOrder()
{
    map->updatePolygons();
    const QStringList expected{"gluNewTess",
                               "gluTessCallback 100100",
                               "gluTessCallback 100101",
                               "gluTessCallback 100104",
                               "gluTessCallback 100105",
                               "gluTessCallback 100102",
                               "gluDeleteTess"};
    QCOMPARE(RecordingGlu::calls(), expected);
    const auto callbacks = RecordingGlu::callbacks();
    QCOMPARE(callbacks.size(), std::size_t(5));
    QVERIFY(callbacks.at(GLU_TESS_BEGIN) == reinterpret_cast<void (*)()>(tessBeginCB));
    QVERIFY(callbacks.at(GLU_TESS_VERTEX) == reinterpret_cast<void (*)()>(tessVertexCB));
    QVERIFY(callbacks.at(GLU_TESS_EDGE_FLAG) == reinterpret_cast<void (*)()>(tessEdgeCB));
    QVERIFY(callbacks.at(GLU_TESS_COMBINE) == reinterpret_cast<void (*)()>(tessCombineCB));
    QVERIFY(callbacks.at(GLU_TESS_END) == reinterpret_cast<void (*)()>(tessEndCB));
}

void TestRxMap3DTessellation::callsForAnOuterRingWithAHole()
{
    HandMadeChain chain;
    chain.addOuter(square(0, 0, 10));
    // A float cannot hold a tenth: contours go to the tessellator as they are, although holes are placed by narrowed
    // coordinates.
    chain.addHole({{0.1, 3}, {5, 0.7}, {5, 7}});
    group->setPolygonBuffer(chain.first());
    group->setRateColors({oneClass});
    RecordingGlu::clear();
    group->setPolygonCount(2);
    const QStringList calls = RecordingGlu::calls().mid(6);
    const QStringList expected{"gluTessBeginPolygon null",
                               "gluTessBeginContour",
                               "gluTessVertex 0 -4.9899997711181641 0 #0",
                               "gluTessVertex 10 -4.9899997711181641 0 #1",
                               "gluTessVertex 10 -4.9899997711181641 -10 #2",
                               "gluTessVertex 0 -4.9899997711181641 -10 #3",
                               "gluTessEndContour",
                               "gluTessBeginContour",
                               "gluTessVertex 0.10000000000000001 -4.9899997711181641 -3 #4",
                               "gluTessVertex 5 -4.9899997711181641 -0.69999999999999996 #5",
                               "gluTessVertex 5 -4.9899997711181641 -7 #6",
                               "gluTessEndContour",
                               "gluTessEndPolygon",
                               "gluDeleteTess"};
    QCOMPARE(calls, expected);
}

void TestRxMap3DTessellation::positionsStartAgainForEveryPolygon()
{
    HandMadeChain chain;
    chain.addOuter(square(0, 0, 10));
    chain.addOuter(square(20, 0, 10));
    rebuild(chain);
    QCOMPARE(RecordingGlu::calls().filter(QStringLiteral(" #0")).size(), 2);
    QCOMPARE(RecordingGlu::calls().filter(QStringLiteral(" #4")).size(), 0);
}

void TestRxMap3DTessellation::nothingIsHeldBetweenRebuilds()
{
    HandMadeChain chain;
    chain.addOuter(square(0, 0, 10));
    rebuild(chain);
    QVERIFY(coordList.isEmpty());
    QVERIFY(vList.isEmpty());
    QVERIFY(vList.capacity() >= 6);
}

void TestRxMap3DTessellation::halfAlphaOfAnOpaqueColourIs128()
{
    HandMadeChain chain;
    chain.addOuter(square(0, 0, 10));
    QCOMPARE(rebuild(chain).at(0).color >> 24, 128U);
    group->setRateColors({{{100.0, QColor(255, 0, 0, 0)}}});
    map->updatePolygons();
    QCOMPARE(RxMap3DProbe::banks(*map).at(0).vertices.at(0).color >> 24, 0U);
}

void TestRxMap3DTessellation::aChainShorterThanItsCountEndsEarly()
{
    HandMadeChain chain;
    chain.addOuter(square(0, 0, 10));
    rebuild(chain);
    group->setPolygonCount(1000);
    QCOMPARE(RxMap3DProbe::banks(*map).at(0).vertices.size(), 6);
}

void TestRxMap3DTessellation::aChainLongerThanItsCountIsCutOff()
{
    HandMadeChain chain;
    chain.addOuter(square(0, 0, 10));
    chain.addOuter(square(20, 0, 10));
    rebuild(chain);
    group->setPolygonCount(1);
    QCOMPARE(RxMap3DProbe::banks(*map).at(0).vertices.size(), 6);
}

void TestRxMap3DTessellation::withoutABufferThereIsAnEmptyBank()
{
    group->setRateColors({oneClass});
    group->setPolygonCount(5);
    QCOMPARE(RxMap3DProbe::banks(*map).size(), 1);
    QVERIFY(RxMap3DProbe::banks(*map).at(0).vertices.isEmpty());
}

RXMAP_TEST(TestRxMap3DTessellation, Widgets)
#include "tst_rxmap3d_tessellation.moc"
