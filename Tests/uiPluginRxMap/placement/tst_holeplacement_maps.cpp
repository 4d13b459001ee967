#include "awkwardmaps.h"
#include "mapkinds.h"
#include "mapstatistics.h"
#include "placedholes.h"
#include "randommap.h"
#include "referenceplacement.h"
#include "testbase.h"

#include <algorithm>

Q_DECLARE_METATYPE(MapKind)

/// Holes of whole maps are placed as by comparing each with each outer ring.
class TestHolePlacementOfMaps : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void theFastWayEqualsTheReference_data();
    void theFastWayEqualsTheReference();
    void largeMapsArePlacedAsByTheReference_data();
    void largeMapsArePlacedAsByTheReference();
};

void TestHolePlacementOfMaps::theFastWayEqualsTheReference_data()
{
    addRandomKinds();
}

void TestHolePlacementOfMaps::theFastWayEqualsTheReference()
{
    QFETCH(RandomKind, kind);
    QFETCH(MapStatistics::Counts, least);
    MapStatistics statistics;
    for (unsigned int seed = 1; seed <= 1000; ++seed) {
        RandomMap map(kind, seed);
        const RingLists rings = split(map.chain);
        QCOMPARE(placed(rings), referencePlacement(rings.outers, rings.holes));
        if (seed <= countedMaps)
            statistics.add(map.chain);
    }
    const QString missing = statistics.shortOf(least);
    QVERIFY2(missing.isEmpty(), qPrintable(missing));
}

void TestHolePlacementOfMaps::largeMapsArePlacedAsByTheReference_data()
{
    QTest::addColumn<MapKind>("kind");
    QTest::addColumn<int>("rings");
    QTest::addColumn<int>("fewestHoles");
    const auto addRows = [](const std::vector<MapKind> &kinds, int rings, const QVector<int> &fewestHoles) {
        QCOMPARE(static_cast<int>(kinds.size()), fewestHoles.size());
        for (int i = 0; i < fewestHoles.size(); ++i) {
            const MapKind &kind = kinds[static_cast<std::size_t>(i)];
            QTest::newRow(kind.name.c_str()) << kind << rings << fewestHoles.at(i);
        }
    };
    addRows(mapKinds(), 3000, {0, 60, 600, 1000});
    addRows(awkwardKinds(), 1000, {1000, 1000, 150});
}

// In published order, each ring before its holes, and reversed, where a hole may lie in rings that come first.
void TestHolePlacementOfMaps::largeMapsArePlacedAsByTheReference()
{
    QFETCH(MapKind, kind);
    QFETCH(int, rings);
    QFETCH(int, fewestHoles);
    BenchmarkMap map = kind.make(rings);
    RingLists lists(map.chain(), map.count());
    const QVector<QVector<int>> expected = referencePlacement(lists.outers, lists.holes);
    QCOMPARE(placed(lists), expected);
    int holes = 0;
    for (const QVector<int> &here : expected)
        holes += here.size();
    std::reverse(lists.outers.begin(), lists.outers.end());
    QCOMPARE(placed(lists), referencePlacement(lists.outers, lists.holes));
    QVERIFY2(holes >= fewestHoles, qPrintable(QString::number(holes)));
}

RXMAP_TEST(TestHolePlacementOfMaps, None)
#include "tst_holeplacement_maps.moc"
