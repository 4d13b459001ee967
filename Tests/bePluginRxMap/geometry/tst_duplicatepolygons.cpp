#include "duplicatepolygons.h"
#include "planesketch.h"
#include "testbase.h"

#include <algorithm>
#include <random>

namespace {

PlaneRing turned(PlaneRing ring)
{
    std::reverse(ring.begin(), ring.end());
    std::rotate(ring.begin(), ring.begin() + 1, ring.end());
    return ring;
}

/// Whether two rings, each of distinct vertices, are the same except for their start and direction.
bool isSameOutline(const PlaneRing &a, PlaneRing b)
{
    for (int direction = 0; direction < 2; ++direction) {
        for (size_t start = 0; start < b.size(); ++start) {
            if (a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), samePlace))
                return true;
            std::rotate(b.begin(), b.begin() + 1, b.end());
        }
        std::reverse(b.begin(), b.end());
    }
    return false;
}

/// The polygons that remain when each one without holes is compared with every later one.
QList<int> recordsLeftByPairs(const std::vector<PlanePolygon> &polygons, bool (*hides)(int, int))
{
    QList<int> left;
    for (size_t i = 0; i < polygons.size(); ++i) {
        const bool isHidden = std::any_of(
            polygons.begin() + static_cast<std::ptrdiff_t>(i) + 1, polygons.end(), [&](const PlanePolygon &later) {
                return hides(later.record, polygons[i].record) && isSameOutline(polygons[i].outer, later.outer);
            });
        if (!isHidden)
            left.append(polygons[i].record);
    }
    return left;
}

bool always(int, int)
{
    return true;
}

QList<int> recordsOf(const std::vector<PlanePolygon> &polygons)
{
    QList<int> records;
    for (const PlanePolygon &polygon : polygons)
        records.append(polygon.record);
    return records;
}

} // namespace

class DuplicatePolygonsTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void keepsTheLastOfEqualPolygons();
    void sees_data();
    void sees();
    void asksWhetherTheLaterOneMayStand();
    void takesNegativeZeroForZero();
    void findsWhatComparingEachPairFinds();
    void findsTheFewRepeatedOnesOfALargeMap();
};

void DuplicatePolygonsTest::keepsTheLastOfEqualPolygons()
{
    std::vector<PlanePolygon> polygons = {polygonOf(0, square(0, 0, 9)), polygonOf(1, square(5, 0, 9)),
                                          polygonOf(2, square(0, 0, 9)), polygonOf(3, square(9, 9, 9)),
                                          polygonOf(4, square(0, 0, 9))};
    QCOMPARE(int(DuplicatePolygons::drop(polygons, always).size()), 2);
    QCOMPARE(recordsOf(polygons), QList<int>({1, 3, 4}));
}

void DuplicatePolygonsTest::sees_data()
{
    QTest::addColumn<int>("which");
    QTest::addColumn<int>("dropped");
    QTest::newRow("other start and direction") << 0 << 1;
    QTest::newRow("holes in another order") << 1 << 1;
    QTest::newRow("another hole") << 2 << 0;
    QTest::newRow("the same outline through other vertices") << 3 << 0;
}

void DuplicatePolygonsTest::sees()
{
    QFETCH(int, which);
    QFETCH(int, dropped);
    const PlaneRing big = square(0, 0, 90);
    const PlaneRing a = square(10, 10, 10);
    const PlaneRing b = square(30, 30, 10);
    const PlaneRing c = square(50, 50, 10);
    const PlaneRing otherTriangle = {{0, 0}, {90, 0}, {90, 90}, {60, 120}, {0, 60}};
    const PlaneRing triangle = {{0, 0}, {90, 0}, {90, 90}, {60, 90}, {0, 90}};
    std::vector<PlanePolygon> pairs[] = {{polygonOf(0, big, {a}), polygonOf(1, turned(big), {turned(a)})},
                                         {polygonOf(0, big, {a, b}), polygonOf(1, big, {b, turned(a)})},
                                         {polygonOf(0, big, {a, b}), polygonOf(1, big, {a, c})},
                                         {polygonOf(0, triangle), polygonOf(1, otherTriangle)}};
    QCOMPARE(int(DuplicatePolygons::drop(pairs[which], always).size()), dropped);
    QCOMPARE(pairs[which].back().record, 1);
}

void DuplicatePolygonsTest::asksWhetherTheLaterOneMayStand()
{
    std::vector<PlanePolygon> polygons = {polygonOf(0, square(0, 0, 9)), polygonOf(1, square(0, 0, 9)),
                                          polygonOf(2, square(0, 0, 9))};
    const std::vector<PlanePolygon> dropped =
        DuplicatePolygons::drop(polygons, [](int later, int earlier) { return later == 2 && earlier == 0; });
    QCOMPARE(recordsOf(dropped), QList<int>({0}));
    QCOMPARE(recordsOf(polygons), QList<int>({1, 2}));
}

void DuplicatePolygonsTest::takesNegativeZeroForZero()
{
    PlaneRing other = square(0, 0, 9);
    other.front() = {-0.0, -0.0};
    std::vector<PlanePolygon> polygons = {polygonOf(0, square(0, 0, 9)), polygonOf(1, other)};
    QCOMPARE(int(DuplicatePolygons::drop(polygons, always).size()), 1);
}

void DuplicatePolygonsTest::findsWhatComparingEachPairFinds()
{
    const auto hides = [](int later, int earlier) { return (later + earlier) % 3 != 0; };
    std::mt19937 random(8);
    const auto draw = [&random](int choices) { return static_cast<int>(random() % static_cast<unsigned>(choices)); };
    for (int round = 0; round < 200; ++round) {
        std::vector<PlanePolygon> polygons;
        for (int record = 0; record < 40; ++record) {
            const PlaneRing ring = square(draw(3), draw(3), 1 + draw(3));
            polygons.push_back(polygonOf(record, random() % 2 == 0 ? ring : turned(ring)));
        }
        const QList<int> expected = recordsLeftByPairs(polygons, hides);
        QCOMPARE(int(DuplicatePolygons::drop(polygons, hides).size()), 40 - expected.size());
        QCOMPARE(recordsOf(polygons), expected);
    }
}

void DuplicatePolygonsTest::findsTheFewRepeatedOnesOfALargeMap()
{
    std::vector<PlanePolygon> polygons;
    constexpr int side = 300;
    for (int cell = 0; cell < side * side; ++cell)
        polygons.push_back(polygonOf(cell, square(10.0 * (cell % side), 10.0 * (cell / side), 10.0)));
    QVERIFY(DuplicatePolygons::drop(polygons, always).empty());
    QList<int> repeated;
    for (int cell = 0; cell < side * side; cell += 1000) {
        repeated.append(cell);
        polygons.push_back(polygonOf(side * side + cell, turned(polygons[static_cast<size_t>(cell)].outer)));
    }
    QCOMPARE(recordsOf(DuplicatePolygons::drop(polygons, always)), repeated);
    QCOMPARE(polygons.size(), size_t(side * side));
}

RXMAP_TEST(DuplicatePolygonsTest, Core)
#include "tst_duplicatepolygons.moc"
