#include "holearrangement.h"
#include "planesketch.h"
#include "testbase.h"

namespace {

QList<int> recordsOf(const std::vector<PlanePolygon> &polygons)
{
    QList<int> records;
    for (const PlanePolygon &polygon : polygons)
        records.append(polygon.record);
    return records;
}

size_t holesOf(const std::vector<PlanePolygon> &polygons)
{
    size_t holes = 0;
    for (const PlanePolygon &polygon : polygons)
        holes += polygon.holes.size();
    return holes;
}

} // namespace

class HoleArrangementTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void leavesWhatIsRightAsItIs();
    void saysWhichPolygonEachHoleIsCutFrom();
    void joinsTheHoleInWhichAnIslandLies();
    void joinsTheHolesOfNestedIslands();
    void keepsTheOrderOfOverlappingPolygons();
    void joinsTheOneHoleThatLiesOnAnother();
    void keepsTheOrderAroundAnIsland();
    void joinsAHoleThatIsNearlyAsLargeAsItsRing();
    void joinsAHoleThatTouchesAnEdgeItWouldFallOutOf();
    void leavesAHoleThatTouchesAnEdgeItLiesWithin();
    void joinsHolesOfTwoPolygonsThatEachWouldTake();
    void arrangesNoPolygonsAtAll();
};

void HoleArrangementTest::leavesWhatIsRightAsItIs()
{
    std::vector<PlanePolygon> polygons = {polygonOf(0, square(0, 0, 100), {square(10, 10, 20), square(50, 50, 20)}),
                                          polygonOf(1, square(10, 10, 20)), polygonOf(2, square(200, 0, 100))};
    QVERIFY(HoleArrangement::arrange(polygons).misplaced.empty());
    QCOMPARE(recordsOf(polygons), QList<int>({0, 1, 2}));
    QCOMPARE(holesOf(polygons), size_t(2));
}

void HoleArrangementTest::saysWhichPolygonEachHoleIsCutFrom()
{
    std::vector<PlanePolygon> polygons = {polygonOf(0, square(0, 0, 100), {square(10, 10, 20), square(50, 50, 20)}),
                                          polygonOf(1, square(10, 10, 20)),
                                          polygonOf(2, square(200, 0, 100), {square(210, 10, 20)})};
    QCOMPARE(HoleArrangement::arrange(polygons).takers, std::vector<int>({0, 0, 2}));
}

void HoleArrangementTest::joinsTheHoleInWhichAnIslandLies()
{
    // The first polygon would take both holes of the second; with its own hole as part of its ring it takes neither.
    std::vector<PlanePolygon> polygons = {
        polygonOf(0, square(0, 0, 200), {square(40, 40, 120), square(5, 5, 20)}),
        polygonOf(1, square(40, 40, 120), {square(80, 80, 20), square(110, 110, 20)})};
    const HoleArrangement arrangement = HoleArrangement::arrange(polygons);
    QCOMPARE(arrangement.takers, std::vector<int>({0, 1, 1}));
    QCOMPARE(recordsOf(polygons), QList<int>({0, 1}));
    QCOMPARE(ringArea(polygons[0].outer), 40000.0 - 14400.0);
    QCOMPARE(arrangement.joined.size(), size_t(1));
    QCOMPARE(ringArea(arrangement.joined[0]), 14400.0);
    QCOMPARE(polygons[0].holes.size(), size_t(1));
    QCOMPARE(polygons[1].holes.size(), size_t(2));
}

void HoleArrangementTest::joinsTheHolesOfNestedIslands()
{
    constexpr int islands = 12;
    std::vector<PlanePolygon> polygons;
    for (int i = 0; i < islands; ++i) {
        const double inset = 10.0 * i;
        polygons.push_back(
            polygonOf(i, square(inset, inset, 300 - 2 * inset), {square(inset + 5, inset + 5, 290 - 2 * inset)}));
    }
    QVERIFY(HoleArrangement::arrange(polygons).misplaced.empty());
    // Nothing lies in the innermost hole.
    QCOMPARE(holesOf(polygons), size_t(1));
    for (int i = 0; i + 1 < islands; ++i) {
        const double side = 300.0 - 20.0 * i;
        QCOMPARE(ringArea(polygons[static_cast<size_t>(i)].outer), side * side - (side - 10.0) * (side - 10.0));
    }
}

void HoleArrangementTest::keepsTheOrderOfOverlappingPolygons()
{
    // The second polygon lies on the first and would lose its hole to it; it must stay the later one.
    std::vector<PlanePolygon> polygons = {polygonOf(0, square(0, 0, 200)),
                                          polygonOf(1, square(50, 50, 100), {square(80, 80, 40)})};
    QVERIFY(HoleArrangement::arrange(polygons).misplaced.empty());
    QCOMPARE(recordsOf(polygons), QList<int>({0, 1}));
    QCOMPARE(holesOf(polygons), size_t(0));
    QCOMPARE(ringArea(polygons[1].outer), 10000.0 - 1600.0);
}

void HoleArrangementTest::joinsTheOneHoleThatLiesOnAnother()
{
    std::vector<PlanePolygon> polygons = {
        polygonOf(0, square(0, 0, 200)),
        polygonOf(1, square(150, 50, 100), {square(210, 60, 20), square(160, 60, 20)})};
    QCOMPARE(HoleArrangement::arrange(polygons).takers, std::vector<int>({1}));
    QCOMPARE(ringArea(polygons[1].outer), 10000.0 - 400.0);
}

void HoleArrangementTest::keepsTheOrderAroundAnIsland()
{
    // The second polygon lies on the first, in whose hole the third one is an island with a hole of its own.
    std::vector<PlanePolygon> polygons = {polygonOf(0, square(0, 0, 200), {square(40, 40, 100)}),
                                          polygonOf(1, square(150, 150, 100)),
                                          polygonOf(2, square(40, 40, 100), {square(60, 60, 20)})};
    QVERIFY(HoleArrangement::arrange(polygons).misplaced.empty());
    QCOMPARE(recordsOf(polygons), QList<int>({0, 1, 2}));
}

void HoleArrangementTest::joinsAHoleThatIsNearlyAsLargeAsItsRing()
{
    std::vector<PlanePolygon> polygons = {polygonOf(0, square(0, 0, 10), {square(0.125, 0.125, 9.75)})};
    QVERIFY(HoleArrangement::arrange(polygons).misplaced.empty());
    QCOMPARE(holesOf(polygons), size_t(0));
    QCOMPARE(ringArea(polygons[0].outer), 100.0 - 9.75 * 9.75);
}

void HoleArrangementTest::joinsAHoleThatTouchesAnEdgeItWouldFallOutOf()
{
    std::vector<PlanePolygon> polygons = {polygonOf(0, square(0, 0, 100), {{{100, 50}, {50, 80}, {50, 20}}})};
    QVERIFY(HoleArrangement::arrange(polygons).misplaced.empty());
    QCOMPARE(holesOf(polygons), size_t(0));
}

void HoleArrangementTest::leavesAHoleThatTouchesAnEdgeItLiesWithin()
{
    std::vector<PlanePolygon> polygons = {polygonOf(0, square(0, 0, 100), {{{0, 50}, {50, 80}, {50, 20}}})};
    QVERIFY(HoleArrangement::arrange(polygons).misplaced.empty());
    QCOMPARE(holesOf(polygons), size_t(1));
}

void HoleArrangementTest::joinsHolesOfTwoPolygonsThatEachWouldTake()
{
    std::vector<PlanePolygon> polygons = {polygonOf(0, square(0, 0, 100), {square(60, 60, 20)}),
                                          polygonOf(1, square(5, 5, 100), {square(20, 20, 20)})};
    QVERIFY(HoleArrangement::arrange(polygons).misplaced.empty());
    QCOMPARE(recordsOf(polygons), QList<int>({0, 1}));
    QCOMPARE(ringArea(polygons[1].outer), 9600.0);
    QCOMPARE(polygons[0].holes.size(), size_t(1));
}

void HoleArrangementTest::arrangesNoPolygonsAtAll()
{
    std::vector<PlanePolygon> none;
    QVERIFY(HoleArrangement::arrange(none).misplaced.empty());
}

RXMAP_TEST(HoleArrangementTest, Core)
#include "tst_holearrangement.moc"
