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
    const auto vertices = static_cast<int>(ring.size());
    tessellation.beginPolygon(color, vertices, vertices - 2);
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
        tessellation.beginPolygon(color, 4, 2);
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

RXMAP_TEST(TestPolygonTessellation, None)
#include "tst_polygontessellation.moc"
