#include "fixture.h"
#include "paths.h"
#include "prescriptionloader.h"
#include "ratelookup.h"
#include "wholemaptest.h"

#include <array>
#include <cmath>
#include <deque>
#include <limits>
#include <random>

using OrvikTypes::RX_POLYGON;

namespace {

bool contains(const RX_POLYGON &ring, double x, double y)
{
    bool inside = false;
    for (unsigned i = 0, j = ring.vertexCount - 1; i < ring.vertexCount; j = i++)
        inside ^= SharedEdgeCrossing()(ring.vertices[j], ring.vertices[i], x, y);
    return inside;
}

/// The rate, found by looking at every ring of the chain; holes follow their outer ring. NaN when there is no rate.
float plainRate(const RX_POLYGON *first, size_t mapping, double x, double y)
{
    float rate = std::numeric_limits<float>::quiet_NaN();
    for (const RX_POLYGON *record = first; record != nullptr;) {
        const RX_POLYGON &outer = *record;
        bool inside = contains(outer, x, y);
        for (record = record->next; record != nullptr && record->isHole; record = record->next)
            inside = inside && !contains(*record, x, y);
        if (inside && !std::isnan(outer.rates[mapping]))
            rate = outer.rates[mapping];
    }
    return rate;
}

bool isSame(float a, float b)
{
    return a == b || (std::isnan(a) && std::isnan(b));
}

float rateAt(const LoadedMap &map, double x, double y)
{
    const RateLookup::Answer answer = map.lookup->ratesAt(x, y);
    return answer.rates.isEmpty() ? std::numeric_limits<float>::quiet_NaN() : answer.rates.first();
}

std::unique_ptr<LoadedMap> load(const QString &path, const QStringList &columns = {})
{
    const LoadControl control;
    return PrescriptionLoader(requestFor(path, columns), {}, control).load();
}

} // namespace

class RateLookupTest : public WholeMapTest {
    Q_OBJECT

private Q_SLOTS:
    void answersForEveryMapping();
    void answersNothingOutside();
    void answersNothingForPointsThatAreNone();
    void takesZeroForARate();
    void leavesHolesOutAndIslandsIn();
    void takesTheLastOfOverlappingPolygons();
    void looksBeneathAPolygonWithoutRate();
    void answersNothingForAnEmptyMap();
    void agreesWithLookingAtEveryRing_data();
    void agreesWithLookingAtEveryRing();
    void givesEachPointOnASharedEdgeToOneCell_data();
    void givesEachPointOnASharedEdgeToOneCell();
    void tellsApartWhatSinglePrecisionDoesNot_data();
    void tellsApartWhatSinglePrecisionDoesNot();
};

void RateLookupTest::answersForEveryMapping()
{
    const auto map = load(fixture("three-zones.geojson"));
    const RateLookup::Answer answer = map->lookup->ratesAt(0.0, 0.0);
    QCOMPARE(answer.rates, QList<float>({80.0F, 150.0F, 2.5F}));
    QVERIFY(answer.hasRate(2));
    QVERIFY(!answer.hasRate(3));
    QVERIFY(!answer.hasRate(-1));
}

void RateLookupTest::answersNothingOutside()
{
    const auto map = load(fixture("three-zones.geojson"));
    QVERIFY(map->lookup->ratesAt(0.0, 60.0).rates.isEmpty());
    QVERIFY(map->lookup->ratesAt(1e300, -1e300).rates.isEmpty());
}

void RateLookupTest::answersNothingForPointsThatAreNone()
{
    const auto map = load(fixture("three-zones.geojson"));
    const double infinite = std::numeric_limits<double>::infinity();
    for (const double bad : {std::nan(""), infinite, -infinite}) {
        QVERIFY(map->lookup->ratesAt(bad, 0.0).rates.isEmpty());
        QVERIFY(map->lookup->ratesAt(0.0, bad).rates.isEmpty());
    }
}

void RateLookupTest::takesZeroForARate()
{
    const auto map = load(fixture("three-zones.geojson"));
    const RateLookup::Answer answer = map->lookup->ratesAt(-100.0, 0.0);
    QCOMPARE(answer.rates.last(), 0.0F);
    QVERIFY(answer.hasRate(2));
}

void RateLookupTest::leavesHolesOutAndIslandsIn()
{
    const auto map = load(fixture("pond-and-island.geojson"));
    QCOMPARE(rateAt(*map, 90.0, 90.0), 10.0F);
    QVERIFY(std::isnan(rateAt(*map, 50.0, 50.0)));
    QCOMPARE(rateAt(*map, 30.0, 30.0), 20.0F);
    QVERIFY(std::isnan(rateAt(*map, 15.0, 15.0)));
    QCOMPARE(rateAt(*map, 0.0, 0.0), 30.0F);
}

void RateLookupTest::takesTheLastOfOverlappingPolygons()
{
    const auto map = load(fixture("overlap.geojson"));
    QCOMPARE(rateAt(*map, -50.0, -50.0), 10.0F);
    QCOMPARE(rateAt(*map, 0.0, 0.0), 20.0F);
    QCOMPARE(rateAt(*map, 50.0, 50.0), 20.0F);
}

void RateLookupTest::looksBeneathAPolygonWithoutRate()
{
    float rates[] = {1.0F, 2.0F, 5.0F, std::numeric_limits<float>::quiet_NaN()};
    PlaneVertex square[] = {{0, 0}, {10, 0}, {10, 10}, {0, 10}};
    RX_POLYGON chain[2] = {{100.0, 0, square, 4, rates, false, nullptr},
                           {100.0, 0, square, 4, rates + 2, false, nullptr}};
    chain[0].next = &chain[1];
    const RateLookup both(chain, 2, 2, {});
    QCOMPARE(both.ratesAt(5.0, 5.0).rates, QList<float>({5.0F, 2.0F}));
    const RateLookup upper(chain + 1, 1, 2, {});
    QVERIFY(upper.ratesAt(5.0, 5.0).hasRate(0));
    QVERIFY(!upper.ratesAt(5.0, 5.0).hasRate(1));
    rates[2] = rates[3];
    QVERIFY(RateLookup(chain + 1, 1, 2, {}).ratesAt(5.0, 5.0).rates.isEmpty());
}

void RateLookupTest::answersNothingForAnEmptyMap()
{
    QVERIFY(RateLookup(nullptr, 0, 1, {}).ratesAt(0.0, 0.0).rates.isEmpty());
}

void RateLookupTest::agreesWithLookingAtEveryRing_data()
{
    addMapRows({"three-zones.geojson", "pond-and-island.geojson", "overlap.geojson", "bow-tie.geojson",
                "two-parts.geojson", "touching-holes.geojson", "partly-without-rate.geojson"},
               {"grid-clipped/grid-clipped.shp", "cells-three-products/cells.shp", "cells-three-products/zones_8c.shp",
                "cells-17k/zones_4c.shp", "cells-17k/zones_8c.shp", "blocks-utm/treatment_blocks.gpkg",
                "zones-geojson/app_map_vector.geojson", "zones-geojson/*_test.geojson"});
}

void RateLookupTest::agreesWithLookingAtEveryRing()
{
    QFETCH(QString, path);
    QFETCH(QStringList, columns);
    const auto map = load(path, columns);
    QVERIFY2(map->report.isOk(), qPrintable(map->report.error));
    const QRectF bounds = map->report.bounds;
    std::mt19937 random(17);
    std::uniform_real_distribution<double> x(bounds.left() - 5.0, bounds.right() + 5.0);
    std::uniform_real_distribution<double> y(bounds.top() - 5.0, bounds.bottom() + 5.0);
    const size_t last = map->chain->mappings() - 1;
    int inside = 0;
    for (int i = 0; i < 2000; ++i) {
        const double px = x(random);
        const double py = y(random);
        const RateLookup::Answer answer = map->lookup->ratesAt(px, py);
        const float expected = plainRate(map->chain->first(), last, px, py);
        QVERIFY2(isSame(answer.hasRate(static_cast<int>(last)) ? answer.rates.last() : std::nanf(""), expected),
                 qPrintable(QStringLiteral("%1, %2: %3").arg(px).arg(py).arg(static_cast<double>(expected))));
        inside += std::isnan(expected) ? 0 : 1;
    }
    QVERIFY(inside > 20);
}

void RateLookupTest::givesEachPointOnASharedEdgeToOneCell_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("three-zones") << fixture("three-zones.geojson");
    QTest::newRow("sample") << sourcePath("Simulator/Resources/sample/sample-field.shp");
    if (realData(QString()).isEmpty())
        return;
    QTest::newRow("cells") << realData(QStringLiteral("cells-three-products/cells.shp"));
    QTest::newRow("zones") << realData(QStringLiteral("cells-17k/zones_4c.shp"));
}

void RateLookupTest::givesEachPointOnASharedEdgeToOneCell()
{
    QFETCH(QString, path);
    const auto map = load(path);
    QVERIFY2(map->report.isOk(), qPrintable(map->report.error));
    // Each cell is looked up alone, so that the cells that take a point can be counted.
    std::deque<RateLookup> cells;
    std::vector<RingExtent> extents;
    std::vector<PlaneVertex> points;
    std::mt19937 random(23);
    for (const RX_POLYGON *record = map->chain->first(); record != nullptr;) {
        const RX_POLYGON *outer = record;
        unsigned records = 1;
        for (record = record->next; record != nullptr && record->isHole; record = record->next)
            ++records;
        extents.push_back(RingExtent::of(outer->vertices, outer->vertexCount));
        cells.emplace_back(outer, records, map->chain->mappings(), std::vector<int>(records - 1, 0));
        for (unsigned i = 0; i < outer->vertexCount; ++i) {
            const PlaneVertex &a = outer->vertices[i];
            const PlaneVertex &b = outer->vertices[(i + 1) % outer->vertexCount];
            const double t = std::uniform_real_distribution<double>(0.0, 1.0)(random);
            points.push_back(a);
            points.push_back({0.5 * (a.x + b.x), 0.5 * (a.y + b.y)});
            points.push_back({a.x + t * (b.x - a.x), a.y + t * (b.y - a.y)});
        }
    }
    const RingTree tree(extents);
    int taken = 0;
    for (size_t k = 0; k < points.size(); k += 1 + points.size() / 20000) {
        const PlaneVertex point = points[k];
        int takers = 0;
        float rate = std::nanf("");
        for (const unsigned cell : tree.holding(point.x, point.y)) {
            const RateLookup::Answer answer = cells[cell].ratesAt(point.x, point.y);
            if (answer.rates.isEmpty())
                continue;
            ++takers;
            rate = answer.rates.first();
        }
        QVERIFY2(takers <= 1, qPrintable(QStringLiteral("%1, %2").arg(point.x, 0, 'g', 17).arg(point.y, 0, 'g', 17)));
        QVERIFY(isSame(rateAt(*map, point.x, point.y), rate));
        QVERIFY(isSame(rateAt(*map, point.x, point.y), rate));
        taken += takers;
    }
    QVERIFY(taken > 5);
}

void RateLookupTest::tellsApartWhatSinglePrecisionDoesNot_data()
{
    QTest::addColumn<double>("from");
    QTest::addColumn<double>("size");
    QTest::newRow("at the origin") << 0.0 << 10.0;
    QTest::newRow("off the grid") << 1.0 / 3.0 << 10.0 / 7.0;
    QTest::newRow("far away") << -1e6 / 3.0 << 10.0 / 7.0;
    QTest::newRow("far away, smaller than a last digit") << 1e7 / 3.0 << 0.01 / 7.0;
}

void RateLookupTest::tellsApartWhatSinglePrecisionDoesNot()
{
    QFETCH(double, from);
    QFETCH(double, size);
    constexpr int side = 12;
    std::mt19937 random(9);
    std::deque<std::array<PlaneVertex, 4>> squares;
    std::deque<float> rates;
    std::deque<RX_POLYGON> chain;
    const auto add = [&](int column, int row) {
        const double x[] = {from + column * size, from + (column + 1) * size};
        const double y[] = {from + row * size, from + (row + 1) * size};
        squares.push_back({{{x[0], y[0]}, {x[1], y[0]}, {x[1], y[1]}, {x[0], y[1]}}});
        rates.push_back(static_cast<float>(rates.size()));
        chain.push_back({size * size, 0, squares.back().data(), 4, &rates.back(), false, nullptr});
        if (chain.size() > 1)
            chain[chain.size() - 2].next = &chain.back();
    };
    for (int cell = 0; cell < side * side; ++cell) {
        add(cell % side, cell / side);
        // Of equal polygons the last one counts.
        if (random() % 7 == 0)
            add(cell % side, cell / side);
    }
    const RateLookup lookup(&chain.front(), static_cast<unsigned>(chain.size()), 1, {});
    constexpr double end = std::numeric_limits<double>::infinity();
    for (const auto &square : squares) {
        for (const PlaneVertex &corner : square) {
            for (const double x : {corner.x, std::nextafter(corner.x, -end), std::nextafter(corner.x, end)}) {
                for (const double y : {corner.y, std::nextafter(corner.y, -end), std::nextafter(corner.y, end)}) {
                    const RateLookup::Answer answer = lookup.ratesAt(x, y);
                    QVERIFY(isSame(answer.rates.value(0, std::nanf("")), plainRate(&chain.front(), 0, x, y)));
                }
            }
        }
    }
}

RXMAP_TEST(RateLookupTest, Core)
#include "tst_ratelookup.moc"
