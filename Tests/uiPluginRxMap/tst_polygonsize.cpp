#include "holeplacement.h"
#include "maphost.h"
#include "polygonsize.h"
#include "ringlists.h"
#include "testbase.h"

/// How much room is set aside before the tessellator is fed.
class TestPolygonSize : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void aPolygonHasTwoTrianglesLessThanVertices_data();
    void aPolygonHasTwoTrianglesLessThanVertices();
    void everyHoleAddsItsVerticesAndTwoTriangles();
    void theMapIsTheSumOfItsPolygons();
    void noMoreRoomIsAskedForThanAListHolds();
};

void TestPolygonSize::aPolygonHasTwoTrianglesLessThanVertices_data()
{
    QTest::addColumn<int>("vertices");
    QTest::addColumn<int>("triangles");
    QTest::newRow("none") << 0 << 0;
    QTest::newRow("one") << 1 << 0;
    QTest::newRow("two") << 2 << 0;
    QTest::newRow("three") << 3 << 1;
    QTest::newRow("seven") << 7 << 5;
}

void TestPolygonSize::aPolygonHasTwoTrianglesLessThanVertices()
{
    QFETCH(int, vertices);
    QFETCH(int, triangles);
    HandMadeChain chain;
    chain.addOuter(Ring(static_cast<std::size_t>(vertices)));
    const RingLists rings(chain.first(), chain.count());
    const HolePlacement placement(rings.outers, rings.holes);
    const PolygonSize size = polygonSize(rings, placement, 0);
    QCOMPARE(size.vertices, vertices);
    QCOMPARE(size.triangles, triangles);
    QCOMPARE(triangleCount(rings, placement), triangles);
}

void TestPolygonSize::everyHoleAddsItsVerticesAndTwoTriangles()
{
    HandMadeChain chain;
    chain.addOuter(square(0, 0, 10));
    chain.addHole(square(1, 1, 2));
    chain.addHole({{5, 5}, {7, 5}, {7, 7}});
    chain.addHole(square(50, 50, 2)); // Placed nowhere.
    const RingLists rings(chain.first(), chain.count());
    const PolygonSize size = polygonSize(rings, HolePlacement(rings.outers, rings.holes), 0);
    QCOMPARE(size.vertices, 4 + 4 + 3);
    QCOMPARE(size.triangles, 11 + 2 * 2 - 2);
}

void TestPolygonSize::theMapIsTheSumOfItsPolygons()
{
    HandMadeChain chain;
    chain.addOuter(square(0, 0, 10));
    chain.addHole(square(1, 1, 2));
    chain.addOuter({{20, 0}, {30, 0}, {30, 10}});
    chain.addOuter({});
    const RingLists rings(chain.first(), chain.count());
    QCOMPARE(triangleCount(rings, HolePlacement(rings.outers, rings.holes)), 8 + 1);
}

void TestPolygonSize::noMoreRoomIsAskedForThanAListHolds()
{
    HandMadeChain chain;
    for (int i = 0; i < 3; ++i)
        chain.addOuter(square(0, 0, 10)).vertexCount = 0x7FFFFFFFU; // Never looked at.
    const RingLists rings(chain.first(), chain.count());
    const HolePlacement placement(rings.outers, rings.holes);
    QCOMPARE(triangleCount(rings, placement), mostTriangles);
    const PolygonSize size = polygonSize(rings, placement, 0);
    QCOMPARE(size.triangles, mostTriangles);
    QCOMPARE(size.vertices, 3 * mostTriangles);
}

RXMAP_TEST(TestPolygonSize, None)
#include "tst_polygonsize.moc"
