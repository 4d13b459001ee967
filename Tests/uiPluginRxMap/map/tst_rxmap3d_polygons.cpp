#include "maphost.h"
#include "recordingglu.h"
#include "rxmap3dprobe.h"
#include "tesscallbacks.h"
#include "testbase.h"

#include "Framework/dbgroupaam.h"
#include "bePluginRxMap/dbgrouprxmap.h"

#include <algorithm>
#include <cmath>
#include <limits>

/// What happens to polygons that lack something or cross themselves, and to those around them.
class TestRxMap3DPolygons : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aMapOfHolesAloneDrawsNothingAndMarksThem();
    void aHoleThatNarrowingMovesInsideIsCut();
    void crossingRingsAreNotDrawnAndHarmNoOther_data();
    void crossingRingsAreNotDrawnAndHarmNoOther();
    void aVertexThatIsNoPlaceIsLeftOut_data();
    void aVertexThatIsNoPlaceIsLeftOut();
    void aPolygonAndItsHolesHaveOneColour();
    void withoutRatesTheColourBeforeCarriesOver();
    void anInvalidColourAfterAValidOneIsBlack();
    void noPointIsInsideAMissingRing();
    void onlyThePointIsNarrowed();

private:
    const QVector<Vertex> &rebuild(const QList<OrvikTypes::RX_RATECOLOR> &legend);

    QScopedPointer<MapHost> host;
    DbGroupRxMap *group = nullptr;
    QScopedPointer<RxMap3D> map;
    HandMadeChain chain;
};

namespace {

const QList<OrvikTypes::RX_RATECOLOR> redAndGreen{{10.0, QColor(255, 0, 0)}, {20.0, QColor(0, 255, 0)}};
constexpr quint32 red = 0x800000FFU;
constexpr quint32 green = 0x8000FF00U;

} // namespace

void TestRxMap3DPolygons::init()
{
    TestBase::init();
    chain = HandMadeChain();
    host.reset(new MapHost);
    group = host->addMap(QStringLiteral("field"), {1});
    map.reset(new RxMap3D(&host->broker, nullptr));
    map->setAamGroup(host->aam(1));
    map->setDbGroup(group);
    RecordingGlu::clear();
}

void TestRxMap3DPolygons::cleanup()
{
    map.reset();
    host.reset();
    TestBase::cleanup();
}

const QVector<Vertex> &TestRxMap3DPolygons::rebuild(const QList<OrvikTypes::RX_RATECOLOR> &legend)
{
    MapHost::publish(*group, chain, legend);
    return RxMap3DProbe::banks(*map).at(0).vertices;
}

void TestRxMap3DPolygons::aMapOfHolesAloneDrawsNothingAndMarksThem()
{
    for (int i = 0; i < 3; ++i)
        chain.addHole(square(20.0 * i, 0, 10)).drawIndex = 7;
    QVERIFY(rebuild(redAndGreen).isEmpty());
    QCOMPARE(RecordingGlu::count(QStringLiteral("gluTessBeginPolygon")), 0);
    for (unsigned int i = 0; i < chain.count(); ++i)
        QCOMPARE(chain.at(i).drawIndex, -1);
}

void TestRxMap3DPolygons::aHoleThatNarrowingMovesInsideIsCut()
{
    chain.addOuter(square(0.1, 0.1, 100.0), {5.0F});
    // 100.1 narrows to a little less, left of the right edge.
    chain.addHole({{90.0, 40.0}, {100.1, 40.0}, {100.1, 50.0}, {90.0, 50.0}}).drawIndex = 7;
    rebuild(redAndGreen);
    QCOMPARE(RecordingGlu::count(QStringLiteral("gluTessBeginContour")), 2);
    QCOMPARE(chain.at(1).drawIndex, 7);
}

void TestRxMap3DPolygons::crossingRingsAreNotDrawnAndHarmNoOther_data()
{
    QTest::addColumn<bool>("holesOverlap");
    QTest::newRow("a ring that crosses itself") << false;
    QTest::newRow("two holes that overlap") << true;
}

void TestRxMap3DPolygons::crossingRingsAreNotDrawnAndHarmNoOther()
{
    QFETCH(bool, holesOverlap);
    if (holesOverlap) {
        chain.addOuter(square(0, 0, 20));
        chain.addHole(square(2, 2, 6));
        chain.addHole(square(5, 5, 6));
    } else {
        chain.addOuter({{0, 0}, {10, 10}, {10, 0}, {0, 10}});
    }
    OrvikTypes::RX_POLYGON &good = chain.addOuter(square(50, 0, 10));
    const QVector<Vertex> &drawn = rebuild(redAndGreen);
    QCOMPARE(drawn.size(), 6);
    QVERIFY(std::all_of(drawn.begin(), drawn.end(), [](const Vertex &vertex) { return vertex.x >= 50.0F; }));
    // When the good ring started, nothing remained of the one before.
    QCOMPARE(RecordingGlu::calls().filter(QStringLiteral(" #0")).size(), 2);
    QVERIFY(coordList.isEmpty());
    QVERIFY(vList.isEmpty());
    QCOMPARE(chain.at(0).drawIndex, 1);
    QCOMPARE(good.drawIndex, 2);
}

void TestRxMap3DPolygons::aVertexThatIsNoPlaceIsLeftOut_data()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    const double nan = std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("x") << nan << 5.0;
    QTest::newRow("y") << 12.0 << nan;
    QTest::newRow("both") << nan << nan;
}

void TestRxMap3DPolygons::aVertexThatIsNoPlaceIsLeftOut()
{
    QFETCH(double, x);
    QFETCH(double, y);
    chain.addOuter({{0, 0}, {10, 0}, {x, y}, {10, 10}, {0, 10}}).area = 100.0;
    const QVector<Vertex> &drawn = rebuild(redAndGreen);
    QCOMPARE(drawn.size(), 6);
    for (const Vertex &corner : {Vertex{0, 0, 0, 0}, {10, 0, 0, 0}, {10, 0, -10, 0}, {0, 0, -10, 0}})
        QVERIFY(std::any_of(drawn.begin(), drawn.end(),
                            [&corner](const Vertex &v) { return v.x == corner.x && v.z == corner.z; }));
}

void TestRxMap3DPolygons::aPolygonAndItsHolesHaveOneColour()
{
    chain.addOuter(square(0, 0, 10), {5.0F});
    chain.addHole(square(4, 4, 2));
    chain.addOuter(square(20, 0, 10), {15.0F});
    chain.addHole(square(24, 4, 2));
    const QVector<Vertex> &drawn = rebuild(redAndGreen);
    QCOMPARE(drawn.size(), 2 * 8 * 3);
    for (int i = 0; i < drawn.size(); ++i)
        QCOMPARE(drawn.at(i).color, i < 8 * 3 ? red : green);
}

void TestRxMap3DPolygons::withoutRatesTheColourBeforeCarriesOver()
{
    chain.addOuter(square(0, 0, 10), {15.0F});
    chain.addOuter(square(20, 0, 10)).rates = nullptr;
    const QVector<Vertex> &drawn = rebuild(redAndGreen);
    QCOMPARE(drawn.size(), 12);
    QCOMPARE(drawn.at(6).color, green);
}

void TestRxMap3DPolygons::anInvalidColourAfterAValidOneIsBlack()
{
    chain.addOuter(square(0, 0, 10), {5.0F});
    chain.addOuter(square(20, 0, 10), {15.0F});
    const QVector<Vertex> &drawn = rebuild({{10.0, QColor(255, 128, 64, 32)}, {20.0, QColor()}});
    QCOMPARE(drawn.size(), 12);
    QCOMPARE(drawn.at(0).color, 0x104080FFU);
    QCOMPARE(drawn.at(6).color, 0x80000000U);
}

void TestRxMap3DPolygons::noPointIsInsideAMissingRing()
{
    QVERIFY(!map->isInsidePoly(nullptr, 4, 0.5F, 0.5F));
}

void TestRxMap3DPolygons::onlyThePointIsNarrowed()
{
    // As a float the point is 16777216, left of the ring; as a double it would be inside.
    const double x = 16777217.0;
    Ring ring = square(16777216.5, 0, 10);
    QVERIFY(!map->isInsidePoly(ring.data(), 4, static_cast<float>(x), 5.0));
    QVERIFY(map->isInsidePoly(ring.data(), 4, x + 1.0, 5.0));
}

RXMAP_TEST(TestRxMap3DPolygons, Widgets)
#include "tst_rxmap3d_polygons.moc"
