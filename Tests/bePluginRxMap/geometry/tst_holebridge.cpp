#include "holebridge.h"
#include "planesketch.h"
#include "slabindex.h"
#include "testbase.h"

#include <cmath>
#include <random>

namespace {

bool covers(const PlanePolygon &polygon, double x, double y)
{
    bool inside = SlabIndex(polygon.outer.data(), polygon.outer.size()).contains(x, y, SharedEdgeCrossing());
    for (const PlaneRing &hole : polygon.holes)
        inside ^= SlabIndex(hole.data(), hole.size()).contains(x, y, SharedEdgeCrossing());
    return inside;
}

/// Whether two polygons cover the same points of the square from (0, 0) to (100, 100).
bool coverTheSame(const PlanePolygon &a, const PlanePolygon &b)
{
    std::mt19937 random(3);
    std::uniform_real_distribution<double> place(-5.0, 105.0);
    for (int i = 0; i < 3000; ++i) {
        const double x = i % 2 == 0 ? std::round(place(random)) : place(random);
        const double y = i % 2 == 0 ? std::round(place(random)) : place(random);
        if (covers(a, x, y) != covers(b, x, y))
            return false;
    }
    return true;
}

} // namespace

class HoleBridgeTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void joinsAHole_data();
    void joinsAHole();
    void joinsManyHolesOneAfterTheOther();
    void goesAroundOtherHoles();
    void goesAroundAHoleInTheShortestWay();
    void changesNothingWhereThereIsNoWay();
};

void HoleBridgeTest::joinsAHole_data()
{
    QTest::addColumn<QVector<QPointF>>("hole");
    QTest::addColumn<int>("vertices");
    QTest::newRow("free") << QVector<QPointF>{{40, 40}, {60, 40}, {60, 60}, {40, 60}} << 4 + 4 + 2;
    QTest::newRow("free, running the same way")
        << QVector<QPointF>{{40, 40}, {40, 60}, {60, 60}, {60, 40}} << 4 + 4 + 2;
    QTest::newRow("touching a corner") << QVector<QPointF>{{100, 100}, {60, 90}, {60, 60}, {90, 60}} << 4 + 4;
    QTest::newRow("touching the east edge") << QVector<QPointF>{{100, 50}, {50, 80}, {50, 20}} << 5 + 3;
    QTest::newRow("touching the west edge") << QVector<QPointF>{{0, 50}, {50, 80}, {50, 20}} << 5 + 3;
    QTest::newRow("touching the north edge") << QVector<QPointF>{{50, 100}, {80, 50}, {20, 50}} << 5 + 3;
    QTest::newRow("touching the south edge") << QVector<QPointF>{{50, 0}, {80, 50}, {20, 50}} << 5 + 3;
}

void HoleBridgeTest::joinsAHole()
{
    QFETCH(QVector<QPointF>, hole);
    QFETCH(int, vertices);
    PlanePolygon polygon;
    polygon.outer = square(0, 0, 100);
    polygon.holes.resize(1);
    for (const QPointF &vertex : hole)
        polygon.holes[0].push_back({vertex.x(), vertex.y()});
    const PlanePolygon before = polygon;
    QVERIFY(HoleBridge::join(polygon, 0));
    QVERIFY(polygon.holes.empty());
    QCOMPARE(polygon.outer.size(), size_t(vertices));
    QCOMPARE(ringArea(polygon.outer), 10000.0 - ringArea(before.holes[0]));
    QVERIFY(coverTheSame(polygon, before));
}

void HoleBridgeTest::joinsManyHolesOneAfterTheOther()
{
    PlanePolygon polygon;
    polygon.outer = square(0, 0, 100);
    for (int i = 0; i < 36; ++i)
        polygon.holes.push_back(square(2.0 + 16 * (i % 6), 2.0 + 16 * (i / 6), 14));
    const PlanePolygon before = polygon;
    while (!polygon.holes.empty())
        QVERIFY(HoleBridge::join(polygon, polygon.holes.size() / 2));
    QCOMPARE(ringArea(polygon.outer), 10000.0 - 36 * 196.0);
    QVERIFY(coverTheSame(polygon, before));
}

void HoleBridgeTest::goesAroundOtherHoles()
{
    // The hole in the middle lies behind four others, which block the straight ways to the corners.
    PlanePolygon polygon;
    polygon.outer = square(0, 0, 100);
    polygon.holes = {square(45, 45, 10),
                     {{20, 20}, {40, 20}, {20, 40}},
                     {{80, 20}, {80, 40}, {60, 20}},
                     {{80, 80}, {60, 80}, {80, 60}}};
    const PlanePolygon before = polygon;
    QVERIFY(HoleBridge::join(polygon, 0));
    QCOMPARE(polygon.holes.size(), size_t(3));
    QVERIFY(coverTheSame(polygon, before));
    const auto usesCorner = [&polygon](const PlaneVertex &corner) {
        return std::count_if(polygon.outer.begin(), polygon.outer.end(),
                             [&corner](const PlaneVertex &vertex) { return samePlace(vertex, corner); })
            == 2;
    };
    QVERIFY(usesCorner({0, 100}));
}

void HoleBridgeTest::goesAroundAHoleInTheShortestWay()
{
    // Half a metre from the corner, with a slit in between.
    PlanePolygon polygon;
    polygon.outer = square(0, 0, 100);
    polygon.holes = {{{0.5, 0.5}, {40, 30}, {30, 40}}, {{0.5, 0.1}, {0.1, 0.5}, {0.1, 0.4}, {0.4, 0.1}}};
    QVERIFY(HoleBridge::join(polygon, 0));
    QVERIFY(!std::any_of(polygon.outer.begin() + 1, polygon.outer.end(), [](const PlaneVertex &vertex) {
        return samePlace(vertex, {0, 0});
    }));
    QCOMPARE(polygon.holes.size(), size_t(1));
}

void HoleBridgeTest::changesNothingWhereThereIsNoWay()
{
    // A hole within a hole: every way to the outer ring crosses the hole around it.
    PlanePolygon polygon;
    polygon.outer = square(0, 0, 100);
    polygon.holes = {square(20, 20, 60), square(40, 40, 20)};
    QVERIFY(!HoleBridge::join(polygon, 1));
    QCOMPARE(polygon.outer.size(), size_t(4));
    QCOMPARE(polygon.holes.size(), size_t(2));
}

RXMAP_TEST(HoleBridgeTest, Core)
#include "tst_holebridge.moc"
