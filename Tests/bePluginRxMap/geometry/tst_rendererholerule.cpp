#include "planesketch.h"
#include "rendererholerule.h"
#include "testbase.h"

namespace {

std::vector<RingView> outersOf(const std::vector<PlaneRing> &rings)
{
    std::vector<RingView> outers;
    for (const PlaneRing &ring : rings)
        outers.push_back({ring.data(), ring.size(), ringArea(ring)});
    return outers;
}

} // namespace

class RendererHoleRuleTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void takesTheFirstRingThatHoldsTheHole();
    void takesNoRingThatIsTooLittleLarger_data();
    void takesNoRingThatIsTooLittleLarger();
    void takesNoRingThatAVertexLiesOutsideOf();
    void looksAtTheVerticesAsSingleNumbers();
    void takesAHoleThatSingleNumbersMoveInside();
    void takesNoHoleWithoutVertices();
};

void RendererHoleRuleTest::takesTheFirstRingThatHoldsTheHole()
{
    const std::vector<PlaneRing> rings = {square(200, 200, 50), square(0, 0, 100), square(-10, -10, 120)};
    const RendererHoleRule takers(outersOf(rings));
    const PlaneRing hole = square(20, 20, 10);
    QCOMPARE(takers.takers(hole.data(), hole.size(), 100.0), std::vector<int>({1, 2}));
    QCOMPARE(takers.taker(hole.data(), hole.size(), 100.0), 1);
    const PlaneRing elsewhere = square(500, 20, 10);
    QCOMPARE(takers.taker(elsewhere.data(), elsewhere.size(), 100.0), int(RendererHoleRule::nowhere));
}

void RendererHoleRuleTest::takesNoRingThatIsTooLittleLarger_data()
{
    QTest::addColumn<double>("area");
    QTest::addColumn<bool>("taken");
    QTest::newRow("eleven less") << 89.0 << true;
    QTest::newRow("ten less") << 90.0 << false;
    QTest::newRow("five less") << 95.0 << false;
}

void RendererHoleRuleTest::takesNoRingThatIsTooLittleLarger()
{
    QFETCH(double, area);
    QFETCH(bool, taken);
    const std::vector<PlaneRing> rings = {square(0, 0, 10)};
    const RendererHoleRule takers(outersOf(rings));
    const PlaneRing hole = square(1, 1, 8);
    QCOMPARE(takers.taker(hole.data(), hole.size(), area) == 0, taken);
}

void RendererHoleRuleTest::takesNoRingThatAVertexLiesOutsideOf()
{
    const std::vector<PlaneRing> rings = {{{0, 0}, {100, 0}, {100, 100}, {50, 20}, {0, 100}}};
    const RendererHoleRule takers(outersOf(rings));
    const PlaneRing across = {{10, 10}, {90, 10}, {50, 50}};
    QCOMPARE(takers.taker(across.data(), across.size(), 10.0), int(RendererHoleRule::nowhere));
    // A point on the left or lower edge is inside, one on the right or upper edge outside.
    const PlaneRing onLeft = {{0, 10}, {10, 10}, {10, 20}};
    QCOMPARE(takers.taker(onLeft.data(), onLeft.size(), 10.0), 0);
    const PlaneRing onRight = {{100, 10}, {90, 10}, {90, 20}};
    QCOMPARE(takers.taker(onRight.data(), onRight.size(), 10.0), int(RendererHoleRule::nowhere));
}

void RendererHoleRuleTest::looksAtTheVerticesAsSingleNumbers()
{
    // Single precision has no 16777217; it becomes 16777216, which is outside.
    const std::vector<PlaneRing> rings = {square(16777216.5, 0, 100)};
    const RendererHoleRule takers(outersOf(rings));
    const PlaneRing hole = {{16777217, 10}, {16777220, 10}, {16777220, 20}};
    QCOMPARE(takers.taker(hole.data(), hole.size(), 10.0), int(RendererHoleRule::nowhere));
    const PlaneRing other = {{16777218, 10}, {16777220, 10}, {16777220, 20}};
    QCOMPARE(takers.taker(other.data(), other.size(), 10.0), 0);
}

void RendererHoleRuleTest::takesAHoleThatSingleNumbersMoveInside()
{
    // A point on the right edge is outside; in single precision 100.1 becomes a little less.
    const std::vector<PlaneRing> rings = {square(0.1, 0.1, 100)};
    const RendererHoleRule takers(outersOf(rings));
    const PlaneRing hole = {{90, 40}, {100.1, 40}, {100.1, 50}, {90, 50}};
    QCOMPARE(takers.taker(hole.data(), hole.size(), 100.0), 0);
}

void RendererHoleRuleTest::takesNoHoleWithoutVertices()
{
    const std::vector<PlaneRing> rings = {square(0, 0, 100)};
    QCOMPARE(RendererHoleRule(outersOf(rings)).taker(nullptr, 0, 0.0), int(RendererHoleRule::nowhere));
    QVERIFY(RendererHoleRule({}).takers(rings[0].data(), 4, 0.0).empty());
}

RXMAP_TEST(RendererHoleRuleTest, Core)
#include "tst_rendererholerule.moc"
