#include "ringtree.h"
#include "testbase.h"

#include <algorithm>
#include <vector>

class TestRingTree : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void theExtentOfARingReachesItsOutermostVertices();
    void withoutVerticesNothingIsHeld();
    void findsTheRingsWhoseExtentHoldsAPlace_data();
    void findsTheRingsWhoseExtentHoldsAPlace();
    void findsTheRingsWhoseExtentCoversAnother();
};

namespace {

/// A row of squares, each 2 m wide and 1 m further east than the last.
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

RXMAP_TEST(TestRingTree, None)
#include "tst_ringtree.moc"
