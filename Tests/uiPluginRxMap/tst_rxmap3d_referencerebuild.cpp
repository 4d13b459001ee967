#include "maphost.h"
#include "mapstatistics.h"
#include "paths.h"
#include "randommap.h"
#include "referencerebuild.h"
#include "rxmap3dprobe.h"
#include "testbase.h"
#include "wholeprescription.h"

#include "bePluginRxMap/dbgrouprxmap.h"

#include <QCryptographicHash>
#include <QFile>

#include <cstring>

using OrvikTypes::RX_POLYGON;

/// What is built is compared bit for bit with a rebuild as it is defined.
class TestRxMap3DReferenceRebuild : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void randomMaps_data();
    void randomMaps();
    void cellsThatShareEdges();
    void holesThatTouch();
    void wholePrescriptions_data();
    void wholePrescriptions();
};

namespace {

using Legend = QList<OrvikTypes::RX_RATECOLOR>;

Legend legend()
{
    return {{0.0, QColor(10, 20, 30)}, {50.0, QColor(40, 250, 60, 77)}, {1e9, QColor(1, 2, 3, 4)}};
}

/// One of four legends: classes in order, one that lacks a last class for all rates, one out of order, an empty one.
Legend legendNumber(unsigned int number)
{
    const Legend few{{0.0, QColor(200, 20, 30)}, {30.0, QColor(40, 50, 160, 99)}};
    const Legend mixed{{60.0, QColor(9, 8, 7)}, {-10.0, QColor(90, 80, 70)}, {80.0, QColor(0, 255, 0)}};
    return QVector<Legend>{legend(), few, mixed, {}}.at(static_cast<int>(number % 4));
}

/// The difference between what the group's map was built into and the reference; empty when there is none.
QString difference(const RxMap3D &map, const ReferenceRebuild &expected, const RX_POLYGON *record)
{
    if (RxMap3DProbe::banks(map).size() != 1)
        return QStringLiteral("%1 banks").arg(RxMap3DProbe::banks(map).size());
    const QVector<Vertex> &built = RxMap3DProbe::banks(map).at(0).vertices;
    if (built.size() != expected.vertices.size())
        return QStringLiteral("%1 vertices instead of %2").arg(built.size()).arg(expected.vertices.size());
    for (int i = 0; i < built.size(); ++i) {
        if (std::memcmp(&built.at(i), &expected.vertices.at(i), sizeof(Vertex)) != 0)
            return QStringLiteral("vertex %1 differs").arg(i);
    }
    if (RxMap3DProbe::currentColor(map) != expected.carriedOver)
        return QStringLiteral("another colour is left for the next polygon");
    for (int i = 0; i < expected.drawIndexes.size(); ++i, record = record->next) {
        if (record->drawIndex != expected.drawIndexes.at(i))
            return QStringLiteral("record %1 has draw index %2 instead of %3")
                .arg(i)
                .arg(record->drawIndex)
                .arg(expected.drawIndexes.at(i));
    }
    return QString();
}

struct Drawn {
    int maps = 0;     ///< Maps that had triangles.
    int coloured = 0; ///< Maps whose colour changed from one polygon to another.
};

/// Of 200 maps. GLU makes no triangles of minute rings, where only the draw indexes can differ, and triangles of only a
/// few rings that cross themselves.
Drawn fewestDrawn(const RandomKind &kind)
{
    if (kind.scale != 1.0)
        return {};
    const bool isCrossed = kind.rings == RandomRings::Tangles || kind.odd == OddNumbers::AnyCoordinate;
    return isCrossed ? Drawn{100, 12} : Drawn{160, 65};
}

/// A drawable bound to an empty map of product 1, to which chains are published one after the other.
class Bound {
public:
    Bound()
        : group(host.addMap(QStringLiteral("random"), {1}))
        , map(&host.broker, nullptr)
    {
        map.setAamGroup(host.aam(1));
        map.updateRxMapGroup();
    }

    QString differenceOf(HandMadeChain &chain, const Legend &legend)
    {
        const ReferenceRebuild expected =
            referenceRebuild(chain.first(), chain.count(), legend, RxMap3DProbe::currentColor(map));
        MapHost::publish(*group, chain, legend);
        const QString found = difference(map, expected, chain.first());
        // Counts the built bank, not the expected one: the two are the same wherever no difference was found.
        int colorsHere = 0;
        quint32 last = 0;
        for (const Vertex &vertex : RxMap3DProbe::banks(map).value(0).vertices) {
            colorsHere += colorsHere == 0 || vertex.color != last ? 1 : 0;
            last = vertex.color;
        }
        drawn.maps += colorsHere > 0 ? 1 : 0;
        drawn.coloured += colorsHere > 1 ? 1 : 0;
        group->setPolygonCount(0);
        return found;
    }

    Drawn drawn;

private:
    MapHost host;
    DbGroupRxMap *group;
    RxMap3D map;
};

/// Adds digests of the rings and of what was built from them to the file that the environment variable
/// RXMAP_BANK_DIGESTS names, if any: two machines can be compared by these.
void noteDigests(const RxMap3D &map, const RX_POLYGON *record)
{
    QFile notes(qEnvironmentVariable("RXMAP_BANK_DIGESTS"));
    if (notes.fileName().isEmpty())
        return;
    QVERIFY2(notes.open(QIODevice::Append), qPrintable(notes.errorString()));
    QCryptographicHash rings(QCryptographicHash::Sha1);
    QCryptographicHash built(QCryptographicHash::Sha1);
    for (; record != nullptr; record = record->next) {
        rings.addData(reinterpret_cast<const char *>(record->vertices),
                      int(record->vertexCount * sizeof(*record->vertices)));
        built.addData(QByteArray::number(record->drawIndex) + ' ');
    }
    for (const Vertex &vertex : RxMap3DProbe::banks(map).at(0).vertices)
        built.addData(reinterpret_cast<const char *>(&vertex), sizeof vertex);
    notes.write(QByteArray(QTest::currentDataTag()) + ": rings " + rings.result().toHex() + ", built "
                + built.result().toHex() + '\n');
}

} // namespace

void TestRxMap3DReferenceRebuild::randomMaps_data()
{
    addRandomKinds();
}

void TestRxMap3DReferenceRebuild::randomMaps()
{
    QFETCH(RandomKind, kind);
    QFETCH(MapStatistics::Counts, least);
    Bound bound;
    MapStatistics statistics;
    for (unsigned int seed = 1; seed <= 200; ++seed) {
        RandomMap random(kind, seed);
        if (seed <= countedMaps)
            statistics.add(random.chain);
        for (unsigned int i = 0; i < random.chain.count(); ++i)
            random.chain.at(i).drawIndex = 1000 + static_cast<int>(i);
        const QString found = bound.differenceOf(random.chain, legendNumber(seed));
        QVERIFY2(found.isEmpty(), qPrintable(QStringLiteral("map %1: %2").arg(seed).arg(found)));
    }
    const QString missing = statistics.shortOf(least);
    QVERIFY2(missing.isEmpty(), qPrintable(missing));
    const Drawn fewest = fewestDrawn(kind);
    QVERIFY2(bound.drawn.maps >= fewest.maps, qPrintable(QString::number(bound.drawn.maps)));
    QVERIFY2(bound.drawn.coloured >= fewest.coloured, qPrintable(QString::number(bound.drawn.coloured)));
}

void TestRxMap3DReferenceRebuild::cellsThatShareEdges()
{
    HandMadeChain chain;
    for (int i = 0; i < 400; ++i)
        chain.addOuter(square(5.0 * (i % 20), 5.0 * (i / 20), 5.0), {static_cast<float>(i % 70)});
    Bound bound;
    QCOMPARE(bound.differenceOf(chain, legend()), QString());
}

// The first holes touch each other and the ring along whole edges and at corners, the others lie exactly on lines of
// vertices; the outer rings have equal areas.
void TestRxMap3DReferenceRebuild::holesThatTouch()
{
    HandMadeChain chain;
    chain.addOuter(square(0, 0, 100));
    chain.addOuter(square(0, 0, 100));
    chain.addOuter(square(50, 50, 100));
    for (const Ring &hole : {square(10, 10, 5), square(15, 10, 5), square(20, 15, 5), square(0, 40, 5),
                             square(95, 95, 5), square(50, 50, 10), square(60, 50, 40)})
        chain.addHole(hole);
    Bound bound;
    QCOMPARE(bound.differenceOf(chain, legend()), QString());
}

void TestRxMap3DReferenceRebuild::wholePrescriptions_data()
{
    QTest::addColumn<QString>("path");
    WholePrescription::addRows(sourcePath("Tests/fixtures"));
    WholePrescription::addRows(sourcePath("Simulator/Resources/sample"));
    if (!realData(QString()).isEmpty())
        WholePrescription::addRows(realData(QString()));
}

void TestRxMap3DReferenceRebuild::wholePrescriptions()
{
    QFETCH(QString, path);
    WholePrescription prescription(path);
    QCOMPARE(prescription.problem(), QString());

    RxMap3D map(&prescription.host.broker, nullptr);
    map.setAamGroup(prescription.host.aam(1));
    const ReferenceRebuild expected = referenceRebuild(prescription.chain(), prescription.group()->getPolygonCount(),
                                                       prescription.group()->getRateColors().at(0));
    map.updateRxMapGroup();
    QCOMPARE(difference(map, expected, prescription.chain()), QString());
    noteDigests(map, prescription.chain());
}

RXMAP_TEST(TestRxMap3DReferenceRebuild, Widgets)
#include "tst_rxmap3d_referencerebuild.moc"
