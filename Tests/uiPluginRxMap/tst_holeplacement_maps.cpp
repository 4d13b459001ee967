#include "awkwardmaps.h"
#include "mapcensus.h"
#include "mapkinds.h"
#include "placedholes.h"
#include "plainplacement.h"
#include "randommap.h"
#include "testbase.h"

#include <algorithm>

/// Holes of whole maps, placed as by comparing each with each outer ring.
class TestHolePlacementOfMaps : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void theFastWayEqualsThePlainOne_data();
    void theFastWayEqualsThePlainOne();
    void largeMapsArePlacedAsPlainly_data();
    void largeMapsArePlacedAsPlainly();
};

namespace {

std::vector<MapKind> allKinds()
{
    std::vector<MapKind> kinds = mapKinds();
    for (const MapKind &kind : awkwardKinds())
        kinds.push_back(kind);
    return kinds;
}

} // namespace

void TestHolePlacementOfMaps::theFastWayEqualsThePlainOne_data()
{
    addRandomKinds();
}

void TestHolePlacementOfMaps::theFastWayEqualsThePlainOne()
{
    QFETCH(RandomKind, kind);
    QFETCH(MapCensus::Counts, least);
    MapCensus census;
    for (unsigned int seed = 1; seed <= 1000; ++seed) {
        RandomMap map(kind, seed);
        const RingLists rings = split(map.chain);
        QCOMPARE(placed(rings), plainPlacement(rings.outers, rings.holes));
        if (seed <= countedMaps)
            census.add(map.chain);
    }
    const QString missing = census.shortOf(least);
    QVERIFY2(missing.isEmpty(), qPrintable(missing));
}

void TestHolePlacementOfMaps::largeMapsArePlacedAsPlainly_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("fewestHoles");
    const QVector<int> fewest{0, 60, 600, 1000, 3000, 3000, 500};
    const std::vector<MapKind> kinds = allKinds();
    QCOMPARE(static_cast<int>(kinds.size()), fewest.size());
    for (int i = 0; i < fewest.size(); ++i)
        QTest::newRow(kinds[static_cast<std::size_t>(i)].name.c_str()) << i << fewest.at(i);
}

// As published, each ring before its holes, and the other way round, where a hole may lie in rings that come first.
void TestHolePlacementOfMaps::largeMapsArePlacedAsPlainly()
{
    QFETCH(int, kind);
    QFETCH(int, fewestHoles);
    BenchmarkMap map = allKinds()[static_cast<std::size_t>(kind)].make(3000);
    RingLists rings(map.chain(), map.count());
    const QVector<QVector<int>> expected = plainPlacement(rings.outers, rings.holes);
    QCOMPARE(placed(rings), expected);
    int holes = 0;
    for (const QVector<int> &here : expected)
        holes += here.size();
    std::reverse(rings.outers.begin(), rings.outers.end());
    QCOMPARE(placed(rings), plainPlacement(rings.outers, rings.holes));
    QVERIFY2(holes >= fewestHoles, qPrintable(QString::number(holes)));
}

RXMAP_TEST(TestHolePlacementOfMaps, None)
#include "tst_holeplacement_maps.moc"
