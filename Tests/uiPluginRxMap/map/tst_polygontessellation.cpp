#include "maphost.h"
#include "polygontessellation.h"
#include "tesscallbacks.h"
#include "testbase.h"

#include <GL/glu.h>
#include <cmath>

class TestPolygonTessellation : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void trianglesAreAppendedPolygonByPolygon();
    void theMapLiesFlatWithNorthTowardsMinusZ();
    void theColourComesAtHalfItsAlpha();
    void anInvalidColourIsBlack();
    void aTriangleTurnsTheOtherWayThanTheTessellatorGaveIt();
    void theListsAreEmptyAfterwardsAndTheTrianglesKeepTheirRoom();
    void onlyTheRoomForALargePolygonsVerticesIsGivenBack();
    void aVertexThatIsNoNumberIsLeftOut();
    void roomIsMadeForAsManyTrianglesAsRingsThatDoNotCrossHave_data();
    void roomIsMadeForAsManyTrianglesAsRingsThatDoNotCrossHave();

private:
    void tessellate(const Ring &ring, const QColor &color);

    GLUtesselator *tessellator = nullptr;
    QVector<Vertex> triangles;
};

void TestPolygonTessellation::init()
{
    TestBase::init();
    triangles.clear();
    tessellator = gluNewTess();
    PolygonTessellation::registerCallbacks(tessellator);
}

void TestPolygonTessellation::cleanup()
{
    gluDeleteTess(tessellator);
    TestBase::cleanup();
}

void TestPolygonTessellation::tessellate(const Ring &ring, const QColor &color)
{
    HandMadeChain chain;
    PolygonTessellation tessellation(tessellator, triangles);
    tessellation.beginPolygon(color);
    tessellation.addContour(chain.addOuter(ring));
    tessellation.endPolygon();
}

void TestPolygonTessellation::trianglesAreAppendedPolygonByPolygon()
{
    tessellate(square(0, 0, 10), Qt::red);
    QCOMPARE(triangles.size(), 6);
    const QVector<Vertex> first = triangles;
    tessellate({{20, 0}, {30, 0}, {20, 10}}, Qt::green);
    QCOMPARE(triangles.size(), 9);
    for (int i = 0; i < 6; ++i)
        QCOMPARE(triangles.at(i).x, first.at(i).x);
    for (int i = 6; i < 9; ++i)
        QVERIFY(triangles.at(i).x >= 20.0F);
}

void TestPolygonTessellation::theMapLiesFlatWithNorthTowardsMinusZ()
{
    tessellate({{1, 2}, {30, 4}, {5, 60}}, Qt::red);
    QCOMPARE(triangles.size(), 3);
    for (const Vertex &vertex : qAsConst(triangles)) {
        QCOMPARE(vertex.y, -4.99F);
        QVERIFY((vertex.x == 1.0F && vertex.z == -2.0F) || (vertex.x == 30.0F && vertex.z == -4.0F)
                || (vertex.x == 5.0F && vertex.z == -60.0F));
    }
}

void TestPolygonTessellation::theColourComesAtHalfItsAlpha()
{
    tessellate(square(0, 0, 10), QColor(1, 2, 3, 255));
    for (const Vertex &vertex : qAsConst(triangles))
        QCOMPARE(vertex.color, 0x80030201U);
}

void TestPolygonTessellation::anInvalidColourIsBlack()
{
    HandMadeChain chain;
    PolygonTessellation tessellation(tessellator, triangles);
    for (const QColor &color : {QColor(255, 255, 255), QColor()}) {
        triangles.clear();
        tessellation.beginPolygon(color);
        tessellation.addContour(chain.addOuter(square(0, 0, 10)));
        tessellation.endPolygon();
    }
    QCOMPARE(triangles.size(), 6);
    for (const Vertex &vertex : qAsConst(triangles))
        QCOMPARE(vertex.color, 0x80000000U);
}

void TestPolygonTessellation::aTriangleTurnsTheOtherWayThanTheTessellatorGaveIt()
{
    static QVector<quintptr> given;
    given.clear();
    gluTessCallback(tessellator, GLU_TESS_VERTEX, reinterpret_cast<_GLUfuncptr>(+[](void *position) {
                        given.append(reinterpret_cast<quintptr>(position));
                        tessVertexCB(static_cast<unsigned int>(given.constLast()));
                    }));
    const Ring ring{{0, 0}, {10, 0}, {10, 10}, {0, 10}, {-3, 5}};
    tessellate(ring, Qt::red);
    QCOMPARE(given.size(), 9);
    QCOMPARE(triangles.size(), 9);
    for (int i = 0; i < 9; ++i) {
        const auto &expected = ring.at(given.at(i - i % 3 + 2 - i % 3));
        QCOMPARE(triangles.at(i).x, static_cast<float>(expected.x));
        QCOMPARE(triangles.at(i).z, static_cast<float>(-expected.y));
    }
}

void TestPolygonTessellation::theListsAreEmptyAfterwardsAndTheTrianglesKeepTheirRoom()
{
    Ring ring;
    for (int i = 0; i < 500; ++i)
        ring.push_back({100.0 * std::cos(i / 80.0), 100.0 * std::sin(i / 80.0)});
    tessellate(ring, Qt::red);
    QVERIFY(coordList.isEmpty());
    QVERIFY(vList.isEmpty());
    QVERIFY(vList.capacity() >= 3 * 498);
    tessellate(square(0, 0, 10), Qt::red);
    QVERIFY(vList.capacity() >= 3 * 498);
}

void TestPolygonTessellation::onlyTheRoomForALargePolygonsVerticesIsGivenBack()
{
    Ring ring;
    for (int i = 0; i < 129; ++i)
        ring.push_back({100.0 * std::cos(i / 21.0), 100.0 * std::sin(i / 21.0)});
    tessellate(ring, Qt::red);
    QCOMPARE(coordList.capacity(), 0);
    ring.pop_back();
    tessellate(ring, Qt::red);
    QVERIFY(coordList.capacity() >= 128);
}

void TestPolygonTessellation::aVertexThatIsNoNumberIsLeftOut()
{
    tessellate({{0, 0}, {10, 0}, {std::nan(""), 5}, {10, 10}, {5, std::nan("")}}, Qt::red);
    QCOMPARE(triangles.size(), 3);
    for (const Vertex &vertex : qAsConst(triangles))
        QVERIFY(!std::isnan(vertex.x) && !std::isnan(vertex.z));
}

void TestPolygonTessellation::roomIsMadeForAsManyTrianglesAsRingsThatDoNotCrossHave_data()
{
    QTest::addColumn<qint64>("vertices");
    QTest::addColumn<qint64>("outers");
    QTest::addColumn<qint64>("holes");
    QTest::addColumn<int>("room");
    QTest::newRow("a square") << qint64(4) << qint64(1) << qint64(0) << 3 * 2;
    QTest::newRow("a square with two triangles cut out") << qint64(10) << qint64(1) << qint64(2) << 3 * 12;
    QTest::newRow("a whole map") << qint64(12) << qint64(2) << qint64(1) << 3 * 10;
    QTest::newRow("less than a triangle") << qint64(2) << qint64(2) << qint64(0) << 0;
    QTest::newRow("more than a list holds") << qint64(0xFFFFFFFF) << qint64(1) << qint64(0) << 134217711;
}

void TestPolygonTessellation::roomIsMadeForAsManyTrianglesAsRingsThatDoNotCrossHave()
{
    QFETCH(qint64, vertices);
    QFETCH(qint64, outers);
    QFETCH(qint64, holes);
    QTEST(triangleVertices(vertices, outers, holes), "room");
}

RXMAP_TEST(TestPolygonTessellation, None)
#include "tst_polygontessellation.moc"
