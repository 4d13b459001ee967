#include "backendtest.h"
#include "files.h"

#include "bePluginRxMap/rxmaploader.h"

#include <QTemporaryDir>

#include <cmath>

using OrvikTypes::RX_POLYGON;

namespace {

/// What a reader of the map does each time that the count is set: it walks the whole chain.
class ChainReader : public QObject {
    Q_OBJECT

public:
    explicit ChainReader(DbGroupRxMap *mapGroup)
        : group(mapGroup)
    {
        group->connectPropertySetSlot("polygonCount", this, SLOT(read()), Qt::UniqueConnection, true);
    }

    QList<unsigned> counts;
    double area = 0.0;
    /// Whether any query made while the count was 0 was answered as valid.
    bool wasAnsweredWhileEmpty = false;

public Q_SLOTS:
    void read()
    {
        counts.append(group->getPolygonCount());
        area = 0.0;
        const auto *record = static_cast<const RX_POLYGON *>(group->getPolygonBuffer());
        for (unsigned i = 0; i < group->getPolygonCount(); ++i, record = record->next)
            area += record->isHole ? -record->area : record->area;
        if (counts.last() == 0) {
            group->setQueryRatesAtXYZ({0.0, 0.0, 0.0});
            wasAnsweredWhileEmpty = wasAnsweredWhileEmpty || group->getRatesAtXYZValid();
        }
    }

private:
    DbGroupRxMap *group;
};

} // namespace

/// Maps beside each other, one after the other, and replacing each other.
class PrescriptionBackendMapsTest : public BackendTest {
    Q_OBJECT

private Q_SLOTS:
    void keepsTheGroupsOfALimitedNumberOfUnloadedMaps();
    void announcesZeroBeforeItReplacesAMap();
    void keepsWhatWasLoadedWhenALoadFails();
    void handsAProductToTheLatestMapAndBack();
    void keepsAnEditedDefaultRateWhenAProductIsHandedOver();
    void sharesOnePlaneAmongNeighbouringMaps();
    void givesAFarMapAPlaneOfItsOwn();
    void tellsFilesOfOneNameApart();
    void unloadsByGroupName();
    void replacesMapsManyTimesUnderAReader();
};

void PrescriptionBackendMapsTest::announcesZeroBeforeItReplacesAMap()
{
    DbGroupRxMap *map = group(load("overlap.geojson").group);
    ChainReader reader(map);
    load("overlap.geojson");
    QCOMPARE(reader.counts, QList<unsigned>({0, 2}));
    QVERIFY(reader.area > 19000.0);
    QVERIFY(!reader.wasAnsweredWhileEmpty);
    backend->unload(map->name());
    QCOMPARE(reader.counts, QList<unsigned>({0, 2, 0}));
    QVERIFY(map->getPolygonBuffer() == nullptr);
}

void PrescriptionBackendMapsTest::keepsWhatWasLoadedWhenALoadFails()
{
    DbGroupRxMap *map = group(load("three-zones.geojson").group);
    void *const buffer = map->getPolygonBuffer();
    QSignalSpy counts(map, &DbGroupRxMap::polygonCountSet);
    const LoadReport missing = load("no-such-file.geojson");
    QVERIFY(!missing.isOk());
    QVERIFY(missing.error.contains(QStringLiteral("no-such-file.geojson")));
    QVERIFY(!missing.error.contains(QLatin1Char('\n')));
    const LoadReport column =
        backend->loadAndWait(requestFor(fixture("three-zones.geojson"), {QStringLiteral("LIME")}));
    QVERIFY(column.error.contains(QStringLiteral("LIME")));
    QCOMPARE(counts.count(), 0);
    QCOMPARE(map->getPolygonBuffer(), buffer);
    QCOMPARE(map->getPolygonCount(), 3U);
    QCOMPARE(backend->maps().size(), 1);
}

void PrescriptionBackendMapsTest::handsAProductToTheLatestMapAndBack()
{
    DbGroupRxMap *older = group(load("three-zones.geojson").group);
    const LoadReport newer = load("partly-without-rate.geojson");
    QCOMPARE(channels(group(newer.group)), QStringList({QStringLiteral("product1"), QStringLiteral("product2")}));
    QCOMPARE(channels(older), QStringList({QString(), QString(), QStringLiteral("product3")}));
    QCOMPARE(older->getPolygonCount(), 3U);

    load("three-zones.geojson");
    QCOMPARE(channels(group(newer.group)), QStringList({QString(), QString()}));
    QSignalSpy retold(group(newer.group), &DbGroupRxMap::polygonCountSet);
    QVERIFY(backend->unload(older->name()));
    QCOMPARE(channels(group(newer.group)), QStringList({QStringLiteral("product1"), QStringLiteral("product2")}));
    QCOMPARE(retold.count(), 1);
    QCOMPARE(retold.first().first().toUInt(), 3U);
}

void PrescriptionBackendMapsTest::keepsAnEditedDefaultRateWhenAProductIsHandedOver()
{
    DbGroupRxMap *older = group(load("three-zones.geojson").group);
    auto mappings = older->getRateCalMappings();
    mappings[0].defaultRate = 77.0;
    older->setRateCalMappings(mappings);
    const LoadReport newer = load("overlap.geojson");
    QCOMPARE(older->getRateCalMappings().first().rateCalName, QString());
    backend->unload(newer.group);
    QCOMPARE(older->getRateCalMappings(), mappings);
}

void PrescriptionBackendMapsTest::sharesOnePlaneAmongNeighbouringMaps()
{
    // The squares of one file start where the zones of the other do, so their south-west corners coincide.
    const LoadReport first = load("three-zones.geojson");
    const LoadReport second = load("overlap.geojson");
    QVERIFY(std::fabs(first.bounds.left() - second.bounds.left()) < 0.02);
    QVERIFY(std::fabs(first.bounds.top() - second.bounds.top()) < 0.02);
    QVERIFY(std::fabs(first.bounds.center().x()) < 0.1);
    backend->unload(first.group);
    const LoadReport third = load("pond-and-island.geojson");
    QVERIFY(std::fabs(third.bounds.left() - second.bounds.left()) < 0.02);
    backend->unload(second.group);
    backend->unload(third.group);
    QVERIFY(std::fabs(load("overlap.geojson").bounds.center().x()) < 0.1);
}

void PrescriptionBackendMapsTest::givesAFarMapAPlaneOfItsOwn()
{
    QTemporaryDir folder;
    const QString far = writeFile(folder.filePath(QStringLiteral("far.geojson")),
                                  readFile(fixture("overlap.geojson")).replace("5500", "5530"));
    LoadRequest inItsPlace = requestFor(far);
    inItsPlace.replacedGroups.append(load("three-zones.geojson").group);
    QCOMPARE(backend->loadAndWait(inItsPlace).warnings.filter(QStringLiteral("30 km")), QStringList());
    backend->unload(backend->maps().last().group);
    const LoadReport report = backend->loadAndWait(requestFor(far));
    QVERIFY2(report.isOk(), qPrintable(report.error));
    QVERIFY(std::fabs(report.bounds.center().x()) < 0.1);
    QVERIFY(std::fabs(report.bounds.center().y()) < 0.1);
    QVERIFY(report.warnings.join(QLatin1Char('\n')).contains(QStringLiteral("30 km")));
}

void PrescriptionBackendMapsTest::tellsFilesOfOneNameApart()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("overlap.geojson"));
    QVERIFY(QFile::copy(fixture("three-zones.geojson"), path));
    const LoadReport first = load("overlap.geojson");
    const LoadReport second = backend->loadAndWait(requestFor(path));
    QVERIFY2(second.isOk(), qPrintable(second.error));
    QVERIFY(first.group != second.group);
    QCOMPARE(group(first.group)->getPolygonCount(), 2U);
    QCOMPARE(group(second.group)->getPolygonCount(), 3U);
    QCOMPARE(load("overlap.geojson").group, first.group);
}

void PrescriptionBackendMapsTest::unloadsByGroupName()
{
    const LoadReport report = load("overlap.geojson");
    DbGroupRxMap *map = group(report.group);
    QVERIFY(!backend->unload(QStringLiteral("rxMap.other")));
    QVERIFY(backend->unload(report.group));
    QVERIFY(!backend->unload(report.group));
    QVERIFY(broker->findGroup(QStringLiteral("rxMap.*"), true, false).isEmpty());
    QVERIFY(map->isRemoved());
    QVERIFY(backend->maps().isEmpty());
    // A reader that still holds the group may query it, and gets nothing.
    map->setQueryRatesAtXYZ({0.0, 0.0, 0.0});
    QVERIFY(!map->getRatesAtXYZValid());
    QCOMPARE(load("overlap.geojson").group, report.group);
}

void PrescriptionBackendMapsTest::replacesMapsManyTimesUnderAReader()
{
    DbGroupRxMap *map = group(load("pond-and-island.geojson").group);
    ChainReader reader(map);
    for (int i = 0; i < 25; ++i) {
        const LoadReport other = load(i % 2 == 0 ? "overlap.geojson" : "three-zones.geojson");
        QVERIFY(load("pond-and-island.geojson").isOk());
        QVERIFY(std::fabs(reader.area - (40000.0 - 14400.0 + 6400.0 - 1600.0 + 400.0)) < 40.0);
        QVERIFY(backend->unload(other.group));
    }
}

void PrescriptionBackendMapsTest::keepsTheGroupsOfALimitedNumberOfUnloadedMaps()
{
    const int kept = static_cast<int>(PrescriptionBackend::retiredGroupsKept);
    const int loads = 2 * kept + 7;
    QList<QPointer<DbGroupRxMap>> groups;
    for (int i = 0; i < loads; ++i) {
        const LoadReport report = load("three-zones.geojson");
        groups.append(group(report.group));
        QVERIFY(backend->unload(report.group));
    }
    for (int i = 0; i < loads; ++i)
        QCOMPARE(groups.at(i).isNull(), i < loads - kept);
    QVERIFY(groups.last()->isRemoved());
    QCOMPARE(groups.last()->getPolygonCount(), 0U);
}

RXMAP_TEST(PrescriptionBackendMapsTest, Core)
#include "tst_prescriptionbackend_maps.moc"
