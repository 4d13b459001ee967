#include "planesketch.h"
#include "ringrepair.h"
#include "testbase.h"

#include <cmath>
#include <random>

namespace {

/// A map already given in the plane.
RawPrescription mapOf(const std::vector<std::pair<PlaneRing, bool>> &rings)
{
    RawPrescription map;
    for (const auto &[ring, isHole] : rings) {
        map.rings.push_back({map.xs.size(), ring.size(), 3, isHole});
        for (const PlaneVertex &vertex : ring) {
            map.xs.push_back(vertex.x);
            map.ys.push_back(vertex.y);
        }
    }
    return map;
}

RingRepair::Outcome repair(const RawPrescription &map, double farthest = 1000.0)
{
    RingRepair::Outcome outcome;
    const RingRepair ringRepair(farthest);
    for (size_t ring = 0; ring < map.rings.size();)
        ring = ringRepair.append(map, map.xs, map.ys, ring, outcome);
    return outcome;
}

PlaneRing star(int count, std::mt19937 &random)
{
    std::uniform_real_distribution<double> radius(20.0, 100.0);
    PlaneRing ring;
    for (int i = 0; i < count; ++i) {
        const double angle = 2.0 * std::acos(-1.0) * i / count;
        const double r = radius(random);
        ring.push_back({r * std::cos(angle), r * std::sin(angle)});
    }
    return ring;
}

} // namespace

class RingRepairTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void choosesAGridThatSingleNumbersHold_data();
    void choosesAGridThatSingleNumbersHold();
    void leavesVerticesThatSingleNumbersHoldExactly();
    void takesTheNearestPlaceOfTheGrid();
    void takesAnOuterRingWithItsHoles();
    void dropsRepeatedVertices();
    void splitsARingThatCrossesItself();
    void splitsARingThatTouchesItself();
    void joinsAreasThatEdgesPartThatARingRunsAlongTwice();
    void countsAPolygonThatIsBrokenInTheFileOnly();
    void dropsRingsThatCollapse();
    void dropsRingsWithoutAPlace();
    void makesValidPolygonsOfRandomScribbles();
};

void RingRepairTest::choosesAGridThatSingleNumbersHold_data()
{
    QTest::addColumn<double>("farthest");
    QTest::addColumn<double>("grid");
    QTest::newRow("a field") << 300.0 << 1.0 / 1024;
    QTest::newRow("a farm") << 16000.0 << 1.0 / 1024;
    QTest::newRow("a county") << 17000.0 << 1.0 / 512;
    QTest::newRow("a region") << 237000.0 << 1.0 / 64;
}

void RingRepairTest::choosesAGridThatSingleNumbersHold()
{
    QFETCH(double, farthest);
    QFETCH(double, grid);
    QCOMPARE(RingRepair(farthest).grid(), grid);
    const double last = std::floor(farthest / grid) * grid - grid;
    QCOMPARE(static_cast<double>(static_cast<float>(last)), last);
}

void RingRepairTest::leavesVerticesThatSingleNumbersHoldExactly()
{
    std::mt19937 random(5);
    const RingRepair::Outcome outcome = repair(mapOf({{star(300, random), false}, {star(5, random), false}}));
    for (const PlanePolygon &polygon : outcome.polygons) {
        for (const PlaneVertex &vertex : polygon.outer) {
            QCOMPARE(static_cast<double>(static_cast<float>(vertex.x)), vertex.x);
            QCOMPARE(static_cast<double>(static_cast<float>(vertex.y)), vertex.y);
            QVERIFY(!(vertex.x == 0.0 && std::signbit(vertex.x)));
        }
    }
}

void RingRepairTest::takesTheNearestPlaceOfTheGrid()
{
    const RingRepair ringRepair(16000.0);
    const double grid = ringRepair.grid();
    std::mt19937 random(12);
    std::uniform_real_distribution<double> place(-16000.0, 16000.0);
    for (int i = 0; i < 2000; ++i) {
        // Every other corner lies exactly between two places of the grid.
        const double x = i % 2 == 0 ? place(random) : (std::floor(place(random)) + 0.5) * grid;
        const double y = i % 2 == 0 ? place(random) : (std::floor(place(random)) + 0.5) * grid;
        const RawPrescription map = mapOf({{{{x, y}, {x + 5.0, y}, {x, y + 5.0}}, false}});
        RingRepair::Outcome outcome;
        ringRepair.append(map, map.xs, map.ys, 0, outcome);
        QCOMPARE(outcome.polygons.size(), size_t(1));
        QCOMPARE(outcome.polygons[0].outer[0].x, std::nearbyint(x / grid) * grid);
        QCOMPARE(outcome.polygons[0].outer[0].y, std::nearbyint(y / grid) * grid);
    }
}

void RingRepairTest::takesAnOuterRingWithItsHoles()
{
    const RingRepair::Outcome outcome = repair(mapOf({{square(0, 0, 100), false},
                                                      {square(10, 10, 20), true},
                                                      {square(50, 50, 20), true},
                                                      {square(200, 0, 10), false}}));
    QCOMPARE(outcome.polygons.size(), size_t(2));
    QCOMPARE(outcome.polygons[0].holes.size(), size_t(2));
    QCOMPARE(outcome.polygons[1].holes.size(), size_t(0));
    QCOMPARE(outcome.polygons[1].record, 3);
    QCOMPARE(outcome.repaired.size(), size_t(0));
}

void RingRepairTest::dropsRepeatedVertices()
{
    const RingRepair::Outcome outcome =
        repair(mapOf({{{{0, 0}, {0, 0}, {10, 0}, {10, 0.0001}, {10, 10}, {0, 10}, {0, 0}}, false}}));
    QCOMPARE(outcome.polygons.size(), size_t(1));
    QCOMPARE(outcome.polygons[0].outer.size(), size_t(4));
    QCOMPARE(outcome.repaired.size(), size_t(0));
}

void RingRepairTest::splitsARingThatCrossesItself()
{
    const RingRepair::Outcome outcome = repair(mapOf({{{{0, 0}, {10, 10}, {10, 0}, {0, 10}}, false}}));
    QCOMPARE(outcome.polygons.size(), size_t(2));
    QCOMPARE(ringArea(outcome.polygons[0].outer) + ringArea(outcome.polygons[1].outer), 50.0);
    QCOMPARE(outcome.polygons[1].record, 3);
    QCOMPARE(outcome.repaired.size(), size_t(1));
}

void RingRepairTest::splitsARingThatTouchesItself()
{
    const RingRepair::Outcome outcome = repair(mapOf({{{{0, 0}, {5, 5}, {10, 0}, {10, 10}, {5, 5}, {0, 10}}, false}}));
    QCOMPARE(outcome.polygons.size(), size_t(2));
    QCOMPARE(outcome.repaired.size(), size_t(1));
    for (const PlanePolygon &polygon : outcome.polygons)
        QVERIFY(isSimpleRing(polygon.outer));
}

void RingRepairTest::joinsAreasThatEdgesPartThatARingRunsAlongTwice()
{
    // Out in a zigzag and back in another, over the same four cross edges: five squares in a row that stay together.
    const PlaneRing zigzag = {{0, 0},   {10, 0},  {10, 10}, {20, 10}, {20, 0},  {30, 0}, {30, 10},
                              {40, 10}, {40, 0},  {50, 0},  {50, 10}, {40, 10}, {40, 0}, {30, 0},
                              {30, 10}, {20, 10}, {20, 0},  {10, 0},  {10, 10}, {0, 10}};
    const RingRepair::Outcome outcome = repair(mapOf({{zigzag, false}, {zigzag, false}, {square(8, 3, 4), true}}));
    QCOMPARE(outcome.polygons.size(), size_t(2));
    for (const PlanePolygon &polygon : outcome.polygons)
        QCOMPARE(ringArea(polygon.outer), 500.0);
    QCOMPARE(outcome.polygons[1].holes.size(), size_t(1));
}

void RingRepairTest::countsAPolygonThatIsBrokenInTheFileOnly()
{
    // The notch is narrower than the grid, so it closes; the file itself is in order.
    const PlaneRing notched = {{0, 0}, {10, 0}, {10, 10}, {5.0001, 10}, {5.0001, 2}, {5, 2}, {5, 10}, {0, 10}};
    const RingRepair::Outcome outcome = repair(mapOf({{notched, false}}));
    QCOMPARE(outcome.repaired.size(), size_t(0));
    QCOMPARE(outcome.polygons.size(), size_t(1));
    QVERIFY(isSimpleRing(outcome.polygons[0].outer));
    // In the file this hole reaches out of its ring.
    QCOMPARE(repair(mapOf({{square(0, 0, 100), false}, {square(90, 40, 20), true}})).repaired.size(), size_t(1));
}

void RingRepairTest::dropsRingsThatCollapse()
{
    const RingRepair::Outcome outcome = repair(mapOf({{square(5, 5, 0.0001), false},
                                                      {{{0, 0}, {10, 10}, {5, 5}}, false},
                                                      {square(0, 0, 100), false},
                                                      {square(10, 10, 0.0001), true}}));
    QCOMPARE(outcome.polygons.size(), size_t(1));
    QVERIFY(outcome.polygons[0].holes.empty());
    QCOMPARE(outcome.dropped.size(), size_t(3));
}

void RingRepairTest::dropsRingsWithoutAPlace()
{
    RawPrescription map = mapOf({{square(0, 0, 100), false}});
    std::vector<double> xs = map.xs;
    xs[2] = HUGE_VAL;
    RingRepair::Outcome outcome;
    QCOMPARE(RingRepair(1000.0).append(map, xs, map.ys, 0, outcome), size_t(1));
    QVERIFY(outcome.polygons.empty());
    QCOMPARE(outcome.dropped.size(), size_t(1));
}

void RingRepairTest::makesValidPolygonsOfRandomScribbles()
{
    std::mt19937 random(99);
    std::uniform_real_distribution<double> place(-50.0, 50.0);
    const GeosContext geos;
    int repaired = 0;
    for (int round = 0; round < 60; ++round) {
        PlaneRing scribble;
        const int count = 3 + static_cast<int>(random() % 30);
        for (int i = 0; i < count; ++i)
            scribble.push_back({place(random), place(random)});
        const RingRepair::Outcome outcome = repair(mapOf({{scribble, false}}));
        repaired += int(outcome.repaired.size());
        for (const PlanePolygon &polygon : outcome.polygons)
            QVERIFY(geos.isValid(geos.polygon(polygon.outer, polygon.holes)));
    }
    QVERIFY(repaired > 40);
}

RXMAP_TEST(RingRepairTest, Core)
#include "tst_ringrepair.moc"
