#include "maphost.h"
#include "plainplacement.h"
#include "ringraster.h"
#include "ringtest.h"
#include "testbase.h"

#include <cmath>
#include <limits>
#include <random>

Q_DECLARE_METATYPE(Ring)

class TestRingRaster : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void halfOpenEdgesOfTheUnitSquare_data();
    void halfOpenEdgesOfTheUnitSquare();
    void slopedEdgesToTheLastBit_data();
    void slopedEdgesToTheLastBit();
    void anEmptyRingHasNoInside();
    void theRasterAgreesWithAllEdgesTested_data();
    void theRasterAgreesWithAllEdgesTested();
    void roundingBesideAnEdgeIsAnsweredAsPlainly_data();
    void roundingBesideAnEdgeIsAnsweredAsPlainly();
    void teethAsHighAsTheRing();
    void aCrossingComputedBesideItsEdgeCounts();
    void aClearBoxLiesOnOneSide_data();
    void aClearBoxLiesOnOneSide();
    void mostOfAWideRingIsClear();
};

/// A ring around the origin whose radius goes up and down, with as many vertices as the kind says.
static Ring wavyRing(int vertices, double radius, double wave)
{
    Ring ring;
    for (int i = 0; i < vertices; ++i) {
        const double angle = 6.28318530717958648 * i / vertices;
        const double reach = radius + wave * std::sin(37.0 * angle);
        ring.push_back({reach * std::cos(angle), reach * std::sin(angle)});
    }
    return ring;
}

void TestRingRaster::halfOpenEdgesOfTheUnitSquare_data()
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
    constexpr double infinity = std::numeric_limits<double>::infinity();
    QTest::newRow("not a number") << std::nan("") << 0.5 << false;
    QTest::newRow("no height") << 0.5 << std::nan("") << false;
    QTest::newRow("far west") << -infinity << 0.5 << false;
    QTest::newRow("far east") << infinity << 0.5 << false;
    QTest::newRow("far north") << 0.5 << infinity << false;
    QTest::newRow("far south") << 0.5 << -infinity << false;
    QTest::newRow("bottom edge, negative zero") << 0.5 << -0.0 << true;
    QTest::newRow("left bottom corner, negative zeros") << -0.0 << -0.0 << true;
}

void TestRingRaster::halfOpenEdgesOfTheUnitSquare()
{
    QFETCH(double, x);
    QFETCH(double, y);
    QFETCH(bool, expected);
    const Ring unit = square(0, 0, 1);
    QCOMPARE(isInsideRing(unit.data(), 4, x, y), expected);
    QCOMPARE(isInsideOrdinaryRing(unit.data(), 4, x, y), expected);
    QCOMPARE(RingRaster(unit.data(), 4, 1).isInside(x, y), expected);
}

void TestRingRaster::slopedEdgesToTheLastBit_data()
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

void TestRingRaster::slopedEdgesToTheLastBit()
{
    QFETCH(Ring, ring);
    QFETCH(double, x);
    QFETCH(bool, expected);
    const auto count = static_cast<int>(ring.size());
    QCOMPARE(isInsidePlainly(ring.data(), count, x, 1.0), expected);
    QCOMPARE(isInsideRing(ring.data(), count, x, 1.0), expected);
    QCOMPARE(isInsideOrdinaryRing(ring.data(), count, x, 1.0), expected);
    QCOMPARE(RingRaster(ring.data(), count, 1).isInside(x, 1.0), expected);
}

void TestRingRaster::anEmptyRingHasNoInside()
{
    QVERIFY(!isInsideRing(nullptr, 0, 0.0, 0.0));
}

void TestRingRaster::theRasterAgreesWithAllEdgesTested_data()
{
    QTest::addColumn<int>("vertices");
    QTest::addColumn<double>("grid");
    QTest::newRow("triangle") << 3 << 0.0;
    QTest::newRow("tangle of 40") << 40 << 0.0;
    QTest::newRow("tangle of 500") << 500 << 0.0;
    QTest::newRow("on a coarse grid") << 200 << 1.0;
    QTest::newRow("on a fine grid") << 200 << 0.125;
    QTest::newRow("flat") << 50 << 100.0;
    QTest::newRow("two vertices") << 2 << 0.0;
    QTest::newRow("one vertex") << 1 << 0.0;
}

void TestRingRaster::theRasterAgreesWithAllEdgesTested()
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
        RingRaster raster(ring.data(), vertices, 100);
        for (int i = 0; i < 200; ++i) {
            // Every third point lies exactly on a vertex's height.
            const double x = next();
            const double y = i % 3 == 0 ? ring[static_cast<std::size_t>(i % vertices)].y : next();
            const bool expected = isInsidePlainly(ring.data(), vertices, x, y);
            QCOMPARE(isInsideRing(ring.data(), vertices, x, y), expected);
            QCOMPARE(isInsideOrdinaryRing(ring.data(), vertices, x, y), expected);
            QCOMPARE(raster.isInside(x, y), expected);
            inside += expected ? 1 : 0;
        }
    }
    if (grid < 100.0 && vertices > 2)
        QVERIFY(inside > 100);
}

void TestRingRaster::roundingBesideAnEdgeIsAnsweredAsPlainly_data()
{
    QTest::addColumn<double>("offset");
    QTest::addColumn<double>("size");
    QTest::newRow("at the origin") << 0.0 << 10.0;
    QTest::newRow("far away") << 4.5e6 << 300.0;
    QTest::newRow("few numbers wide") << 4.5e6 << 2e-8;
    QTest::newRow("huge") << 0.0 << 1e99;
    QTest::newRow("minute") << 0.0 << 1e-150;
}

void TestRingRaster::roundingBesideAnEdgeIsAnsweredAsPlainly()
{
    QFETCH(double, offset);
    QFETCH(double, size);
    Ring ring = wavyRing(200, size, size / 5.0);
    for (auto &vertex : ring)
        vertex = {vertex.x + offset, vertex.y + offset};
    RingRaster raster(ring.data(), 200, 100);
    std::mt19937 random(3);
    for (int i = 0; i < 5000; ++i) {
        // A point of an edge, moved by a few of the machine's numbers or not at all.
        const auto edge = static_cast<std::size_t>(random() % 200);
        const double share = static_cast<double>(random() % 1000) / 1000.0;
        const auto &from = ring[edge];
        const auto &to = ring[(edge + 1) % 200];
        double x = from.x + (to.x - from.x) * share;
        const double y = from.y + (to.y - from.y) * share;
        for (unsigned int steps = random() % 8; steps > 0; --steps)
            x = std::nextafter(x, random() % 2 == 0 ? 1e300 : -1e300);
        if (raster.isInside(x, y) != isInsidePlainly(ring.data(), 200, x, y))
            QFAIL(qPrintable(QStringLiteral("%1, %2 is on the other side").arg(x, 0, 'g', 17).arg(y, 0, 'g', 17)));
    }
}

// Every edge but three is as long as the ring is high.
void TestRingRaster::teethAsHighAsTheRing()
{
    Ring ring{{0, -1}};
    for (int i = 0; i < 100; ++i) {
        ring.push_back({i + 0.5, 100.0});
        ring.push_back({i + 1.0, 0.0});
    }
    ring.push_back({100.0, -1.0});
    const auto count = static_cast<int>(ring.size());
    RingRaster raster(ring.data(), count, 100);
    std::mt19937 random(2);
    std::uniform_real_distribution<double> position(-2.0, 102.0);
    int inside = 0;
    for (int i = 0; i < 5000; ++i) {
        const double x = position(random);
        const double y = position(random);
        const bool expected = isInsidePlainly(ring.data(), count, x, y);
        QCOMPARE(raster.isInside(x, y), expected);
        inside += expected ? 1 : 0;
    }
    QVERIFY(inside > 1000);
}

// An edge that starts at the tip of a spike, at x = 1024 / k, arrives at x = 1024: just above the tip its crossing is
// computed left of the tip, by the rounding of the larger number. Cells end at such abscissas, so that it may come to
// lie in another cell than the whole edge.
void TestRingRaster::aCrossingComputedBesideItsEdgeCounts()
{
    int beside = 0;
    for (int steps = 4; steps < 120; ++steps) {
        for (int part = 2; part < 24; ++part) {
            const double tip = 1024.0 / part;
            Ring ring;
            for (int i = 0; i <= steps; ++i)
                ring.push_back({1024.0 * i / steps, 0.0});
            ring.insert(ring.end(), {{1024.0, 500.0}, {tip, 512.0}, {1024.0, 523.0}});
            for (int i = steps; i >= 0; --i)
                ring.push_back({1024.0 * i / steps, 1024.0});
            const auto count = static_cast<int>(ring.size());
            RingRaster raster(ring.data(), count, 100);
            double y = 512.0;
            for (int up = 0; up < 4; ++up) {
                double x = tip;
                for (int left = 0; left < 8; ++left) {
                    const bool expected = isInsidePlainly(ring.data(), count, x, y);
                    beside += expected ? 0 : 1;
                    QCOMPARE(raster.isInside(x, y), expected);
                    x = std::nextafter(x, 0.0);
                }
                y = std::nextafter(y, 1024.0);
            }
        }
    }
    QVERIFY2(beside > 100, qPrintable(QString::number(beside)));
}

void TestRingRaster::aClearBoxLiesOnOneSide_data()
{
    QTest::addColumn<Ring>("ring");
    QTest::newRow("wavy") << wavyRing(3000, 100.0, 12.0);
    QTest::newRow("wavy and coarse") << wavyRing(300, 100.0, 12.0);
    QTest::newRow("spiky") << wavyRing(400, 60.0, 59.0);
}

void TestRingRaster::aClearBoxLiesOnOneSide()
{
    QFETCH(Ring, ring);
    const auto count = static_cast<int>(ring.size());
    RingRaster raster(ring.data(), count, 100);
    std::mt19937 random(9);
    std::uniform_real_distribution<double> position(-120.0, 120.0);
    std::uniform_real_distribution<double> length(0.0, 4.0);
    int clear = 0;
    for (int i = 0; i < 2000; ++i) {
        Box box{position(random), position(random), 0.0, 0.0};
        box.maxX = box.minX + length(random);
        box.maxY = box.minY + length(random);
        if (!raster.isClear(box))
            continue;
        ++clear;
        const bool side = isInsidePlainly(ring.data(), count, box.minX, box.minY);
        for (int j = 0; j < 8; ++j) {
            const double x = box.minX + (box.maxX - box.minX) * (j % 4) / 3.0;
            const double y = box.minY + (box.maxY - box.minY) * (j / 4);
            if (isInsidePlainly(ring.data(), count, x, y) != side || raster.isInside(x, y) != side)
                QFAIL(qPrintable(QStringLiteral("%1, %2 is on the other side").arg(x).arg(y)));
        }
    }
    QVERIFY2(clear > 200, qPrintable(QString::number(clear)));
}

void TestRingRaster::mostOfAWideRingIsClear()
{
    const Ring ring = wavyRing(20000, 1000.0, 20.0);
    const RingRaster raster(ring.data(), 20000, 100);
    std::mt19937 random(4);
    std::uniform_real_distribution<double> position(-600.0, 600.0);
    for (int i = 0; i < 1000; ++i) {
        const double x = position(random);
        const double y = position(random);
        QVERIFY(raster.isClear({x, y, x + 5.0, y + 5.0}));
    }
    QVERIFY(!raster.isClear({-1100.0, 0.0, -900.0, 1.0}));
    // Too wide to be looked through.
    QVERIFY(!raster.isClear({-500.0, -500.0, 500.0, 500.0}));
}

RXMAP_TEST(TestRingRaster, None)
#include "tst_ringraster.moc"
