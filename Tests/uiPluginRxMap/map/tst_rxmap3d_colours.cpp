#include "tessellationtest.h"

#include "bePluginRxMap/dbgrouprxmap.h"

#include <limits>

/// Which colour a polygon gets from the legend.
class TestRxMap3DColours : public TessellationTest {
    Q_OBJECT

private Q_SLOTS:
    void aPolygonTakesTheFirstClassNotBelowItsRate_data();
    void aPolygonTakesTheFirstClassNotBelowItsRate();
    void anEmptyLegendKeepsTheColourOfThePolygonBefore();
    void theColourSurvivesRebuilds();
    void theColourStartsInvalidAndDrawsBlackAtHalfAlpha();
    void theColumnIsThePositionOfTheMapping();
    void everyPolygonTakesItsOwnColour();
    void theRateIsWidenedBeforeItIsCompared();
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

void TestRxMap3DColours::aPolygonTakesTheFirstClassNotBelowItsRate_data()
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

void TestRxMap3DColours::aPolygonTakesTheFirstClassNotBelowItsRate()
{
    QFETCH(float, rate);
    HandMadeChain chain;
    chain.addOuter(square(0, 0, 10), {rate});
    MapHost::publish(*group, chain, threeClasses());
    QTEST(firstColor(*map), "color");

    // The order of the list decides: with the last class first, that class takes every rate up to its limit.
    QList<OrvikTypes::RX_RATECOLOR> unsorted = threeClasses();
    unsorted.move(2, 0);
    MapHost::publish(*group, chain, unsorted);
    const quint32 expected = rate <= 30.0F ? 0x80FF0000U : 0x8000FF00U;
    QCOMPARE(firstColor(*map), expected);
}

void TestRxMap3DColours::anEmptyLegendKeepsTheColourOfThePolygonBefore()
{
    HandMadeChain chain;
    chain.addOuter(square(0, 0, 10), {15.0F});
    MapHost::publish(*group, chain, threeClasses());
    QCOMPARE(firstColor(*map), 0x8000FF00U);
    MapHost::publish(*group, chain, {});
    QCOMPARE(RxMap3DProbe::banks(*map).at(0).vertices.size(), 6);
    QCOMPARE(firstColor(*map), 0x8000FF00U);
}

void TestRxMap3DColours::theColourSurvivesRebuilds()
{
    HandMadeChain chain;
    chain.addOuter(square(0, 0, 10), {15.0F});
    MapHost::publish(*group, chain, threeClasses());
    map->setDbGroup(nullptr);
    QCOMPARE(RxMap3DProbe::currentColor(*map), QColor(0, 255, 0));
}

void TestRxMap3DColours::theColourStartsInvalidAndDrawsBlackAtHalfAlpha()
{
    QVERIFY(!RxMap3DProbe::currentColor(RxMap3D(&host->broker, nullptr)).isValid());
    HandMadeChain chain;
    chain.addOuter(square(0, 0, 10));
    MapHost::publish(*group, chain, {});
    QCOMPARE(firstColor(*map), 0x80000000U);
}

void TestRxMap3DColours::theColumnIsThePositionOfTheMapping()
{
    group->setRateCalMappings({mappingFor(MapHost::productGroup(2)), mappingFor(MapHost::productGroup(1))});
    HandMadeChain chain;
    chain.addOuter(square(0, 0, 10), {5.0F, 25.0F});
    MapHost::publish(*group, chain, threeClasses());
    QCOMPARE(firstColor(*map), 0x80FF0000U);
    map->setAamGroup(host->aam(2));
    map->updateRxMapGroup();
    QCOMPARE(firstColor(*map), 0x800000FFU);
}

void TestRxMap3DColours::everyPolygonTakesItsOwnColour()
{
    HandMadeChain chain;
    for (float rate : {5.0F, 25.0F, 15.0F})
        chain.addOuter(square(20.0 * chain.count(), 0, 10), {rate});
    MapHost::publish(*group, chain, threeClasses());
    const QVector<Vertex> &vertices = RxMap3DProbe::banks(*map).at(0).vertices;
    QCOMPARE(vertices.size(), 18);
    QCOMPARE(vertices.at(0).color, 0x800000FFU);
    QCOMPARE(vertices.at(6).color, 0x80FF0000U);
    QCOMPARE(vertices.at(12).color, 0x8000FF00U);
}

void TestRxMap3DColours::theRateIsWidenedBeforeItIsCompared()
{
    HandMadeChain chain;
    chain.addOuter(square(0, 0, 10), {0.1F});
    // 0.1 as a float is a little more than 0.1.
    MapHost::publish(*group, chain, {{0.1, QColor(255, 0, 0)}, {1.0, QColor(0, 255, 0)}});
    QCOMPARE(firstColor(*map), 0x8000FF00U);
}

RXMAP_TEST(TestRxMap3DColours, Widgets)
#include "tst_rxmap3d_colours.moc"
