#include "slabindex.h"
#include "testbase.h"

#include <cmath>
#include <limits>
#include <random>

namespace {

/// The rule written down a second time, edge by edge.
bool isInside(const PlaneRing &ring, double x, double y)
{
    bool inside = false;
    for (size_t i = 0, j = ring.size() - 1; i < ring.size(); j = i++) {
        const bool counts = (ring[i].y <= y && y < ring[j].y) || (ring[j].y <= y && y < ring[i].y);
        if (counts && (ring[j].x - ring[i].x) * (y - ring[i].y) / (ring[j].y - ring[i].y) + ring[i].x > x)
            inside = !inside;
    }
    return inside;
}

/// A star with `count` vertices, which is a simple ring.
PlaneRing star(size_t count, std::mt19937 &random)
{
    std::uniform_real_distribution<double> radius(20.0, 100.0);
    PlaneRing ring;
    for (size_t i = 0; i < count; ++i) {
        const double angle = 2.0 * std::acos(-1.0) * static_cast<double>(i) / static_cast<double>(count);
        const double r = radius(random);
        ring.push_back({r * std::cos(angle), r * std::sin(angle)});
    }
    return ring;
}

template <typename Crossing> bool contains(const PlaneRing &ring, double x, double y, Crossing crossing)
{
    return SlabIndex(ring.data(), ring.size()).contains(x, y, crossing);
}

} // namespace

class SlabIndexTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void takesInLeftAndLowerEdgesOnly_data();
    void takesInLeftAndLowerEdgesOnly();
    void holdsNothingWithoutVertices();
    void holdsNoPointThatIsNone();
    void agreesWithTheRuleForRingsOfAnyLength_data();
    void agreesWithTheRuleForRingsOfAnyLength();
    void givesAPointOnASharedEdgeToOneSide();
};

void SlabIndexTest::takesInLeftAndLowerEdgesOnly_data()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::addColumn<bool>("inside");
    QTest::newRow("middle") << 0.5 << 0.5 << true;
    QTest::newRow("left edge") << 0.0 << 0.5 << true;
    QTest::newRow("right edge") << 1.0 << 0.5 << false;
    QTest::newRow("lower edge") << 0.5 << 0.0 << true;
    QTest::newRow("upper edge") << 0.5 << 1.0 << false;
    QTest::newRow("lower left corner") << 0.0 << 0.0 << true;
    QTest::newRow("lower right corner") << 1.0 << 0.0 << false;
    QTest::newRow("upper left corner") << 0.0 << 1.0 << false;
    QTest::newRow("outside") << -0.5 << 0.5 << false;
}

void SlabIndexTest::takesInLeftAndLowerEdgesOnly()
{
    QFETCH(double, x);
    QFETCH(double, y);
    QFETCH(bool, inside);
    const PlaneRing square = {{0, 0}, {1, 0}, {1, 1}, {0, 1}};
    QCOMPARE(contains(square, x, y, RendererCrossing()), inside);
    QCOMPARE(contains(square, x, y, SharedEdgeCrossing()), inside);
}

void SlabIndexTest::holdsNothingWithoutVertices()
{
    QVERIFY(!contains({}, 0.0, 0.0, RendererCrossing()));
    QVERIFY(!contains({{0, 0}}, 0.0, 0.0, RendererCrossing()));
}

void SlabIndexTest::holdsNoPointThatIsNone()
{
    std::mt19937 random(1);
    const double infinite = std::numeric_limits<double>::infinity();
    for (const size_t count : {4U, 400U}) {
        const PlaneRing ring = star(count, random);
        QVERIFY(contains(ring, 0.0, 0.0, SharedEdgeCrossing()));
        QVERIFY(!contains(ring, std::nan(""), 0.0, SharedEdgeCrossing()));
        QVERIFY(!contains(ring, 0.0, std::nan(""), SharedEdgeCrossing()));
        QVERIFY(!contains(ring, infinite, 0.0, SharedEdgeCrossing()));
        QVERIFY(!contains(ring, 0.0, -infinite, SharedEdgeCrossing()));
    }
}

void SlabIndexTest::agreesWithTheRuleForRingsOfAnyLength_data()
{
    QTest::addColumn<int>("count");
    for (const int count : {3, 7, 47, 48, 49, 1000, 20000})
        QTest::newRow(qPrintable(QString::number(count))) << count;
}

void SlabIndexTest::agreesWithTheRuleForRingsOfAnyLength()
{
    QFETCH(int, count);
    std::mt19937 random(static_cast<unsigned>(count));
    std::uniform_real_distribution<double> place(-110.0, 110.0);
    const PlaneRing ring = star(static_cast<size_t>(count), random);
    const SlabIndex index(ring.data(), ring.size());
    int inside = 0;
    for (int i = 0; i < 2000; ++i) {
        // Every third point is level with a vertex.
        const double x = place(random);
        const double y = i % 3 == 0 ? ring[random() % ring.size()].y : place(random);
        QCOMPARE(index.contains(x, y, RendererCrossing()), isInside(ring, x, y));
        inside += isInside(ring, x, y) ? 1 : 0;
    }
    QVERIFY(inside > 20 && inside < 1980);
}

void SlabIndexTest::givesAPointOnASharedEdgeToOneSide()
{
    std::mt19937 random(7);
    std::uniform_real_distribution<double> place(-1000.0, 1000.0);
    std::uniform_real_distribution<double> share(0.0, 1.0);
    int left = 0;
    for (int i = 0; i < 20000; ++i) {
        const PlaneVertex a = {place(random), place(random)};
        const PlaneVertex b = {place(random), place(random)};
        const PlaneVertex c = {a.x - (b.y - a.y), a.y + (b.x - a.x)};
        const PlaneVertex d = {a.x + (b.y - a.y), a.y - (b.x - a.x)};
        const double t = share(random);
        const double x = a.x + t * (b.x - a.x);
        const double y = a.y + t * (b.y - a.y);
        const bool inFirst = contains({a, b, c}, x, y, SharedEdgeCrossing());
        const bool inSecond = contains({b, a, d}, x, y, SharedEdgeCrossing());
        QVERIFY(inFirst != inSecond);
        left += inFirst ? 1 : 0;
    }
    QVERIFY(left > 1000 && left < 19000);
}

RXMAP_TEST(SlabIndexTest, Core)
#include "tst_slabindex.moc"
