#include "maphost.h"
#include "placement/outerring.h"
#include "testbase.h"

#include <cmath>
#include <limits>

using OrvikTypes::RX_POLYGON;

Q_DECLARE_METATYPE(Ring)

class TestOuterRing : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void theBoxHoldsTheRingAndALittleMore();
    void aRingWithOddCoordinatesIsNotOrdinary_data();
    void aRingWithOddCoordinatesIsNotOrdinary();
    void everyVertexMustBeInside_data();
    void everyVertexMustBeInside();
    void aHoleWithoutVerticesIsNotInside();
    void verticesAreNarrowedToFloat();
};

namespace {

/// Whether the ring contains the hole, asked first or after many other points.
bool contains(const Ring &ring, const Ring &hole, bool isFirst)
{
    HandMadeChain chain;
    OuterRing outer(chain.addOuter(ring));
    const RX_POLYGON &middle = chain.addHole(square(0, 0, 1));
    for (int i = 0; !isFirst && i < 100; ++i)
        outer.contains(middle);
    return outer.contains(chain.addHole(hole));
}

/// A ring of many vertices around the square from -50 to 50.
Ring manyVertices()
{
    Ring ring;
    for (int i = 0; i < 100; ++i)
        ring.push_back({i - 50.0, -50.0});
    for (int i = 0; i < 100; ++i)
        ring.push_back({50.0, i - 50.0});
    for (int i = 0; i < 100; ++i)
        ring.push_back({50.0 - i, 50.0});
    for (int i = 0; i < 100; ++i)
        ring.push_back({-50.0, 50.0 - i});
    return ring;
}

} // namespace

void TestOuterRing::theBoxHoldsTheRingAndALittleMore()
{
    HandMadeChain chain;
    const OuterRing outer(chain.addOuter(square(10, 20, 5)));
    QVERIFY(outer.isOrdinary());
    QVERIFY(outer.box().contains({10, 20, 15, 25}));
    QVERIFY(outer.box().minX < 10.0 && outer.box().maxX > 15.0);
    QVERIFY(Box({9.9999999, 20, 15.0000001, 25}).contains(outer.box()));
}

void TestOuterRing::aRingWithOddCoordinatesIsNotOrdinary_data()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::addColumn<bool>("ordinary");
    QTest::newRow("zero") << 0.0 << 0.0 << true;
    QTest::newRow("minute abscissa") << 5e-324 << 0.0 << true;
    QTest::newRow("not a number") << std::nan("") << 0.0 << false;
    QTest::newRow("height not a number") << 0.0 << std::nan("") << false;
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << 0.0 << false;
    QTest::newRow("huge") << 1e101 << 0.0 << false;
    QTest::newRow("huge height") << 0.0 << -1e101 << false;
    QTest::newRow("minute height") << 0.0 << 1e-200 << false;
}

void TestOuterRing::aRingWithOddCoordinatesIsNotOrdinary()
{
    QFETCH(double, x);
    QFETCH(double, y);
    QFETCH(bool, ordinary);
    HandMadeChain chain;
    const OuterRing outer(chain.addOuter({{0, 0}, {10, 0}, {x, y}}));
    QCOMPARE(outer.isOrdinary(), ordinary);
}

void TestOuterRing::everyVertexMustBeInside_data()
{
    QTest::addColumn<Ring>("hole");
    QTest::addColumn<bool>("inside");
    QTest::newRow("in the middle") << square(-1, -1, 2) << true;
    QTest::newRow("at the left edge") << square(-50, 0, 2) << true;
    QTest::newRow("at the right edge") << square(48, 0, 2) << false;
    QTest::newRow("at the top edge") << square(0, 48, 2) << false;
    QTest::newRow("one vertex outside") << Ring{{0, 0}, {10, 0}, {51, 5}} << false;
    QTest::newRow("first vertex outside") << Ring{{51, 5}, {0, 0}, {10, 0}} << false;
    QTest::newRow("across all of it") << square(-49, -49, 98) << true;
    QTest::newRow("beside it") << square(60, 60, 2) << false;
}

void TestOuterRing::everyVertexMustBeInside()
{
    QFETCH(Ring, hole);
    QFETCH(bool, inside);
    QCOMPARE(contains(manyVertices(), hole, true), inside);
    QCOMPARE(contains(manyVertices(), hole, false), inside);
    QCOMPARE(contains(square(-50, -50, 100), hole, false), inside);
}

void TestOuterRing::aHoleWithoutVerticesIsNotInside()
{
    QVERIFY(!contains(square(0, 0, 10), {}, true));
}

void TestOuterRing::verticesAreNarrowedToFloat()
{
    // A float cannot hold 16777217: narrowed it becomes 16777216 and lies left of the ring.
    QVERIFY(!contains(square(16777216.5, 0, 10), {{16777217, 2}, {16777220, 2}, {16777220, 4}}, true));
    QVERIFY(contains(square(16777216.5, 0, 10), {{16777218, 2}, {16777220, 2}, {16777220, 4}}, true));
}

RXMAP_TEST(TestOuterRing, None)
#include "tst_outerring.moc"
