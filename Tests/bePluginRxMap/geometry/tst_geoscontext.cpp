#include "geoscontext.h"
#include "planesketch.h"
#include "testbase.h"

#include <cmath>

namespace {

double areaOf(const std::vector<PlanePolygon> &polygons)
{
    double area = 0.0;
    for (const PlanePolygon &polygon : polygons) {
        area += ringArea(polygon.outer);
        for (const PlaneRing &hole : polygon.holes)
            area -= ringArea(hole);
    }
    return area;
}

} // namespace

class GeosContextTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void carriesRingsThereAndBack();
    void judgesValidity();
    void refusesRingsThatAreTooShort();
    void repairsByTheEvenOddRule();
    void takesHolesAwayEvenWhereTheyReachOut();
    void keepsToTheGrid();
    void subtracts();

private:
    GeosContext geos;
};

void GeosContextTest::carriesRingsThereAndBack()
{
    const auto back = geos.polygons(geos.polygon(square(0, 0, 10), {square(2, 2, 3)}), 7);
    QCOMPARE(back.size(), size_t(1));
    QCOMPARE(back[0].record, 7);
    QCOMPARE(back[0].outer.size(), size_t(4));
    QCOMPARE(back[0].holes.size(), size_t(1));
    QCOMPARE(areaOf(back), 91.0);
}

void GeosContextTest::judgesValidity()
{
    QVERIFY(geos.isValid(geos.polygon(square(0, 0, 10), {square(2, 2, 3)})));
    QVERIFY(!geos.isValid(geos.polygon(square(0, 0, 10), {square(20, 2, 3)})));
    QVERIFY(!geos.isValid(geos.polygon({{0, 0}, {10, 10}, {10, 0}, {0, 10}}, {})));
}

void GeosContextTest::refusesRingsThatAreTooShort()
{
    QVERIFY(!geos.polygon({{0, 0}}, {}));
    QVERIFY(!geos.isValid(geos.polygon({{0, 0}}, {})));
    QVERIFY(geos.polygons(geos.repaired(polygonOf(0, {{0, 0}}), 1.0), 0).empty());
}

void GeosContextTest::repairsByTheEvenOddRule()
{
    const auto bowTie = geos.polygons(geos.repaired(polygonOf(0, {{0, 0}, {10, 10}, {10, 0}, {0, 10}}), 0.5), 0);
    QCOMPARE(bowTie.size(), size_t(2));
    QCOMPARE(areaOf(bowTie), 50.0);
    const auto spike =
        geos.polygons(geos.repaired(polygonOf(0, {{0, 0}, {10, 0}, {20, 0}, {10, 0}, {10, 10}, {0, 10}}), 0.5), 0);
    QCOMPARE(spike.size(), size_t(1));
    QCOMPARE(areaOf(spike), 100.0);
}

void GeosContextTest::takesHolesAwayEvenWhereTheyReachOut()
{
    QCOMPARE(areaOf(geos.polygons(geos.repaired(polygonOf(0, square(0, 0, 10), {square(8, 2, 4)}), 0.5), 0)), 92.0);
    QCOMPARE(areaOf(geos.polygons(geos.repaired(polygonOf(0, square(0, 0, 10), {square(30, 2, 4)}), 0.5), 0)), 100.0);
    const std::vector<PlaneRing> overlapping = {square(1, 1, 4), square(3, 3, 4)};
    QCOMPARE(areaOf(geos.polygons(geos.repaired(polygonOf(0, square(0, 0, 10), overlapping), 0.5), 0)), 72.0);
}

void GeosContextTest::keepsToTheGrid()
{
    for (const PlanePolygon &part :
         geos.polygons(geos.repaired(polygonOf(0, {{0, 0}, {10, 7}, {10, 0}, {0, 10}}), 0.25), 0)) {
        for (const PlaneVertex &vertex : part.outer) {
            QCOMPARE(std::fmod(vertex.x, 0.25), 0.0);
            QCOMPARE(std::fmod(vertex.y, 0.25), 0.0);
        }
    }
}

void GeosContextTest::subtracts()
{
    const auto from = geos.polygon(square(0, 0, 10), {});
    const auto cut = geos.polygon(square(5, 5, 10), {});
    QCOMPARE(areaOf(geos.polygons(geos.difference(from, cut, 0.5), 0)), 75.0);
    QVERIFY(!geos.difference(from, geos.owned(nullptr), 0.5));
}

RXMAP_TEST(GeosContextTest, Core)
#include "tst_geoscontext.moc"
