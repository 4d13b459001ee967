#include "ringtree.h"
#include "testbase.h"

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

class TestRingTree : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void theExtentOfARingReachesItsOutermostVertices();
    void withoutVerticesNothingIsHeld();
    void findsTheRingsWhoseExtentHoldsAPlace_data();
    void findsTheRingsWhoseExtentHoldsAPlace();
    void findsTheRingsWhoseExtentCoversAnother();
    void findsWhatLookingAtEachExtentFinds_data();
    void findsWhatLookingAtEachExtentFinds();
};

namespace {

/// Extents of squares in a row, each 2 m wide and 1 m further east than the one before.
std::vector<RingExtent> rowOfSquares()
{
    std::vector<RingExtent> row;
    for (int i = 0; i < 100; ++i)
        row.push_back({double(i), 0.0, i + 2.0, 2.0});
    return row;
}

std::vector<unsigned> sorted(const RingTree::Places &places)
{
    std::vector<unsigned> result(places.begin(), places.end());
    std::sort(result.begin(), result.end());
    return result;
}

bool covers(const RingExtent &a, const RingExtent &b)
{
    return a.minX <= b.minX && a.minY <= b.minY && a.maxX >= b.maxX && a.maxY >= b.maxY;
}

bool meet(const RingExtent &a, const RingExtent &b)
{
    return a.minX <= b.maxX && a.minY <= b.maxY && a.maxX >= b.minX && a.maxY >= b.minY;
}

} // namespace

void TestRingTree::theExtentOfARingReachesItsOutermostVertices()
{
    const PlaneRing ring = {{-3, 1}, {4, -2}, {5, 2}, {0, 7}};
    const RingExtent extent = RingExtent::of(ring.data(), ring.size());
    QCOMPARE(extent.minX, -3.0);
    QCOMPARE(extent.minY, -2.0);
    QCOMPARE(extent.maxX, 5.0);
    QCOMPARE(extent.maxY, 7.0);
}

void TestRingTree::withoutVerticesNothingIsHeld()
{
    const RingTree tree({RingExtent::of(nullptr, 0), {-1, -1, 1, 1}, RingExtent::of(nullptr, 0)});
    QCOMPARE(sorted(tree.holding(0, 0)), std::vector<unsigned>{1});
    QVERIFY(RingTree({}).holding(0, 0).isEmpty());
}

void TestRingTree::findsTheRingsWhoseExtentHoldsAPlace_data()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::addColumn<QVector<unsigned>>("found");
    QTest::newRow("within") << 50.5 << 1.0 << QVector<unsigned>{49, 50};
    QTest::newRow("on borders") << 50.0 << 2.0 << QVector<unsigned>{48, 49, 50};
    QTest::newRow("outside") << 50.5 << 2.1 << QVector<unsigned>{};
}

void TestRingTree::findsTheRingsWhoseExtentHoldsAPlace()
{
    QFETCH(double, x);
    QFETCH(double, y);
    QFETCH(QVector<unsigned>, found);
    const std::vector<unsigned> places = sorted(RingTree(rowOfSquares()).holding(x, y));
    QCOMPARE(QVector<unsigned>(places.begin(), places.end()), found);
}

void TestRingTree::findsTheRingsWhoseExtentCoversAnother()
{
    const RingTree tree(rowOfSquares());
    QCOMPARE(sorted(tree.covering({50.5, 0.0, 51.5, 2.0})), (std::vector<unsigned>{50}));
    QCOMPARE(sorted(tree.covering({51.0, 0.5, 51.5, 1.5})), (std::vector<unsigned>{50, 51}));
    QVERIFY(tree.covering({51.0, 0.5, 53.5, 1.5}).isEmpty());
}

void TestRingTree::findsWhatLookingAtEachExtentFinds_data()
{
    QTest::addColumn<double>("from");
    QTest::addColumn<double>("size");
    QTest::addColumn<bool>("isSorted");
    QTest::newRow("in rows") << 0.0 << 10.0 << true;
    QTest::newRow("in no order") << 0.0 << 10.0 << false;
    QTest::newRow("a third of a metre off") << 1.0 / 3.0 << 1.0 / 7.0 << true;
    QTest::newRow("far away") << 1e6 / 3.0 << 10.0 / 7.0 << true;
    QTest::newRow("far away, less than a last digit apart") << -3e7 / 7.0 << 1e-3 / 3.0 << true;
    QTest::newRow("nearer to the origin than any number but zero") << 0.0 << 1e-46 << false;
}

void TestRingTree::findsWhatLookingAtEachExtentFinds()
{
    QFETCH(double, from);
    QFETCH(double, size);
    QFETCH(bool, isSorted);
    std::mt19937 random(4);
    std::vector<RingExtent> extents;
    for (int row = 0; row < 20; ++row) {
        for (int column = 0; column < 20; ++column) {
            const double x = from + column * size;
            const double y = from + row * size;
            // Some are empty, some are large, and some occur twice.
            const double width = random() % 9 == 0 ? 5.0 * size : size;
            extents.push_back(random() % 11 == 0 ? RingExtent()
                                                 : RingExtent{x, y, from + column * size + width, y + size});
            if (random() % 13 == 0)
                extents.push_back(extents.back());
        }
    }
    if (!isSorted)
        std::shuffle(extents.begin(), extents.end(), random);
    const RingTree tree(extents);
    for (const RingExtent &asked : extents) {
        if (asked.isEmpty())
            continue;
        const RingTree::Places held = tree.holding(asked.maxX, asked.minY);
        const RingTree::Places covering = tree.covering(asked);
        const RingTree::Places meeting = tree.meeting(asked);
        // Only what single precision cannot tell apart may be found in addition.
        const double off = 1e-6 * (std::fabs(from) + 25.0 * size) + 1e-37;
        for (unsigned i = 0; i < extents.size(); ++i) {
            const RingExtent &ring = extents[i];
            const RingExtent wide = {ring.minX - off, ring.minY - off, ring.maxX + off, ring.maxY + off};
            const RingExtent point = {asked.maxX, asked.minY, asked.maxX, asked.minY};
            QVERIFY(held.contains(i) ? covers(wide, point) : !covers(ring, point));
            QVERIFY(covering.contains(i) ? covers(wide, asked) : !covers(ring, asked));
            QVERIFY(meeting.contains(i) ? meet(wide, asked) : !meet(ring, asked));
        }
    }
}

RXMAP_TEST(TestRingTree, None)
#include "tst_ringtree.moc"
