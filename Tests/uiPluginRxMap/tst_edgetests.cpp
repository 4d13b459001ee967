#include "holeplacement.h"
#include "mapkinds.h"
#include "ringlists.h"
#include "ringtest.h"
#include "testbase.h"

#include <cmath>

quint64 edgeTestsMade = 0;

/// How many edges are looked at to place a map's holes: a cost that is the same on every machine.
class TestEdgeTests : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void theyGrowNoFasterThanSortingTheHoles_data();
    void theyGrowNoFasterThanSortingTheHoles();
    void aMapWithoutHolesNeedsNone();
    void aLargeRingIsNotLookedAtWholeForEveryHole();
    void onlyLargeRingsAndManyPointsAreWorthARaster_data();
    void onlyLargeRingsAndManyPointsAreWorthARaster();
    void aRingNoWiderThanItsRoundingIsLookedAtLikeAnyOther();
};

namespace {

/// Edge tests made to place the map's holes.
quint64 testsFor(BenchmarkMap &map)
{
    const RingLists rings(map.chain(), map.count());
    const quint64 before = edgeTestsMade;
    const HolePlacement placement(rings.outers, rings.holes);
    return edgeTestsMade - before;
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
    const auto fewTests = static_cast<double>(testsFor(few));
    const auto manyTests = static_cast<double>(testsFor(many));
    QVERIFY(fewTests > 0.0);
    const double growth = manyTests / fewTests;
    const double allowed = nLogN(many.holes()) / nLogN(few.holes());
    QVERIFY2(growth <= allowed, qPrintable(QStringLiteral("%1 times, at most %2").arg(growth).arg(allowed)));
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
        const quint64 tests = testsFor(ring);
        // A thousand holes of 20 vertices in a ring of a hundred thousand: 2 000 000 000 edge by edge.
        QVERIFY2(tests > 0 && tests < 200000, qPrintable(QString::number(tests)));
    }
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
