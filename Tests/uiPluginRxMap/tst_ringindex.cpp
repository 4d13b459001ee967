#include "maphost.h"
#include "plainplacement.h"
#include "ringindex.h"
#include "ringtest.h"
#include "testbase.h"

#include <cmath>
#include <random>

Q_DECLARE_METATYPE(Ring)

class TestRingIndex : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void halfOpenEdgesOfTheUnitSquare_data();
    void halfOpenEdgesOfTheUnitSquare();
    void slopedEdgesToTheLastBit_data();
    void slopedEdgesToTheLastBit();
    void anEmptyRingHasNoInside();
    void theIndexAgreesWithAllEdgesTested_data();
    void theIndexAgreesWithAllEdgesTested();
};

void TestRingIndex::halfOpenEdgesOfTheUnitSquare_data()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::addColumn<bool>("expected");
    QTest::newRow("middle") << 0.5 << 0.5 << true;
    QTest::newRow("left edge") << 0.0 << 0.5 << true;
    QTest::newRow("right edge") << 1.0 << 0.5 << false;
    QTest::newRow("bottom edge") << 0.5 << 0.0 << true;
    QTest::newRow("top edge") << 0.5 << 1.0 << false;
    QTest::newRow("left bottom corner") << 0.0 << 0.0 << true;
    QTest::newRow("right top corner") << 1.0 << 1.0 << false;
    QTest::newRow("height of the top edge, outside") << -1.0 << 1.0 << false;
    QTest::newRow("not a number") << std::nan("") << 0.5 << false;
}

void TestRingIndex::halfOpenEdgesOfTheUnitSquare()
{
    QFETCH(double, x);
    QFETCH(double, y);
    QFETCH(bool, expected);
    const Ring unit = square(0, 0, 1);
    QCOMPARE(isInsideRing(unit.data(), 4, x, y), expected);
    QCOMPARE(RingIndex(unit.data(), 4).isInside(x, y), expected);
}

void TestRingIndex::slopedEdgesToTheLastBit_data()
{
    QTest::addColumn<Ring>("ring");
    QTest::addColumn<double>("x");
    QTest::addColumn<bool>("expected");
    const auto addAround = [](const char *edge, const Ring &ring, double crossing, bool isInsideOnTheLeft) {
        const double before = std::nextafter(crossing, -100.0);
        const double after = std::nextafter(crossing, 100.0);
        QTest::addRow("%s, one step left of it", edge) << ring << before << isInsideOnTheLeft;
        QTest::addRow("%s, on it", edge) << ring << crossing << !isInsideOnTheLeft;
        QTest::addRow("%s, one step right of it", edge) << ring << after << !isInsideOnTheLeft;
    };
    // At the height 1 these cross at 2 and at -2 exactly.
    const Ring even{{0, 0}, {8, 4}, {-8, 4}};
    addAround("right edge", even, 2.0, true);
    addAround("left edge", even, -2.0, false);
    addAround("right edge of the ring reversed", {even[2], even[1], even[0]}, 2.0, true);
    addAround("left edge of the ring reversed", {even[2], even[1], even[0]}, -2.0, false);
    // A third is no number of the machine's: computed from the edge's upper end, the last bit is another than from
    // its lower end. The edge is computed from the vertex where it arrives.
    addAround("edge that arrives above", {{0, 0}, {1, 3}, {-5, 3}}, 1.0 - 2.0 / 3.0, true);
    addAround("edge that arrives below", {{0, 0}, {-5, 3}, {1, 3}}, 1.0 / 3.0, true);
}

void TestRingIndex::slopedEdgesToTheLastBit()
{
    QFETCH(Ring, ring);
    QFETCH(double, x);
    QFETCH(bool, expected);
    const auto count = static_cast<int>(ring.size());
    QCOMPARE(isInsidePlainly(ring.data(), count, x, 1.0), expected);
    QCOMPARE(isInsideRing(ring.data(), count, x, 1.0), expected);
    QCOMPARE(RingIndex(ring.data(), count).isInside(x, 1.0), expected);
}

void TestRingIndex::anEmptyRingHasNoInside()
{
    QVERIFY(!isInsideRing(nullptr, 0, 0.0, 0.0));
}

void TestRingIndex::theIndexAgreesWithAllEdgesTested_data()
{
    QTest::addColumn<int>("vertices");
    QTest::addColumn<double>("grid");
    QTest::newRow("triangle") << 3 << 0.0;
    QTest::newRow("tangle of 40") << 40 << 0.0;
    QTest::newRow("tangle of 500") << 500 << 0.0;
    QTest::newRow("on a coarse grid") << 200 << 1.0;
    QTest::newRow("on a fine grid") << 200 << 0.125;
    QTest::newRow("flat") << 50 << 100.0;
}

void TestRingIndex::theIndexAgreesWithAllEdgesTested()
{
    QFETCH(int, vertices);
    QFETCH(double, grid);
    std::mt19937 random(20260401U + static_cast<unsigned int>(vertices));
    std::uniform_real_distribution<double> coordinate(-20.0, 20.0);
    auto next = [&] {
        const double value = coordinate(random);
        return grid > 0.0 ? std::round(value / grid) * grid : value;
    };
    int inside = 0;
    for (int map = 0; map < 40; ++map) {
        Ring ring(static_cast<std::size_t>(vertices));
        for (auto &vertex : ring)
            vertex = {next(), next()};
        const RingIndex index(ring.data(), vertices);
        for (int i = 0; i < 200; ++i) {
            // Every third point lies exactly on a vertex's height.
            const double x = next();
            const double y = i % 3 == 0 ? ring[static_cast<std::size_t>(i % vertices)].y : next();
            const bool expected = isInsidePlainly(ring.data(), vertices, x, y);
            QCOMPARE(isInsideRing(ring.data(), vertices, x, y), expected);
            QCOMPARE(index.isInside(x, y), expected);
            inside += expected ? 1 : 0;
        }
    }
    if (grid < 100.0)
        QVERIFY(inside > 100);
}

QTEST_APPLESS_MAIN(TestRingIndex)
#include "tst_ringindex.moc"
