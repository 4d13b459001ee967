#include "holeplacement.h"
#include "mapkinds.h"
#include "placementcost.h"
#include "ringlists.h"
#include "testbase.h"

#include <cmath>

PlacementCost placementCost;

/// How many edges, boxes and cells are looked at to place a map's holes: a cost that is the same on every machine.
class TestEdgeTests : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void theyGrowNoFasterThanSortingTheHoles_data();
    void theyGrowNoFasterThanSortingTheHoles();
    void aMapWithoutHolesNeedsNone();
    void aLargeRingIsNotLookedAtWholeForEveryHole();
    void longSlantingEdgesAreNotListedInAllCellsOfTheirBoxes();
    void onlyLargeRingsAndManyPointsAreWorthARaster_data();
    void onlyLargeRingsAndManyPointsAreWorthARaster();
    void aRingNoWiderThanItsRoundingIsLookedAtLikeAnyOther();
};

namespace {

/// What it costs to place the map's holes.
PlacementCost costOf(BenchmarkMap &map)
{
    const RingLists rings(map.chain(), map.count());
    placementCost = PlacementCost();
    const HolePlacement placement(rings.outers, rings.holes);
    return placementCost;
}

quint64 testsFor(BenchmarkMap &map)
{
    return costOf(map).edgeTests;
}

MapKind kindOf(const QString &name)
{
    for (const MapKind &kind : mapKinds()) {
        if (name == QString::fromStdString(kind.name))
            return kind;
    }
    return {};
}

BenchmarkMap::Ring circle(int vertices, double radius)
{
    BenchmarkMap::Ring ring;
    for (int i = 0; i < vertices; ++i) {
        const double angle = 6.28318530717958648 * i / vertices;
        ring.push_back({radius * std::cos(angle), radius * std::sin(angle)});
    }
    return ring;
}

double nLogN(double n)
{
    return n * std::log(n);
}

/// Boxes looked at for each outer ring, in units of how often the holes can be halved.
double boxesPerOuter(const BenchmarkMap &map, const PlacementCost &cost)
{
    return static_cast<double>(cost.boxVisits) / (map.outers() * std::log2(map.holes()));
}

double entriesPerVertex(const BenchmarkMap &map, const PlacementCost &cost)
{
    return static_cast<double>(cost.rasterEntries) / static_cast<double>(map.vertices());
}

} // namespace

void TestEdgeTests::theyGrowNoFasterThanSortingTheHoles_data()
{
    QTest::addColumn<QString>("kind");
    for (const char *kind : {"zones-smooth", "zones-rough", "specks"})
        QTest::newRow(kind) << QString::fromLatin1(kind);
}

void TestEdgeTests::theyGrowNoFasterThanSortingTheHoles()
{
    QFETCH(QString, kind);
    BenchmarkMap few = kindOf(kind).make(4000);
    BenchmarkMap many = kindOf(kind).make(64000);
    const PlacementCost fewCost = costOf(few);
    const PlacementCost manyCost = costOf(many);
    QVERIFY(fewCost.edgeTests > 0);
    const double growth = static_cast<double>(manyCost.edgeTests) / static_cast<double>(fewCost.edgeTests);
    const double allowed = nLogN(many.holes()) / nLogN(few.holes());
    QVERIFY2(growth <= allowed, qPrintable(QStringLiteral("%1 times, at most %2").arg(growth).arg(allowed)));
    for (const double boxes : {boxesPerOuter(few, fewCost), boxesPerOuter(many, manyCost)})
        QVERIFY2(boxes > 0.0 && boxes <= 4.0, qPrintable(QString::number(boxes)));
    for (const double entries : {entriesPerVertex(few, fewCost), entriesPerVertex(many, manyCost)})
        QVERIFY2(entries <= 3.0, qPrintable(QString::number(entries)));
    QVERIFY(manyCost.rasterEntries > 0);
}

void TestEdgeTests::aMapWithoutHolesNeedsNone()
{
    BenchmarkMap cells = kindOf(QStringLiteral("cells")).make(1000);
    QCOMPARE(testsFor(cells), quint64(0));
}

void TestEdgeTests::aLargeRingIsNotLookedAtWholeForEveryHole()
{
    for (const NamedMap &map : rebuildMaps()) {
        if (map.name != "ring-100k")
            continue;
        BenchmarkMap ring = map.make();
        const PlacementCost cost = costOf(ring);
        // A thousand holes of 20 vertices in a ring of a hundred thousand: 2 000 000 000 edge by edge.
        QVERIFY2(cost.edgeTests > 0 && cost.edgeTests < 200000, qPrintable(QString::number(cost.edgeTests)));
        // Not much more than its edges and two cells for each.
        QVERIFY2(cost.rasterEntries > 100000 && cost.rasterEntries < 400000,
                 qPrintable(QString::number(cost.rasterEntries)));
    }
}

void TestEdgeTests::longSlantingEdgesAreNotListedInAllCellsOfTheirBoxes()
{
    BenchmarkMap::Ring ring;
    for (int i = 0; i < 10; ++i) {
        ring.push_back({i * 100.0 - 1000.0, -500.0});
        ring.push_back({i * 100.0 + 50.0, 500.0});
    }
    // Short edges make for small cells.
    for (int i = 0; i < 2000; ++i)
        ring.push_back({999.0 - i, -501.0});
    BenchmarkMap map("slanting");
    map.add(ring, 1.0F, false);
    map.add(circle(100, 0.1), 1.0F, true);
    map.finish();
    // The hole is only to have a raster made; it need not be inside.
    for (OrvikTypes::RX_POLYGON *polygon = map.chain(); polygon != nullptr; polygon = polygon->next)
        polygon->area = polygon->isHole ? 1.0 : 1000.0;
    const PlacementCost cost = costOf(map);
    QVERIFY2(cost.rasterEntries > 0 && entriesPerVertex(map, cost) <= 8.0,
             qPrintable(QString::number(cost.rasterEntries)));
}

void TestEdgeTests::onlyLargeRingsAndManyPointsAreWorthARaster_data()
{
    QTest::addColumn<int>("vertices");
    QTest::addColumn<int>("points");
    QTest::addColumn<bool>("isEdgeByEdge");
    QTest::newRow("a small ring") << 15 << 1000 << true;
    QTest::newRow("a ring just large enough") << 16 << 1000 << false;
    QTest::newRow("few points") << 1000 << 47 << true;
    QTest::newRow("just enough points") << 1000 << 48 << false;
}

void TestEdgeTests::onlyLargeRingsAndManyPointsAreWorthARaster()
{
    QFETCH(int, vertices);
    QFETCH(int, points);
    QFETCH(bool, isEdgeByEdge);
    BenchmarkMap map("pond");
    map.add(circle(vertices, 1000.0), 1.0F, false);
    map.add(circle(points, 1.0), 1.0F, true);
    map.finish();
    const auto all = static_cast<quint64>(vertices * points);
    const quint64 tests = testsFor(map);
    QVERIFY2(isEdgeByEdge ? tests == all : tests < all / 10, qPrintable(QString::number(tests)));
}

void TestEdgeTests::aRingNoWiderThanItsRoundingIsLookedAtLikeAnyOther()
{
    constexpr int vertices = 4000;
    constexpr int points = 100;
    BenchmarkMap map("sliver");
    // Nearly all of its vertices are one.
    BenchmarkMap::Ring sliver(vertices, {400.0, 300.0 + 1e-12});
    sliver[0] = {400.0 - 1e-12, 300.0 - 1e-12};
    sliver[1] = {400.0 + 1e-12, 300.0 - 1e-12};
    map.add(sliver, 1.0F, false);
    map.add(BenchmarkMap::Ring(points, {400.0, 300.0}), 1.0F, true);
    map.finish();
    map.chain()->area = 1000.0;
    const quint64 tests = testsFor(map);
    // As if the ring were looked at whole for each point, and once for its row.
    QVERIFY2(tests > 0 && tests <= vertices * (points + 2), qPrintable(QString::number(tests)));
}

QTEST_APPLESS_MAIN(TestEdgeTests)
#include "tst_edgetests.moc"
