#include "findinglist.h"
#include "geoscontext.h"
#include "mapcheck.h"
#include "polygonchain.h"
#include "testbase.h"

#include <cmath>
#include <random>

Q_DECLARE_METATYPE(MapFinding::Kind)
Q_DECLARE_METATYPE(std::vector<PlanePolygon>)

namespace {

using Kind = MapFinding::Kind;
using Polygons = std::vector<PlanePolygon>;

const float none = std::nanf("");

PlaneRing box(double x, double y, double width, double height)
{
    return {{x, y}, {x + width, y}, {x + width, y + height}, {x, y + height}};
}

/// One polygon for each record, in this order.
Polygons mapOf(const std::vector<PlaneRing> &outers)
{
    Polygons polygons;
    for (const PlaneRing &outer : outers)
        polygons.push_back({outer, {}, static_cast<int>(polygons.size())});
    return polygons;
}

/// When no rates are given, every record has the same one.
QList<MapFinding> check(const Polygons &polygons, std::vector<float> rates = {}, double machineWidth = 12.0)
{
    if (rates.empty())
        rates.assign(polygons.size(), 100.0F);
    const size_t mappings = rates.size() / polygons.size();
    const PolygonChain chain(polygons, rates, mappings);
    std::vector<int> records;
    for (const PlanePolygon &polygon : polygons)
        records.push_back(polygon.record);
    MapCheck::Settings settings;
    settings.machineWidth = machineWidth;
    settings.columns.assign(mappings, {QStringLiteral("rate"), QStringLiteral("kg/ha"), 1.0});
    return *MapCheck::run(MapView(chain.first(), records, mappings), settings, LoadControl());
}

QList<MapFinding> ofKind(const QList<MapFinding> &findings, Kind kind)
{
    QList<MapFinding> result;
    for (const MapFinding &finding : findings) {
        if (finding.kind == kind)
            result.append(finding);
    }
    return result;
}

/// Four strips, 30 m wide each, around a rectangle of that size.
Polygons around(double width, double height)
{
    return mapOf({box(0, 0, width + 60, 30), box(0, 30 + height, width + 60, 30), box(0, 30, 30, height),
                  box(30 + width, 30, 30, height)});
}

Polygons fields(const std::vector<double> &sizes)
{
    std::vector<PlaneRing> rings;
    double x = 0.0;
    for (const double size : sizes) {
        rings.push_back(box(x, 0, size, size));
        x += 2.0 * size;
    }
    return mapOf(rings);
}

/// One field of 30 m for each rate, apart from each other.
Polygons plainFields(size_t count)
{
    return fields(std::vector<double>(count, 30.0));
}

} // namespace

/// What a check finds in maps of a few polygons, and next to each such map one in which it only just finds nothing.
class MapCheckTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void finds_data();
    void finds();
    void findsRates_data();
    void findsRates();
    void takesCellsOfOneRateForOneArea();
    void leavesPolygonsOfDifferentProductsAlone();
    void takesAJoinedHoleForAHole();
    void findsTheOverlapsThatGeosFinds_data();
    void findsTheOverlapsThatGeosFinds();
    void tellsTheRestOfManyTogether();
    void tellsManyNarrowAreasInOne();
    void endsWhenItIsCancelled();
};

void MapCheckTest::finds_data()
{
    QTest::addColumn<Polygons>("polygons");
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<QList<int>>("records"); // Empty: nothing is found.
    QTest::addColumn<double>("area");
    const auto row = [](const char *name, const Polygons &polygons, Kind kind, const QList<int> &records, double area) {
        QTest::newRow(name) << polygons << kind << records << area;
    };
    const PlaneRing square = box(0, 0, 50, 50);
    const QList<int> nothing;
    row("overlap", mapOf({square, box(100, 0, 50, 50), box(40, 0, 50, 50)}), Kind::Overlap, {0, 2}, 500.0);
    row("shared edge", mapOf({square, box(50, 0, 50, 50)}), Kind::Overlap, nothing, 0.0);
    row("overlap as wide as the rounding", mapOf({square, box(50 - 1.0 / 64, 0, 50, 50)}), Kind::Overlap, nothing, 0.0);
    row("vertex beside an edge", mapOf({square, {{50, 0}, {80, 0}, {80, 50}, {50, 50}, {49.995, 25}}}), Kind::Overlap,
        nothing, 0.0);
    row("polygon on another", mapOf({box(0, 0, 90, 90), box(30, 30, 30, 30)}), Kind::Overlap, {0, 1}, 900.0);
    Polygons island = mapOf({box(0, 0, 90, 90), box(30, 30, 30, 30)});
    island[0].holes = {box(30, 30, 30, 30)};
    row("island in a hole", island, Kind::Overlap, nothing, 0.0);
    row("two halves under a whole", mapOf({box(0, 0, 40, 40), box(40, 0, 40, 40), box(0, 0, 80, 40)}), Kind::Overlap,
        {0, 2}, 1600.0);
    Polygons parts = mapOf({square, box(40, 0, 50, 50)});
    parts[1].record = 0;
    row("parts of a record", parts, Kind::Overlap, {0}, 500.0);
    row("duplicate", mapOf({square, {{0, 0}, {25, 0}, {50, 0}, {50, 50}, {0, 50}}}), Kind::Duplicate, {0, 1}, 2500.0);
    row("nearly the same", mapOf({square, box(0, 0, 50, 49)}), Kind::Duplicate, nothing, 0.0);
    row("gap", around(20, 10), Kind::Gap, {0, 1, 2, 3}, 200.0);
    Polygons pond = mapOf({box(0, 0, 90, 90)});
    pond[0].holes = {box(30, 30, 30, 30)};
    row("hole", pond, Kind::Gap, nothing, 0.0);
    row("sliver between neighbours", around(0.25, 40), Kind::Sliver, {0, 1, 2, 3}, 10.0);
    row("gap as narrow as the rounding", around(1.0 / 64, 40), Kind::Sliver, nothing, 0.0);
    row("slit open at both ends", mapOf({square, box(50.125, 0, 50, 50)}), Kind::Sliver, {0, 1}, 6.25);
    row("slit open at one end", mapOf({square, box(50.125, 0, 50, 50), box(0, 50, 100.125, 50)}), Kind::Sliver,
        {0, 1, 2}, 6.25);
    row("slit between strips that are not abreast", mapOf({square, box(50.125, 20, 50, 50)}), Kind::Sliver, {0, 1},
        3.75);
    row("slit between cells", mapOf({square, box(0, 50, 50, 50), box(50.125, 0, 50, 50), box(50.125, 50, 50, 50)}),
        Kind::Sliver, {0, 1, 2, 3}, 12.5);
    // Only the part that is narrow: 0.375 m wide in the middle, 4.55 m long.
    row("slit that widens", mapOf({square, {{50.25, 0}, {100, 0}, {100, 50}, {53, 50}}}), Kind::Sliver, {0, 1}, 1.7);
    row("slit that widens to both sides of a corner",
        mapOf({square, {{54, 0}, {100, 0}, {100, 50}, {54, 50}, {50.1, 25}}}), Kind::Sliver, {0, 1}, 1.54);
    row("notch that is wide open", mapOf({square, {{50, 0}, {100, 0}, {100, 50}, {90, 50}}}), Kind::Sliver, nothing,
        0.0);
    row("headland track", mapOf({square, box(51, 0, 50, 50)}), Kind::Sliver, nothing, 0.0);
    row("slit as narrow as the rounding", mapOf({square, box(50 + 1.0 / 64, 0, 50, 50)}), Kind::Sliver, nothing, 0.0);
    row("notch where neighbours meet",
        mapOf({{{0, 0}, {50, 0}, {50, 49}, {49.8, 50}, {0, 50}}, {{50, 0}, {90, 0}, {90, 50}, {50.2, 50}, {50, 49}}}),
        Kind::Sliver, nothing, 0.0);
    row("polygon that is a sliver", mapOf({square, box(50, 0, 0.25, 50)}), Kind::Sliver, {1}, 12.5);
    row("no sliver", mapOf({square, box(50, 0, 0.75, 50)}), Kind::Sliver, nothing, 0.0);
    row("narrow strip", mapOf({square, box(60, 0, 11.5, 200)}), Kind::Narrow, {1}, 2300.0);
    row("narrow cell", mapOf({square, box(60, 0, 11, 11)}), Kind::Narrow, {1}, 121.0);
    row("as wide as the machine", mapOf({square, box(60, 0, 11.96, 200)}), Kind::Narrow, nothing, 0.0);
    Polygons frame = mapOf({box(0, 0, 100, 100)});
    frame[0].holes = {box(10, 10, 80, 80)};
    row("narrow ring", frame, Kind::Narrow, {0}, 3600.0);
    row("cells of one rate", mapOf({box(0, 0, 10, 10), box(10, 0, 10, 10), box(0, 10, 20, 10)}), Kind::Narrow, nothing,
        0.0);
    row("cells of one rate in a row", mapOf({box(0, 0, 10, 10), box(10, 0, 10, 10), box(20, 0, 10, 10)}), Kind::Narrow,
        {0, 1, 2}, 300.0);
    row("cells of one rate that meet in a corner", mapOf({box(0, 0, 10, 10), box(10, 10, 10, 10)}), Kind::Narrow, {0},
        100.0);
    row("cell beside a wide one of its rate", mapOf({square, box(50, 5, 10, 10)}), Kind::Narrow, nothing, 0.0);
}

void MapCheckTest::finds()
{
    QFETCH(Polygons, polygons);
    QFETCH(Kind, kind);
    QFETCH(QList<int>, records);
    QFETCH(double, area);
    const QList<MapFinding> findings = ofKind(check(polygons), kind);
    QCOMPARE(findings.isEmpty(), records.isEmpty());
    if (records.isEmpty())
        return;
    const MapFinding &finding = findings.first();
    QCOMPARE(finding.records, records);
    QVERIFY2(std::fabs(*finding.area - area) < 0.02 * area, qPrintable(finding.text));
    QVERIFY(finding.extent.contains(*finding.place));
}

void MapCheckTest::findsRates_data()
{
    QTest::addColumn<QList<float>>("rates");
    QTest::addColumn<QList<int>>("records"); // Those whose rates are far from the others.
    const QList<int> nothing;
    QTest::newRow("ten times too much") << QList<float>({100, 120, 1300, 140, 80}) << QList<int>({2});
    QTest::newRow("ten times too little") << QList<float>({100, 110, 120, 130, 12}) << QList<int>({4});
    QTest::newRow("wide range") << QList<float>({50, 100, 150, 200, 400}) << nothing;
    QTest::newRow("zero") << QList<float>({100, 110, 120, 0, 130}) << nothing;
    QTest::newRow("half of the field") << QList<float>({10, 12, 14, 200, 200, 210}) << nothing;
    QTest::newRow("mostly one rate") << QList<float>({100, 100, 100, 100, 100, 100, 150}) << nothing;
    QTest::newRow("no rate") << QList<float>({100, 120, none, 140, 80}) << nothing;
    QTest::newRow("skewed") << QList<float>({1, 1.5F, 2, 2.5F, 3, 4, 5, 7, 10, 14, 20}) << nothing;
}

void MapCheckTest::findsRates()
{
    QFETCH(QList<float>, rates);
    QFETCH(QList<int>, records);
    const auto findings = ofKind(check(plainFields(size_t(rates.size())), {rates.begin(), rates.end()}), Kind::Outlier);
    QCOMPARE(findings.isEmpty(), records.isEmpty());
    if (!records.isEmpty())
        QCOMPARE(findings.first().records, records);
}

void MapCheckTest::takesCellsOfOneRateForOneArea()
{
    // Two cells, and a third and a fourth one that share only parts of their edges with them.
    const Polygons cells = mapOf({box(0, 0, 10, 10), box(10, 0, 10, 10), box(-5, 10, 15, 10), box(10, 10, 15, 10)});
    QCOMPARE(ofKind(check(cells, {100, 100, 100, 100}), Kind::Narrow).size(), 0);
    const QList<MapFinding> halves = ofKind(check(cells, {100, 100, 200, 200}), Kind::Narrow);
    QCOMPARE(halves.size(), 2);
    QCOMPARE(halves.first().text,
             QStringLiteral(
                 "records 0 and 1 have the same rate and are 10.0 m wide together, narrower than the machine (12 m)"));
    QCOMPARE(ofKind(check(cells, {1, 2, 3, 4}), Kind::Narrow).size(), 4);
    QCOMPARE(ofKind(check(cells, {1, none, 1, none, 1, 2, 1, 2}), Kind::Narrow).size(), 2);
}

void MapCheckTest::leavesPolygonsOfDifferentProductsAlone()
{
    const Polygons polygons = mapOf({box(0, 0, 50, 50), box(20, 0, 50, 50)});
    QCOMPARE(ofKind(check(polygons, {100, none, none, 5}), Kind::Overlap).size(), 0);
    QCOMPARE(ofKind(check(polygons, {100, none, 80, 5}), Kind::Overlap).size(), 1);
}

void MapCheckTest::takesAJoinedHoleForAHole()
{
    // A line from (0, 0) joins the hole from (30, 30) to (60, 60) to the outer ring.
    const Polygons polygons =
        mapOf({{{0, 0}, {90, 0}, {90, 90}, {0, 90}, {0, 0}, {30, 30}, {30, 60}, {60, 60}, {60, 30}, {30, 30}}});
    const PolygonChain chain(polygons, {100.0F}, 1);
    const MapCheck::Settings settings{12.0, {{QStringLiteral("rate"), QStringLiteral("kg/ha"), 1.0}}};
    const auto found = [&](const std::vector<PlaneRing> &joined) {
        return MapCheck::run(MapView(chain.first(), {0}, 1, joined), settings, LoadControl())->size();
    };
    QCOMPARE(found({}), 1);
    QCOMPARE(found({box(30, 30, 30, 30)}), 0);
}

void MapCheckTest::findsTheOverlapsThatGeosFinds_data()
{
    QTest::addColumn<unsigned>("seed");
    for (unsigned seed = 0; seed < 20; ++seed)
        QTest::addRow("%u", seed) << seed;
}

void MapCheckTest::findsTheOverlapsThatGeosFinds()
{
    QFETCH(unsigned, seed);
    std::mt19937 random(seed);
    // On a lattice, so that many polygons share edges and corners.
    const auto number = [&random](unsigned count) { return 5.0 * static_cast<double>(random() % count); };
    std::vector<PlaneRing> rings;
    for (int i = 0; i < 25; ++i) {
        const PlaneVertex a = {number(40), number(40)};
        rings.push_back(random() % 2 == 0
                            ? box(a.x, a.y, 5 + number(8), 5 + number(8))
                            : PlaneRing{a, {a.x + 5 + number(8), a.y}, {a.x + number(8), a.y + 5 + number(8)}});
    }
    QMap<QPair<int, int>, double> expected;
    const GeosContext geos;
    for (size_t a = 0; a < rings.size(); ++a) {
        for (size_t b = a + 1; b < rings.size(); ++b) {
            double area = 0.0;
            for (const PlanePolygon &part :
                 geos.polygons(geos.common(geos.polygon(rings[a], {}), geos.polygon(rings[b], {})), 0))
                area += ringArea(part.outer);
            if (area > 0.1)
                expected.insert({int(a), int(b)}, area);
        }
    }
    QMap<QPair<int, int>, double> found;
    const QList<MapFinding> findings = check(mapOf(rings));
    for (const MapFinding &finding : ofKind(findings, Kind::Overlap) + ofKind(findings, Kind::Duplicate))
        found.insert({finding.records.at(0), finding.records.at(1)}, *finding.area);
    QCOMPARE(found.keys(), expected.keys());
    for (const auto &pair : expected.keys())
        QVERIFY(std::fabs(found.value(pair) - expected.value(pair)) < 0.1);
}

void MapCheckTest::tellsTheRestOfManyTogether()
{
    std::vector<PlaneRing> rings;
    for (int i = 0; i < 150; ++i) {
        rings.push_back(box(100 * i, 0, 50, 50));
        rings.push_back(box(100 * i + 40, 0, 50, 50));
    }
    const QList<MapFinding> findings = ofKind(check(mapOf(rings)), Kind::Overlap);
    QCOMPARE(findings.size(), int(FindingList::mostOfAKind) + 1);
    QCOMPARE(findings.last().text, QStringLiteral("50 more overlaps, 25000.0 m2 in all"));
    QCOMPARE(findings.last().records.size(), 100);
}

void MapCheckTest::tellsManyNarrowAreasInOne()
{
    QCOMPARE(ofKind(check(plainFields(10), {}, 40.0), Kind::Narrow).size(), 10);
    Polygons polygons = plainFields(11);
    polygons[7].outer = box(420, 0, 20, 30);
    const QList<MapFinding> findings = ofKind(check(polygons, {}, 40.0), Kind::Narrow);
    QCOMPARE(findings.size(), 1);
    QCOMPARE(
        findings.first().text,
        QStringLiteral("11 areas of one rate are narrower than the machine (40 m), the narrowest 20.0 m (record 7)"));
    QCOMPARE(findings.first().records.size(), 11);
    QVERIFY(std::fabs(*findings.first().area - 9600.0) < 1.0);
    QVERIFY(findings.first().extent.contains(QPointF(430, 15)));
}

void MapCheckTest::endsWhenItIsCancelled()
{
    const Polygons polygons = mapOf({box(0, 0, 50, 50), box(40, 0, 50, 50)});
    const PolygonChain chain(polygons, {1.0F, 2.0F}, 1);
    const std::atomic<bool> cancelled(true);
    LoadControl control;
    control.cancelled = &cancelled;
    QVERIFY(!MapCheck::run(MapView(chain.first(), {0, 1}, 1), {12.0, {{}}}, control));
}

RXMAP_TEST(MapCheckTest, None)
#include "tst_mapcheck.moc"
