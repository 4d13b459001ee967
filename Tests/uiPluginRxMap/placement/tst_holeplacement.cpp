#include "handmadechain.h"
#include "placedholes.h"
#include "referenceplacement.h"
#include "testbase.h"

#include <cmath>
#include <limits>

using OrvikTypes::RX_POLYGON;

class TestHolePlacement : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void aHoleInsideTwoRingsIsCutFromTheFirstOnly();
    void aHoleMustBeMoreThanTenSquareMetresSmaller_data();
    void aHoleMustBeMoreThanTenSquareMetresSmaller();
    void aHoleWithAVertexThatIsNotFiniteIsNotCut_data();
    void aHoleWithAVertexThatIsNotFiniteIsNotCut();
    void aHoleWithOneVertexOutsideIsNotCut();
    void aHoleWithoutVerticesIsPlacedNowhere();
    void aRingWithoutAVertexArrayIsEmpty();
    void aHoleWithAnImpossibleVertexCountIsPlacedNowhere_data();
    void aHoleWithAnImpossibleVertexCountIsPlacedNowhere();
    void outersWithImpossibleVertexCountsDisturbNoOther_data();
    void outersWithImpossibleVertexCountsDisturbNoOther();
    void aCrossingBeyondTheRingStillCounts();
    void minuteHeightsArePlacedAsByTheReference();
    void holeCoordinatesAreNarrowedToFloat();
    void aSideThatNarrowingMovesInsideIsInside();
};

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

Ring circle(int vertices, double radius)
{
    Ring ring;
    for (int i = 0; i < vertices; ++i) {
        const double angle = 6.28318530717958648 * i / vertices;
        ring.push_back({radius * std::cos(angle), radius * std::sin(angle)});
    }
    return ring;
}

} // namespace

void TestHolePlacement::aHoleInsideTwoRingsIsCutFromTheFirstOnly()
{
    HandMadeChain chain;
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
    // The hole's area plus ten rounds to the outer ring's area: only their difference tells the two apart.
    QTest::newRow("less than rounding over ten more") << 10.000000000000002 << 1e-15 << true;
    QTest::newRow("not a number") << std::nan("") << 4.0 << false;
    QTest::newRow("a hole that is not a number large") << 100.0 << std::nan("") << false;
    QTest::newRow("both not a number") << std::nan("") << std::nan("") << false;
    QTest::newRow("infinite") << infinity << 4.0 << true;
    QTest::newRow("an infinite hole") << 100.0 << infinity << false;
    QTest::newRow("both infinite") << infinity << infinity << false;
    QTest::newRow("less than any number") << -infinity << 4.0 << false;
    QTest::newRow("a hole less than any number") << 4.0 << -infinity << true;
    QTest::newRow("both less than any number") << -infinity << -infinity << false;
}

void TestHolePlacement::aHoleMustBeMoreThanTenSquareMetresSmaller()
{
    QFETCH(double, outerArea);
    QFETCH(double, holeArea);
    QFETCH(bool, cut);
    // Without its left edge a ring still contains everything to the left of its right edge.
    Ring withoutLeftEdge = square(0, 0, 10);
    withoutLeftEdge.push_back({std::nan(""), 5});
    for (const Ring &outer : {square(0, 0, 10), withoutLeftEdge}) {
        HandMadeChain chain;
        chain.addOuter(outer).area = outerArea;
        chain.addHole(square(4, 4, 2)).area = holeArea;
        QCOMPARE(placed(split(chain)).at(0).size(), cut ? 1 : 0);
        // Now with a second hole as well, for which the ring is certainly large enough, though it lies elsewhere.
        chain.addHole(square(40, 40, 2)).area = -1e300;
        QCOMPARE(placed(split(chain)).at(0).size(), cut ? 1 : 0);
    }
}

void TestHolePlacement::aHoleWithAVertexThatIsNotFiniteIsNotCut_data()
{
    QTest::addColumn<double>("coordinate");
    QTest::newRow("not a number") << std::nan("");
    QTest::newRow("infinite") << infinity;
    QTest::newRow("infinite to the left") << -infinity;
    QTest::newRow("infinite once narrowed") << 1e39;
}

void TestHolePlacement::aHoleWithAVertexThatIsNotFiniteIsNotCut()
{
    QFETCH(double, coordinate);
    // Few vertices are tested edge by edge, many against rows of edges.
    for (const int vertices : {4, 60}) {
        for (const int odd : {0, vertices / 2, vertices - 1}) {
            for (const bool isHeight : {false, true}) {
                Ring hole = circle(vertices, 10.0);
                (isHeight ? hole[static_cast<std::size_t>(odd)].y : hole[static_cast<std::size_t>(odd)].x) = coordinate;
                HandMadeChain chain;
                chain.addOuter(circle(vertices, 100.0));
                chain.addHole(hole).area = 1.0;
                chain.addHole(circle(vertices, 10.0));
                QCOMPARE(placed(split(chain)), (QVector<QVector<int>>{{1}}));
            }
        }
    }
}

void TestHolePlacement::aHoleWithOneVertexOutsideIsNotCut()
{
    HandMadeChain chain;
    chain.addOuter(square(0, 0, 10));
    chain.addHole({{4, 4}, {6, 4}, {5, 10.5}});
    QCOMPARE(placed(split(chain)), (QVector<QVector<int>>{{}}));
}

void TestHolePlacement::aHoleWithoutVerticesIsPlacedNowhere()
{
    HandMadeChain chain;
    chain.addOuter(square(0, 0, 10));
    chain.addHole({});
    QCOMPARE(placed(split(chain)), (QVector<QVector<int>>{{}}));
}

void TestHolePlacement::aRingWithoutAVertexArrayIsEmpty()
{
    HandMadeChain chain;
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
    HandMadeChain chain;
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
            HandMadeChain chain;
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
    // The crossing with the left edge is computed to be left of both of its ends: so is the hole, and yet it is inside.
    HandMadeChain chain;
    chain
        .addOuter({{1.000000000000419, 1.9991116523742674},
                   {391864.6605272225, 4.4188206188761381},
                   {574593.80568556348, 1.1792931398958262}})
        .area = 1e6;
    chain.addHole({{1.0, static_cast<double>(1.99911165F)}}).area = 1.0;
    QCOMPARE(placed(split(chain)), (QVector<QVector<int>>{{0}}));
}

void TestHolePlacement::minuteHeightsArePlacedAsByTheReference()
{
    // Heights below the smallest normal number: the edge arithmetic underflows.
    HandMadeChain chain;
    chain
        .addOuter({{0.00042726980716363024, 8.0088041190866065e-321},
                   {3.3876405413944645e-292, 6.4475566782282674e-321},
                   {2.9267939010010183e-292, 0.0}})
        .area = 1e6;
    chain.addHole({{static_cast<double>(-7.8006251e-06F), 0.0}}).area = 1.0;
    const RingLists rings = split(chain);
    QCOMPARE(placed(rings), referencePlacement(rings.outers, rings.holes));
}

void TestHolePlacement::holeCoordinatesAreNarrowedToFloat()
{
    // A float cannot hold 16777217: narrowed it becomes 16777216 and lies left of the ring.
    HandMadeChain chain;
    chain.addOuter(square(16777216.5, 0, 10));
    chain.addHole({{16777217, 2}, {16777220, 2}, {16777220, 4}});
    QCOMPARE(placed(split(chain)), (QVector<QVector<int>>{{}}));
}

void TestHolePlacement::aSideThatNarrowingMovesInsideIsInside()
{
    // A point on the right edge is outside; but 100.1 narrows to a little less, left of the edge.
    HandMadeChain chain;
    chain.addOuter(square(0.1, 0.1, 100.0));
    chain.addHole({{90.0, 40.0}, {100.1, 40.0}, {100.1, 50.0}, {90.0, 50.0}});
    QCOMPARE(placed(split(chain)), (QVector<QVector<int>>{{0}}));
}

RXMAP_TEST(TestHolePlacement, None)
#include "tst_holeplacement.moc"
