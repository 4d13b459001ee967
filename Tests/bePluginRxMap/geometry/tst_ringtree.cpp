#include "ringtree.h"
#include "testbase.h"

#include <algorithm>
#include <vector>

namespace bg = boost::geometry;

class TestRingTree : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void theExtentOfARingReachesItsOutermostVertices();
    void theExtentOfOneVertexIsThatPlace();
    void withoutVerticesNothingIsCovered();
    void aTreeFindsTheRingsWhoseExtentHoldsAPlace();
};

void TestRingTree::theExtentOfARingReachesItsOutermostVertices()
{
    const PlaneRing ring = {{-3, 1}, {4, -2}, {5, 2}, {0, 7}};
    const TreeBox extent = extentOf(ring.data(), ring.size());
    QCOMPARE(extent.min_corner().x(), -3.0);
    QCOMPARE(extent.min_corner().y(), -2.0);
    QCOMPARE(extent.max_corner().x(), 5.0);
    QCOMPARE(extent.max_corner().y(), 7.0);
}

void TestRingTree::theExtentOfOneVertexIsThatPlace()
{
    const PlaneVertex vertex{2, -6};
    const TreeBox extent = extentOf(&vertex, 1);
    QVERIFY(bg::covered_by(TreePoint(2, -6), extent));
    QVERIFY(!bg::covered_by(TreePoint(0, 0), extent));
    QVERIFY(!bg::covered_by(TreePoint(2, -5), extent));
}

void TestRingTree::withoutVerticesNothingIsCovered()
{
    const TreeBox extent = extentOf(nullptr, 0);
    QVERIFY(extent.min_corner().x() > extent.max_corner().x());
    QVERIFY(extent.min_corner().y() > extent.max_corner().y());
    QVERIFY(!bg::covered_by(TreePoint(0, 0), extent));
}

void TestRingTree::aTreeFindsTheRingsWhoseExtentHoldsAPlace()
{
    // A row of squares, each 2 m wide and 1 m further east than the last.
    std::vector<TreeEntry> entries;
    for (unsigned i = 0; i < 100; ++i) {
        const PlaneRing square = {{double(i), 0}, {i + 2.0, 0}, {i + 2.0, 2}, {double(i), 2}};
        entries.emplace_back(extentOf(square.data(), square.size()), i);
    }
    const RingTree tree(entries.begin(), entries.end());
    std::vector<TreeEntry> found;
    tree.query(bg::index::intersects(TreePoint(50.5, 1)), std::back_inserter(found));
    std::vector<unsigned> places;
    for (const TreeEntry &entry : found)
        places.push_back(entry.second);
    std::sort(places.begin(), places.end());
    QCOMPARE(places, (std::vector<unsigned>{49, 50}));
}

RXMAP_TEST(TestRingTree, None)
#include "tst_ringtree.moc"
