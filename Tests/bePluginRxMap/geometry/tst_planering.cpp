#include "planering.h"
#include "testbase.h"

#include <algorithm>
#include <random>

Q_DECLARE_METATYPE(PlaneRing)

class PlaneRingTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void measuresAreaWithItsDirection();
    void measuresAreaFarFromTheOriginExactly();
    void dropsRepeatedAndClosingVertices();
    void leavesTooFewVerticesOfARingThatEnclosesNothing();
    void seesWhereSegmentsMeet_data();
    void seesWhereSegmentsMeet();
    void knowsSimpleRings_data();
    void knowsSimpleRings();
    void knowsConvexRings_data();
    void knowsConvexRings();
    void takesNoRingForConvexThatIsNotSimple();
};

void PlaneRingTest::measuresAreaWithItsDirection()
{
    PlaneRing square = {{0, 0}, {10, 0}, {10, 10}, {0, 10}};
    QCOMPARE(signedArea(square), 100.0);
    std::reverse(square.begin(), square.end());
    QCOMPARE(signedArea(square), -100.0);
    QCOMPARE(ringArea(square), 100.0);
    QCOMPARE(ringArea({{0, 0}, {1, 1}}), 0.0);
}

void PlaneRingTest::measuresAreaFarFromTheOriginExactly()
{
    const double far = 16000.0;
    QCOMPARE(signedArea({{far, far}, {far + 0.0009765625, far}, {far, far + 0.0009765625}}),
             0.5 * 0.0009765625 * 0.0009765625);
}

void PlaneRingTest::dropsRepeatedAndClosingVertices()
{
    PlaneRing ring = {{0, 0}, {0, 0}, {5, 0}, {5, 5}, {5, 5}, {5, 5}, {0, 0}, {0, 0}};
    dropRepeatedVertices(ring);
    QCOMPARE(ring.size(), size_t(3));
    QCOMPARE(signedArea(ring), 12.5);
}

void PlaneRingTest::leavesTooFewVerticesOfARingThatEnclosesNothing()
{
    PlaneRing ring = {{3, 4}, {3, 4}, {3, 4}};
    dropRepeatedVertices(ring);
    QCOMPARE(ring.size(), size_t(1));
    ring = {};
    dropRepeatedVertices(ring);
    QVERIFY(ring.empty());
}

void PlaneRingTest::seesWhereSegmentsMeet_data()
{
    QTest::addColumn<PlaneRing>("ends");
    QTest::addColumn<bool>("meet");
    QTest::newRow("crossing") << PlaneRing{{0, 0}, {10, 10}, {0, 10}, {10, 0}} << true;
    QTest::newRow("apart") << PlaneRing{{0, 0}, {10, 10}, {11, 0}, {20, 9}} << false;
    QTest::newRow("parallel") << PlaneRing{{0, 0}, {10, 10}, {0, 1}, {10, 11}} << false;
    QTest::newRow("end on end") << PlaneRing{{0, 0}, {10, 0}, {10, 0}, {20, 5}} << true;
    QTest::newRow("end within the other") << PlaneRing{{0, 0}, {10, 0}, {5, 0}, {5, 5}} << true;
    QTest::newRow("end just beside the other") << PlaneRing{{0, 0}, {10, 0}, {5, 0.0009765625}, {5, 5}} << false;
    QTest::newRow("on one line, overlapping") << PlaneRing{{0, 0}, {10, 10}, {5, 5}, {15, 15}} << true;
    QTest::newRow("on one line, apart") << PlaneRing{{0, 0}, {4, 4}, {5, 5}, {15, 15}} << false;
    QTest::newRow("on one level, apart") << PlaneRing{{0, 0}, {4, 0}, {5, 0}, {15, 0}} << false;
    QTest::newRow("on one upright line, apart") << PlaneRing{{0, 0}, {0, 4}, {0, 5}, {0, 15}} << false;
}

void PlaneRingTest::seesWhereSegmentsMeet()
{
    QFETCH(PlaneRing, ends);
    QFETCH(bool, meet);
    QCOMPARE(segmentsMeet(ends[0], ends[1], ends[2], ends[3]), meet);
    QCOMPARE(segmentsMeet(ends[3], ends[2], ends[0], ends[1]), meet);
}

void PlaneRingTest::knowsSimpleRings_data()
{
    QTest::addColumn<PlaneRing>("ring");
    QTest::addColumn<bool>("simple");
    QTest::newRow("square") << PlaneRing{{0, 0}, {10, 0}, {10, 10}, {0, 10}} << true;
    QTest::newRow("triangle") << PlaneRing{{0, 0}, {10, 0}, {10, 10}} << true;
    QTest::newRow("reflex") << PlaneRing{{0, 0}, {10, 0}, {5, 5}, {10, 10}, {0, 10}} << true;
    QTest::newRow("vertex within an edge") << PlaneRing{{0, 0}, {5, 0}, {10, 0}, {10, 10}, {0, 10}} << true;
    QTest::newRow("vertex within an upright edge, south of 0")
        << PlaneRing{{-20, -20}, {-10, -20}, {-10, -15}, {-10, -10}, {-20, -10}} << true;
    QTest::newRow("bow tie") << PlaneRing{{0, 0}, {10, 10}, {10, 0}, {0, 10}} << false;
    QTest::newRow("touches itself at a vertex")
        << PlaneRing{{0, 0}, {5, 5}, {10, 0}, {10, 10}, {5, 5}, {0, 10}} << false;
    QTest::newRow("touches its own edge") << PlaneRing{{0, 0}, {10, 0}, {10, 10}, {5, 0}, {0, 10}} << false;
    QTest::newRow("spike") << PlaneRing{{0, 0}, {10, 0}, {20, 0}, {10, 0}, {10, 10}} << false;
    QTest::newRow("folds back at the first vertex") << PlaneRing{{10, 0}, {0, 0}, {5, 5}, {5, 0}} << false;
    QTest::newRow("flat") << PlaneRing{{0, 0}, {10, 0}, {5, 0}} << false;
    QTest::newRow("always turns left, but runs around twice")
        << PlaneRing{{0, 10}, {-6, -8}, {10, 3}, {-10, 3}, {6, -8}} << false;
    QTest::newRow("two vertices") << PlaneRing{{0, 0}, {10, 0}} << false;
}

void PlaneRingTest::knowsSimpleRings()
{
    QFETCH(PlaneRing, ring);
    QFETCH(bool, simple);
    for (size_t i = 0; i < ring.size(); ++i) {
        std::rotate(ring.begin(), ring.begin() + 1, ring.end());
        QCOMPARE(isSimpleRing(ring), simple);
    }
}

void PlaneRingTest::knowsConvexRings_data()
{
    QTest::addColumn<PlaneRing>("ring");
    QTest::addColumn<bool>("convex");
    QTest::newRow("square") << PlaneRing{{0, 0}, {10, 0}, {10, 10}, {0, 10}} << true;
    QTest::newRow("square on a corner") << PlaneRing{{0, 0}, {10, -10}, {20, 0}, {10, 10}} << true;
    QTest::newRow("triangle") << PlaneRing{{0, 0}, {10, 1}, {10, 10}} << true;
    QTest::newRow("eight corners") << PlaneRing{{1, 0}, {2, 0}, {3, 1}, {3, 2}, {2, 3}, {1, 3}, {0, 2}, {0, 1}} << true;
    QTest::newRow("reflex") << PlaneRing{{0, 0}, {10, 0}, {5, 5}, {10, 10}, {0, 10}} << false;
    QTest::newRow("vertex within an edge") << PlaneRing{{0, 0}, {5, 0}, {10, 0}, {10, 10}, {0, 10}} << false;
    QTest::newRow("bow tie") << PlaneRing{{0, 0}, {10, 10}, {10, 0}, {0, 10}} << false;
    QTest::newRow("always turns left, but runs around twice")
        << PlaneRing{{0, 10}, {-6, -8}, {10, 3}, {-10, 3}, {6, -8}} << false;
    QTest::newRow("repeated vertex") << PlaneRing{{0, 0}, {0, 0}, {10, 0}, {10, 10}} << false;
    QTest::newRow("two vertices") << PlaneRing{{0, 0}, {10, 0}} << false;
    QTest::newRow("none") << PlaneRing() << false;
}

void PlaneRingTest::knowsConvexRings()
{
    QFETCH(PlaneRing, ring);
    QFETCH(bool, convex);
    for (size_t i = 0; i < 2 * std::max(size_t(1), ring.size()); ++i) {
        QCOMPARE(isConvexRing(ring), convex);
        if (!ring.empty())
            std::rotate(ring.begin(), ring.begin() + 1, ring.end());
        if (i + 1 == ring.size())
            std::reverse(ring.begin(), ring.end());
    }
}

void PlaneRingTest::takesNoRingForConvexThatIsNotSimple()
{
    std::mt19937 random(9);
    int convex = 0;
    for (int i = 0; i < 20000; ++i) {
        PlaneRing ring(3 + random() % 5);
        for (PlaneVertex &vertex : ring)
            vertex = {static_cast<double>(random() % 6), static_cast<double>(random() % 6)};
        if (!isConvexRing(ring))
            continue;
        ++convex;
        for (size_t k = 0; k < ring.size(); ++k) {
            for (size_t n = k + 2; n < ring.size() - (k == 0 ? 1 : 0); ++n)
                QVERIFY(!segmentsMeet(ring[k], ring[k + 1], ring[n], ring[(n + 1) % ring.size()]));
        }
    }
    QVERIFY(convex > 1000);
}

RXMAP_TEST(PlaneRingTest, Core)
#include "tst_planering.moc"
