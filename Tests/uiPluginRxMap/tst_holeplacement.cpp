#include "holeplacement.h"
#include "maphost.h"
#include "plainplacement.h"
#include "testbase.h"

#include <cmath>
#include <limits>
#include <random>

using OrvikTypes::RX_POLYGON;

class TestHolePlacement : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void aHoleInsideTwoRingsIsCutFromTheFirstOnly();
    void aHoleMustBeMoreThanTenSquareMetresSmaller_data();
    void aHoleMustBeMoreThanTenSquareMetresSmaller();
    void aHoleWithOneVertexOutsideIsNotCut();
    void aHoleWithoutVerticesIsPlacedNowhere();
    void aRingWithoutAVertexArrayIsEmpty();
    void aHoleWithAnImpossibleVertexCountIsPlacedNowhere_data();
    void aHoleWithAnImpossibleVertexCountIsPlacedNowhere();
    void outersWithImpossibleVertexCountsDisturbNoOther_data();
    void outersWithImpossibleVertexCountsDisturbNoOther();
    void aCrossingBeyondTheRingStillCounts();
    void minuteHeightsArePlacedAsPlainly();
    void holeCoordinatesAreNarrowedToFloat();
    void theFastWayEqualsThePlainOne_data();
    void theFastWayEqualsThePlainOne();
};

namespace {

struct Rings {
    QVector<RX_POLYGON *> outers;
    QVector<RX_POLYGON *> holes;
};

Rings split(PolygonChain &chain)
{
    Rings rings;
    for (RX_POLYGON *polygon = chain.first(); polygon != nullptr; polygon = polygon->next)
        (polygon->isHole ? rings.holes : rings.outers).append(polygon);
    return rings;
}

QVector<QVector<int>> placed(const Rings &rings)
{
    const HolePlacement placement(rings.outers, rings.holes);
    QVector<QVector<int>> cut;
    for (int outer = 0; outer < rings.outers.size(); ++outer) {
        QVector<int> here;
        for (int hole = placement.firstHole(outer); hole >= 0; hole = placement.nextHole(hole))
            here.append(hole);
        cut.append(here);
    }
    for (int hole = 0; hole < rings.holes.size(); ++hole) {
        bool found = false;
        for (const QVector<int> &here : qAsConst(cut))
            found = found || here.contains(hole);
        if (found != placement.isPlaced(hole))
            return {};
    }
    return cut;
}

/// How random rings are made.
struct Kind {
    double grid = 0.0;      ///< Coordinates are multiples of this; 0: any.
    double offset = 0.0;    ///< Far from the origin, narrowing to float moves vertices.
    bool oddValues = false; ///< NaN, infinities, huge and tiny numbers among the coordinates.
    bool nested = false;    ///< Stars inside stars instead of tangles.
    double scale = 1.0;
};

class RandomMap {
public:
    RandomMap(const Kind &kind, unsigned int seed)
        : kind(kind)
        , random(seed)
    {
        const int rings = 2 + below(14);
        for (int i = 0; i < rings; ++i) {
            const Ring ring = kind.nested ? star() : tangle();
            RX_POLYGON &polygon = below(2) == 0 ? chain.addOuter(ring) : chain.addHole(ring);
            if (below(4) == 0)
                polygon.area = 100.0 * below(4);
        }
    }

    PolygonChain chain;

private:
    int below(int limit) { return static_cast<int>(random() % static_cast<unsigned int>(limit)); }

    double coordinate(double value)
    {
        if (kind.oddValues && below(12) == 0) {
            static const double odd[] = {std::numeric_limits<double>::quiet_NaN(),
                                         std::numeric_limits<double>::infinity(),
                                         -std::numeric_limits<double>::infinity(),
                                         1e300,
                                         -1e200,
                                         1e-300,
                                         5e-324,
                                         1e39};
            return odd[below(8)];
        }
        return kind.scale * ((kind.grid > 0.0 ? std::round(value / kind.grid) * kind.grid : value) + kind.offset);
    }

    Ring tangle()
    {
        std::uniform_real_distribution<double> position(-20.0, 20.0);
        Ring ring(static_cast<std::size_t>(below(9)));
        for (auto &vertex : ring)
            vertex = {coordinate(position(random)), coordinate(position(random))};
        return ring;
    }

    Ring star()
    {
        std::uniform_real_distribution<double> position(-12.0, 12.0);
        const double x = position(random);
        const double y = position(random);
        const double radius = 1.0 + below(30);
        const int vertices = 3 + below(80);
        Ring ring;
        for (int i = 0; i < vertices; ++i) {
            const double angle = 6.28318530717958648 * i / vertices;
            const double reach = radius * (0.8 + 0.02 * below(10));
            ring.push_back({coordinate(x + reach * std::cos(angle)), coordinate(y + reach * std::sin(angle))});
        }
        return ring;
    }

    Kind kind;
    std::mt19937 random;
};

} // namespace

void TestHolePlacement::aHoleInsideTwoRingsIsCutFromTheFirstOnly()
{
    PolygonChain chain;
    chain.addHole(square(4, 4, 2));
    chain.addOuter(square(0, 0, 10));
    chain.addOuter(square(1, 1, 8));
    QCOMPARE(placed(split(chain)), (QVector<QVector<int>>{{0}, {}}));
}

void TestHolePlacement::aHoleMustBeMoreThanTenSquareMetresSmaller_data()
{
    QTest::addColumn<double>("outerArea");
    QTest::addColumn<double>("holeArea");
    QTest::addColumn<bool>("cut");
    QTest::newRow("equal") << 4.0 << 4.0 << false;
    QTest::newRow("ten more") << 14.0 << 4.0 << false;
    QTest::newRow("a little over ten more") << std::nextafter(14.0, 15.0) << 4.0 << true;
    // Ten more than the hole rounds up to the outer ring's area: only the difference from that tells them apart.
    QTest::newRow("less than rounding over ten more") << 10.000000000000002 << 1e-15 << true;
    QTest::newRow("not a number") << std::nan("") << 4.0 << false;
}

void TestHolePlacement::aHoleMustBeMoreThanTenSquareMetresSmaller()
{
    QFETCH(double, outerArea);
    QFETCH(double, holeArea);
    QFETCH(bool, cut);
    PolygonChain chain;
    chain.addOuter(square(0, 0, 10)).area = outerArea;
    chain.addHole(square(4, 4, 2)).area = holeArea;
    QCOMPARE(placed(split(chain)).at(0).size(), cut ? 1 : 0);
}

void TestHolePlacement::aHoleWithOneVertexOutsideIsNotCut()
{
    PolygonChain chain;
    chain.addOuter(square(0, 0, 10));
    chain.addHole({{4, 4}, {6, 4}, {5, 10.5}});
    QCOMPARE(placed(split(chain)), (QVector<QVector<int>>{{}}));
}

void TestHolePlacement::aHoleWithoutVerticesIsPlacedNowhere()
{
    PolygonChain chain;
    chain.addOuter(square(0, 0, 10));
    chain.addHole({});
    QCOMPARE(placed(split(chain)), (QVector<QVector<int>>{{}}));
}

void TestHolePlacement::aRingWithoutAVertexArrayIsEmpty()
{
    PolygonChain chain;
    chain.addOuter(square(0, 0, 10)).vertices = nullptr;
    chain.addOuter(square(0, 0, 10));
    chain.addHole(square(4, 4, 2)).vertices = nullptr;
    chain.addHole(square(4, 4, 2));
    QCOMPARE(placed(split(chain)), (QVector<QVector<int>>{{}, {1}}));
}

void TestHolePlacement::aHoleWithAnImpossibleVertexCountIsPlacedNowhere_data()
{
    QTest::addColumn<quint32>("count");
    QTest::newRow("one more than an int holds") << 0x80000000U;
    QTest::newRow("the most there is") << 0xFFFFFFFFU;
}

void TestHolePlacement::aHoleWithAnImpossibleVertexCountIsPlacedNowhere()
{
    QFETCH(quint32, count);
    PolygonChain chain;
    chain.addOuter(square(0, 0, 10));
    chain.addHole(square(4, 4, 2)).vertexCount = count;
    chain.addHole(square(4, 4, 2));
    QCOMPARE(placed(split(chain)), (QVector<QVector<int>>{{1}}));
}

void TestHolePlacement::outersWithImpossibleVertexCountsDisturbNoOther_data()
{
    aHoleWithAnImpossibleVertexCountIsPlacedNowhere_data();
}

void TestHolePlacement::outersWithImpossibleVertexCountsDisturbNoOther()
{
    QFETCH(quint32, count);
    for (int rings = 1; rings <= 40; ++rings) {
        for (int good = 0; good <= rings; ++good) {
            PolygonChain chain;
            for (int ring = 0; ring <= rings; ++ring) {
                RX_POLYGON &outer = chain.addOuter(square(0, 0, 10));
                if (ring != good)
                    outer.vertexCount = count;
            }
            chain.addHole(square(4, 4, 2));
            QVector<QVector<int>> expected(rings + 1);
            expected[good] = {0};
            QCOMPARE(placed(split(chain)), expected);
        }
    }
}

void TestHolePlacement::aCrossingBeyondTheRingStillCounts()
{
    // The left edge's crossing, as computed, lies left of both of its ends: so does the hole, and yet it is inside.
    PolygonChain chain;
    chain
        .addOuter({{1.000000000000419, 1.9991116523742674},
                   {391864.6605272225, 4.4188206188761381},
                   {574593.80568556348, 1.1792931398958262}})
        .area = 1e6;
    chain.addHole({{1.0, static_cast<double>(1.99911165F)}}).area = 1.0;
    QCOMPARE(placed(split(chain)), (QVector<QVector<int>>{{0}}));
}

void TestHolePlacement::minuteHeightsArePlacedAsPlainly()
{
    // Heights below the smallest normal number: the edge arithmetic underflows.
    PolygonChain chain;
    chain
        .addOuter({{0.00042726980716363024, 8.0088041190866065e-321},
                   {3.3876405413944645e-292, 6.4475566782282674e-321},
                   {2.9267939010010183e-292, 0.0}})
        .area = 1e6;
    chain.addHole({{static_cast<double>(-7.8006251e-06F), 0.0}}).area = 1.0;
    const Rings rings = split(chain);
    QCOMPARE(placed(rings), plainPlacement(rings.outers, rings.holes));
}

void TestHolePlacement::holeCoordinatesAreNarrowedToFloat()
{
    // 16777217 is not a float: narrowed it becomes 16777216 and lies left of the ring.
    PolygonChain chain;
    chain.addOuter(square(16777216.5, 0, 10));
    chain.addHole({{16777217, 2}, {16777220, 2}, {16777220, 4}});
    QCOMPARE(placed(split(chain)), (QVector<QVector<int>>{{}}));
}

void TestHolePlacement::theFastWayEqualsThePlainOne_data()
{
    QTest::addColumn<double>("grid");
    QTest::addColumn<double>("offset");
    QTest::addColumn<bool>("oddValues");
    QTest::addColumn<bool>("nested");
    QTest::addColumn<double>("scale");
    QTest::newRow("tangles") << 0.0 << 0.0 << false << false << 1.0;
    QTest::newRow("tangles on a grid") << 2.0 << 0.0 << false << false << 1.0;
    QTest::newRow("tangles with odd values") << 1.0 << 0.0 << true << false << 1.0;
    QTest::newRow("nested") << 0.0 << 0.0 << false << true << 1.0;
    QTest::newRow("nested on a grid") << 1.0 << 0.0 << false << true << 1.0;
    QTest::newRow("nested far away") << 0.0 << 3.3e8 << false << true << 1.0;
    QTest::newRow("nested with odd values") << 0.0 << 0.0 << true << true << 1.0;
    QTest::newRow("nested and minute") << 0.0 << 0.0 << false << true << 1e-170;
}

void TestHolePlacement::theFastWayEqualsThePlainOne()
{
    QFETCH(double, grid);
    QFETCH(double, offset);
    QFETCH(bool, oddValues);
    QFETCH(bool, nested);
    QFETCH(double, scale);
    int cut = 0;
    for (unsigned int seed = 1; seed <= 1500; ++seed) {
        RandomMap map({grid, offset, oddValues, nested, scale}, seed);
        const Rings rings = split(map.chain);
        const QVector<QVector<int>> expected = plainPlacement(rings.outers, rings.holes);
        QCOMPARE(placed(rings), expected);
        for (const QVector<int> &here : expected)
            cut += here.size();
    }
    if (scale == 1.0)
        QVERIFY2(cut > 20, qPrintable(QString::number(cut)));
}

QTEST_APPLESS_MAIN(TestHolePlacement)
#include "tst_holeplacement.moc"
