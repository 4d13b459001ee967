#include "tesscallbacks.h"
#include "tessellationtest.h"

#include "bePluginRxMap/dbgrouprxmap.h"

#include <GL/glu.h>
#include <cmath>
#include <limits>

/// Which triangles a rebuild makes: the outer rings less the holes that each of them takes.
class TestRxMap3DTriangles : public TessellationTest {
    Q_OBJECT

private Q_SLOTS:
    void aSquareGivesTwoReversedTriangles();
    void outersAreNumberedInOrderAndLostHolesMarked();
    void aHoleInsideTwoOutersIsCutFromTheFirstOnly();
    void aHoleInAnIslandOfALaterRingIsTakenByTheFirst();
    void aHoleThatIsHardlySmallerIsKeptForALaterRing();
    void theBankHasRoomForAllTrianglesFromTheStart();
    void oddCoordinatesNeverCrash_data();
    void oddCoordinatesNeverCrash();
    void trianglesCoverTheOutersLessTheirHoles_data();
    void trianglesCoverTheOutersLessTheirHoles();
    void isInsidePolyIsHalfOpen_data();
    void isInsidePolyIsHalfOpen();
};

namespace {

double triangleArea(const Vertex *corner)
{
    const double ux = static_cast<double>(corner[1].x) - static_cast<double>(corner[0].x);
    const double uz = static_cast<double>(corner[1].z) - static_cast<double>(corner[0].z);
    const double vx = static_cast<double>(corner[2].x) - static_cast<double>(corner[0].x);
    const double vz = static_cast<double>(corner[2].z) - static_cast<double>(corner[0].z);
    return (ux * vz - uz * vx) / 2.0;
}

double coveredArea(const QVector<Vertex> &vertices)
{
    double area = 0.0;
    for (int i = 0; i + 2 < vertices.size(); i += 3)
        area += std::fabs(triangleArea(&vertices.at(i)));
    return area;
}

Ring circle(double x, double y, double radius, int vertices)
{
    Ring ring;
    for (int i = 0; i < vertices; ++i) {
        const double angle = 6.28318530717958648 * i / vertices;
        ring.push_back({x + radius * std::cos(angle), y + radius * std::sin(angle)});
    }
    return ring;
}

} // namespace

void TestRxMap3DTriangles::aSquareGivesTwoReversedTriangles()
{
    // What GLU itself emits for the square, using the same callbacks.
    GLUtesselator *tessellator = gluNewTess();
    for (const auto &callback :
         {std::pair<GLenum, _GLUfuncptr>{GLU_TESS_VERTEX, reinterpret_cast<_GLUfuncptr>(tessVertexCB)},
          {GLU_TESS_EDGE_FLAG, reinterpret_cast<_GLUfuncptr>(tessEdgeCB)}})
        gluTessCallback(tessellator, callback.first, callback.second);
    RXVERT corners[4];
    const Ring ring = square(0, 0, 10);
    gluTessBeginPolygon(tessellator, nullptr);
    gluTessBeginContour(tessellator);
    for (std::size_t i = 0; i < 4; ++i) {
        corners[i] = {ring[i].x, static_cast<double>(-4.99F), -ring[i].y, 1.0, 0.0, 0.0, 0.5};
        coordList.append(&corners[i]);
        gluTessVertex(tessellator, &corners[i].x, reinterpret_cast<void *>(i));
    }
    gluTessEndContour(tessellator);
    gluTessEndPolygon(tessellator);
    gluDeleteTess(tessellator);
    const QVector<Vertex> emitted = vList;
    vList.clear();
    coordList.clear();
    QCOMPARE(emitted.size(), 6);

    HandMadeChain chain;
    chain.addOuter(ring);
    const QVector<Vertex> &drawn = rebuild(chain);
    QCOMPARE(drawn.size(), 6);
    for (int i = 0; i < 6; ++i) {
        const Vertex &expected = emitted.at(i - i % 3 + 2 - i % 3);
        QCOMPARE(drawn.at(i).x, expected.x);
        QCOMPARE(drawn.at(i).z, expected.z);
        QCOMPARE(drawn.at(i).y, -4.99F);
        QCOMPARE(drawn.at(i).color, 0x800000FFU);
        QVERIFY(drawn.at(i).z <= 0.0F && drawn.at(i).z >= -10.0F);
    }
    QCOMPARE(coveredArea(drawn), 100.0);
}

void TestRxMap3DTriangles::outersAreNumberedInOrderAndLostHolesMarked()
{
    HandMadeChain chain;
    chain.addHole(square(100, 100, 2)).drawIndex = 7;
    chain.addOuter(square(0, 0, 10)).drawIndex = 7;
    chain.addHole(square(4, 4, 2)).drawIndex = 7;
    chain.addOuter(square(20, 0, 10)).drawIndex = 7;
    rebuild(chain);
    QCOMPARE(chain.at(0).drawIndex, -1);
    QCOMPARE(chain.at(1).drawIndex, 1);
    QCOMPARE(chain.at(2).drawIndex, 7);
    QCOMPARE(chain.at(3).drawIndex, 2);
}

void TestRxMap3DTriangles::aHoleInsideTwoOutersIsCutFromTheFirstOnly()
{
    HandMadeChain chain;
    chain.addOuter(square(0, 0, 10));
    chain.addOuter(square(0, 0, 10));
    chain.addHole(square(4, 4, 2));
    QCOMPARE(coveredArea(rebuild(chain)), 96.0 + 100.0);
}

void TestRxMap3DTriangles::aHoleInAnIslandOfALaterRingIsTakenByTheFirst()
{
    HandMadeChain chain;
    chain.addOuter(square(0, 0, 100));
    chain.addHole(square(20, 20, 60));
    chain.addOuter(square(30, 30, 40));
    chain.addHole(square(45, 45, 10));
    // Inside the first ring's own hole it becomes a filled part of that ring.
    QCOMPARE(coveredArea(rebuild(chain)), 10000.0 - 3600.0 + 100.0 + 1600.0);
}

void TestRxMap3DTriangles::aHoleThatIsHardlySmallerIsKeptForALaterRing()
{
    HandMadeChain chain;
    chain.addOuter(square(0, 0, 4));
    chain.addOuter(square(-10, -10, 30));
    chain.addHole(square(1, 1, 2.5)); // 6.25 m², the first ring has 16.
    chain.addHole(square(0.5, 0.5, 3)).area = 890.0;
    QCOMPARE(coveredArea(rebuild(chain)), 16.0 + 900.0 - 6.25);
    QCOMPARE(chain.at(3).drawIndex, -1);
}

void TestRxMap3DTriangles::theBankHasRoomForAllTrianglesFromTheStart()
{
    // The hole lies in the outer ring, so the map has room for 4 + 4 + 2 - 2 triangles; the ring of two vertices needs
    // none.
    HandMadeChain chain;
    chain.addOuter(square(0, 0, 10));
    chain.addHole(square(4, 4, 2));
    chain.addOuter({{20, 0}, {30, 0}});
    const QVector<Vertex> &drawn = rebuild(chain);
    QCOMPARE(drawn.size(), 3 * 8);
    QCOMPARE(drawn.capacity(), 3 * 8);
}

void TestRxMap3DTriangles::oddCoordinatesNeverCrash_data()
{
    QTest::addColumn<double>("value");
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("infinity") << std::numeric_limits<double>::infinity();
    QTest::newRow("minus infinity") << -std::numeric_limits<double>::infinity();
    QTest::newRow("largest") << std::numeric_limits<double>::max();
    QTest::newRow("smallest") << std::numeric_limits<double>::denorm_min();
}

void TestRxMap3DTriangles::oddCoordinatesNeverCrash()
{
    QFETCH(double, value);
    for (std::size_t corner = 0; corner < 4; ++corner) {
        for (int axis = 0; axis < 2; ++axis) {
            Ring ring = square(0, 0, 10);
            (axis == 0 ? ring[corner].x : ring[corner].y) = value;
            HandMadeChain chain;
            chain.addOuter(ring);
            chain.addOuter(square(20, 0, 10));
            chain.addHole(ring).area = 1.0;
            rebuild(chain);
            QCOMPARE(chain.at(1).drawIndex, 2);
            group->setPolygonCount(0);
        }
    }
    HandMadeChain lost;
    lost.addOuter({{value, value}, {value, value}, {value, value}});
    rebuild(lost);
    QCOMPARE(lost.at(0).drawIndex, 1);
    group->setPolygonCount(0);
}

void TestRxMap3DTriangles::trianglesCoverTheOutersLessTheirHoles_data()
{
    QTest::addColumn<QString>("shape");
    for (const char *shape : {"square", "clockwise square", "sliver", "repeated vertices", "collinear vertices", "star",
                              "ring with holes", "hole that touches at a corner", "ring of two", "nested"})
        QTest::newRow(shape) << QString::fromLatin1(shape);
}

static void addShape(HandMadeChain &chain, const QString &shape, double &expected)
{
    const auto outer = [&](const Ring &ring) { expected += std::fabs(shoelaceArea(ring)), chain.addOuter(ring); };
    const auto hole = [&](const Ring &ring) { expected -= std::fabs(shoelaceArea(ring)), chain.addHole(ring); };
    if (shape == QLatin1String("square")) {
        outer(square(0, 0, 10));
    } else if (shape == QLatin1String("clockwise square")) {
        outer({{0, 0}, {0, 10}, {10, 10}, {10, 0}});
    } else if (shape == QLatin1String("sliver")) {
        outer({{0, 0}, {1000, 0.001}, {1000, 0.002}});
    } else if (shape == QLatin1String("repeated vertices")) {
        outer({{0, 0}, {0, 0}, {10, 0}, {10, 0}, {10, 10}, {0, 10}, {0, 10}, {0, 0}});
    } else if (shape == QLatin1String("collinear vertices")) {
        outer({{0, 0}, {2, 0}, {5, 0}, {10, 0}, {10, 5}, {10, 10}, {0, 10}, {0, 3}});
    } else if (shape == QLatin1String("star")) {
        Ring ring;
        for (int i = 0; i < 40; ++i) {
            const double angle = 6.28318530717958648 * i / 40;
            const double radius = i % 2 == 0 ? 50.0 : 20.0;
            ring.push_back({radius * std::cos(angle), radius * std::sin(angle)});
        }
        outer(ring);
    } else if (shape == QLatin1String("ring with holes")) {
        outer(circle(0, 0, 300, 500));
        for (int i = 0; i < 20; ++i)
            hole(circle(-190 + 20 * i, 10.0 * (i % 5), 5, 17));
    } else if (shape == QLatin1String("hole that touches at a corner")) {
        // Its left and lower sides lie on those of the ring, and points there count as inside.
        outer(square(0, 0, 10));
        hole(square(0, 0, 3));
    } else if (shape == QLatin1String("ring of two")) {
        outer({{0, 0}, {10, 10}});
    } else {
        // The inner island comes first, so that the ring around everything does not take its hole.
        outer(circle(0, 0, 50, 64));
        outer(circle(0, 0, 100, 64));
        hole(circle(0, 0, 60, 64));
        hole(circle(0, 0, 20, 64));
    }
}

void TestRxMap3DTriangles::trianglesCoverTheOutersLessTheirHoles()
{
    QFETCH(QString, shape);
    HandMadeChain chain;
    double expected = 0.0;
    addShape(chain, shape, expected);
    const double covered = coveredArea(rebuild(chain));
    QVERIFY2(std::fabs(covered - expected) <= 1e-4 * expected + 1e-6,
             qPrintable(QStringLiteral("%1 instead of %2").arg(covered).arg(expected)));
    group->setPolygonCount(0);
}

void TestRxMap3DTriangles::isInsidePolyIsHalfOpen_data()
{
    QTest::addColumn<float>("x");
    QTest::addColumn<float>("y");
    QTest::addColumn<bool>("expected");
    QTest::newRow("left edge") << 0.0F << 0.5F << true;
    QTest::newRow("right edge") << 1.0F << 0.5F << false;
    QTest::newRow("top edge") << 0.5F << 1.0F << false;
    QTest::newRow("bottom edge") << 0.5F << 0.0F << true;
}

void TestRxMap3DTriangles::isInsidePolyIsHalfOpen()
{
    QFETCH(float, x);
    QFETCH(float, y);
    Ring unit = square(0, 0, 1);
    QTEST(map->isInsidePoly(unit.data(), 4, x, y), "expected");
    QVERIFY(!map->isInsidePoly(unit.data(), 0, x, y));
    QVERIFY(!map->isInsidePoly(unit.data(), -1, x, y));
}

RXMAP_TEST(TestRxMap3DTriangles, Widgets)
#include "tst_rxmap3d_triangles.moc"
