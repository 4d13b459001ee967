#include "Backend/prescriptionbackend.h"
#include "fixture.h"
#include "layerwriter.h"
#include "testbase.h"

#include "Framework/databroker.h"
#include "Framework/dbgroupaam.h"
#include "Framework/dbgroupjob.h"
#include "bePluginRxMap/dbgrouprxmap.h"
#include "bePluginRxMap/rxmaploader.h"

#include <QTemporaryDir>
#include <QTimer>

#include <cmath>
#include <limits>

using OrvikTypes::RX_POLYGON;

namespace {

/// What a reader of the map does on every set of the count: walks the whole chain.
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
    /// Whether a query while the count was 0 was answered as valid.
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

QStringList channels(const DbGroupRxMap *group)
{
    QStringList names;
    for (const auto &mapping : group->getRateCalMappings())
        names.append(mapping.rateCalName);
    return names;
}

} // namespace

class PrescriptionBackendTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void publishesAMapUnderItsFileName();
    void publishesTheChainWithHolesBehindTheirOuterRings();
    void mapsColumnsToProductsInOrder();
    void leavesOutTheProductOfAnEmptyColumn();
    void givesEachProductItsSettings();
    void keepsSettingsWhenAFileIsLoadedAgain();
    void announcesZeroBeforeItReplacesAMap();
    void answersAQueryWithinTheWrite();
    void answersNothingForAPointThatIsNone_data();
    void answersNothingForAPointThatIsNone();
    void answersForTheActiveProduct();
    void keepsWhatWasLoadedWhenALoadFails();
    void handsAProductToTheLatestMapAndBack();
    void keepsAnEditedDefaultRateWhenAProductIsHandedOver();
    void sharesOnePlaneAmongNeighbouringMaps();
    void givesAFarMapAPlaneOfItsOwn();
    void tellsFilesOfOneNameApart();
    void givesAGroupANameThatTheBrokerCanHold();
    void unloadsByGroupName();
    void worksRequestsOffInOrder();
    void reportsProgressUpToTheWhole();
    void keepsTheEventLoopRunningWhileItLoads();
    void reportsProgressAndAnswersWhileABigMapLoads();
    void cancelsWhatRunsAndWhatWaits();
    void cancelsALoadThatWaitsToBePublished();
    void isDestroyedWhileItLoads();
    void letsAListenerDestroyIt();
    void makesOneLoaderPerProduct();
    void replacesMapsManyTimesUnderAReader();

private:
    DbGroupRxMap *group(const QString &name) const
    {
        return qobject_cast<DbGroupRxMap *>(broker->getGroup(name, false));
    }
    LoadReport load(const char *name) { return backend->loadAndWait(requestFor(fixture(name))); }

    QScopedPointer<DataBroker> broker;
    QScopedPointer<PrescriptionBackend> backend;
};

void PrescriptionBackendTest::init()
{
    TestBase::init();
    broker.reset(new DataBroker);
    backend.reset(new PrescriptionBackend(broker.data()));
}

void PrescriptionBackendTest::cleanup()
{
    backend.reset();
    broker.reset();
    TestBase::cleanup();
}

void PrescriptionBackendTest::publishesAMapUnderItsFileName()
{
    QSignalSpy changed(backend.data(), &PrescriptionBackend::mapsChanged);
    const LoadReport report = load("three-zones.geojson");
    QVERIFY2(report.isOk(), qPrintable(report.error));
    QCOMPARE(report.group, QStringLiteral("rxMap.three-zones.geojson"));
    QCOMPARE(broker->findGroup(QStringLiteral("rxMap.*"), true, false), QStringList(report.group));
    QCOMPARE(backend->maps().size(), 1);
    QCOMPARE(backend->maps().first().group, report.group);
    QCOMPARE(changed.count(), 1);
    QVERIFY(!backend->isLoading());
}

void PrescriptionBackendTest::publishesTheChainWithHolesBehindTheirOuterRings()
{
    const LoadReport report = load("pond-and-island.geojson");
    const DbGroupRxMap *map = group(report.group);
    QCOMPARE(map->getPolygonCount(), 5U);
    QCOMPARE(report.outers, 3);
    QCOMPARE(report.holes, 2);
    const auto *record = static_cast<const RX_POLYGON *>(map->getPolygonBuffer());
    const RX_POLYGON *const first = record;
    const RX_POLYGON *outer = nullptr;
    for (int i = 0; i < report.polygons; ++i, record = record->next) {
        QCOMPARE(record, first + i);
        QVERIFY(record->isHole == (outer != nullptr && record->rates == outer->rates));
        if (!record->isHole)
            outer = record;
        QVERIFY(outer != nullptr);
        QVERIFY(record->area > 0.0);
    }
    QVERIFY(record == nullptr);
}

void PrescriptionBackendTest::mapsColumnsToProductsInOrder()
{
    const LoadReport report = load("three-zones.geojson");
    const auto mappings = group(report.group)->getRateCalMappings();
    QCOMPARE(report.columns,
             QStringList({QStringLiteral("SEED_K_HA"), QStringLiteral("FERT_KG_HA"), QStringLiteral("HERB_L_HA")}));
    QCOMPARE(mappings.size(), 3);
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(mappings.at(i).dbfColumnName, report.columns.at(i));
        QCOMPARE(mappings.at(i).rateCalName, QStringLiteral("product%1").arg(i + 1));
        QCOMPARE(mappings.at(i).defaultRate, i + 1.0);
    }
    QCOMPARE(group(report.group)->getRateColors().size(), 3);
    QVERIFY(group(report.group)->getRateColors() == report.legends);
}

void PrescriptionBackendTest::leavesOutTheProductOfAnEmptyColumn()
{
    const LoadReport report = backend->loadAndWait(requestFor(
        fixture("three-zones.geojson"), {QStringLiteral("HERB_L_HA"), QString(), QStringLiteral("seed_k_ha")}));
    QVERIFY2(report.isOk(), qPrintable(report.error));
    QCOMPARE(channels(group(report.group)), QStringList({QStringLiteral("product1"), QStringLiteral("product3")}));
    QCOMPARE(report.columns, QStringList({QStringLiteral("HERB_L_HA"), QStringLiteral("SEED_K_HA")}));
    QCOMPARE(group(report.group)->getRateCalMappings().last().defaultRate, 3.0);
}

void PrescriptionBackendTest::givesEachProductItsSettings()
{
    const auto settings = group(load("overlap.geojson").group)->getSettings();
    QCOMPARE(settings.size(), 3);
    QCOMPARE(settings.at(1).name, QStringLiteral("Fertiliser"));
    for (const auto &entry : settings) {
        QCOMPARE(entry.onLookAheadMs, 1000);
        QVERIFY(entry.followsMaster);
        QVERIFY(!entry.isMaster);
        QVERIFY(!entry.zeroRateShutoff);
    }
}

void PrescriptionBackendTest::keepsSettingsWhenAFileIsLoadedAgain()
{
    DbGroupRxMap *map = group(load("overlap.geojson").group);
    auto settings = map->getSettings();
    settings[2].onLookAheadMs = 2570;
    settings[2].isMaster = true;
    map->setSettings(settings);
    QCOMPARE(group(load("overlap.geojson").group), map);
    QCOMPARE(map->getSettings(), settings);
}

void PrescriptionBackendTest::announcesZeroBeforeItReplacesAMap()
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

void PrescriptionBackendTest::answersAQueryWithinTheWrite()
{
    DbGroupRxMap *map = group(load("three-zones.geojson").group);
    map->setQueryRatesAtXYZ({-100.0, 0.0, 0.0});
    QVERIFY(map->getRatesAtXYZValid());
    QCOMPARE(map->getRatesAtXYZ(), QList<float>({70.0F, 120.5F, 0.0F}));
    QCOMPARE(broker->setProperty(qPrintable(map->name()), "queryRatesAtXYZ",
                                 QVariant::fromValue(OrvikTypes::XYZ(100.0, 0.0, 9.0))),
             0);
    QCOMPARE(map->getRatesAtXYZ(), QList<float>({90.0F, 0.0F, 3.0F}));
    map->setQueryRatesAtXYZ({500.0, 0.0, 0.0});
    QVERIFY(!map->getRatesAtXYZValid());
    QVERIFY(map->getRatesAtXYZ().isEmpty());
}

void PrescriptionBackendTest::answersNothingForAPointThatIsNone_data()
{
    const double infinite = std::numeric_limits<double>::infinity();
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::newRow("x not a number") << std::nan("") << 0.0;
    QTest::newRow("y not a number") << 0.0 << std::nan("");
    QTest::newRow("x infinite") << infinite << 0.0;
    QTest::newRow("y infinite") << 0.0 << -infinite;
}

void PrescriptionBackendTest::answersNothingForAPointThatIsNone()
{
    QFETCH(double, x);
    QFETCH(double, y);
    DbGroupRxMap *map = group(load("three-zones.geojson").group);
    map->setQueryRatesAtXYZ({0.0, 0.0, 0.0});
    QVERIFY(map->getRatesAtXYZValid());
    map->setQueryRatesAtXYZ({x, y, 0.0});
    QVERIFY(!map->getRatesAtXYZValid());
}

void PrescriptionBackendTest::answersForTheActiveProduct()
{
    DbGroupRxMap *map = group(load("partly-without-rate.geojson").group);
    auto *job = new DbGroupJob(QStringLiteral("system.current.job"));
    auto *aam = new DbGroupAAM(QStringLiteral("aam1"));
    broker->publishGroup(job);
    broker->publishGroup(aam);
    const OrvikTypes::XYZ onlySeed(-75.0, 0.0, 0.0);
    map->setQueryRatesAtXYZ(onlySeed);
    QVERIFY(map->getRatesAtXYZValid());
    QCOMPARE(map->getRatesAtXYZ().first(), 10.0F);
    QVERIFY(std::isnan(map->getRatesAtXYZ().last()));

    job->setActiveAAMGroupName(QStringLiteral("aam1"));
    aam->setProductGroupName(QStringLiteral("product2"));
    map->setQueryRatesAtXYZ(onlySeed);
    QVERIFY(!map->getRatesAtXYZValid());
    aam->setProductGroupName(QStringLiteral("product1"));
    map->setQueryRatesAtXYZ(onlySeed);
    QVERIFY(map->getRatesAtXYZValid());
}

void PrescriptionBackendTest::keepsWhatWasLoadedWhenALoadFails()
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

void PrescriptionBackendTest::handsAProductToTheLatestMapAndBack()
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

void PrescriptionBackendTest::keepsAnEditedDefaultRateWhenAProductIsHandedOver()
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

void PrescriptionBackendTest::sharesOnePlaneAmongNeighbouringMaps()
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

void PrescriptionBackendTest::givesAFarMapAPlaneOfItsOwn()
{
    QTemporaryDir folder;
    const QString far = folder.filePath(QStringLiteral("far.geojson"));
    QFile file(fixture("overlap.geojson"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QFile copy(far);
    QVERIFY(copy.open(QIODevice::WriteOnly));
    copy.write(file.readAll().replace("5500", "5530"));
    copy.close();
    load("three-zones.geojson");
    const LoadReport report = backend->loadAndWait(requestFor(far));
    QVERIFY2(report.isOk(), qPrintable(report.error));
    QVERIFY(std::fabs(report.bounds.center().x()) < 0.1);
    QVERIFY(std::fabs(report.bounds.center().y()) < 0.1);
    QVERIFY(report.warnings.join(QLatin1Char('\n')).contains(QStringLiteral("30 km")));
}

void PrescriptionBackendTest::tellsFilesOfOneNameApart()
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

void PrescriptionBackendTest::givesAGroupANameThatTheBrokerCanHold()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QString::fromUtf8("поле-Süd*.geojson"));
    QVERIFY(QFile::copy(fixture("overlap.geojson"), path));
    const LoadReport report = backend->loadAndWait(requestFor(path));
    QVERIFY2(report.isOk(), qPrintable(report.error));
    QCOMPARE(report.group, QString::fromUtf8("rxMap.____-Süd_.geojson"));
    QVariant count;
    QCOMPARE(broker->getProperty(report.group.toLatin1().constData(), "polygonCount", count), 0);
    QCOMPARE(count.toUInt(), 2U);
}

void PrescriptionBackendTest::unloadsByGroupName()
{
    const LoadReport report = load("overlap.geojson");
    DbGroupRxMap *map = group(report.group);
    QVERIFY(!backend->unload(QStringLiteral("rxMap.other")));
    QVERIFY(backend->unload(report.group));
    QVERIFY(!backend->unload(report.group));
    QVERIFY(broker->findGroup(QStringLiteral("rxMap.*"), true, false).isEmpty());
    QVERIFY(map->isRemoved());
    QVERIFY(backend->maps().isEmpty());
    // Whoever still holds the group may ask it, and gets nothing.
    map->setQueryRatesAtXYZ({0.0, 0.0, 0.0});
    QVERIFY(!map->getRatesAtXYZValid());
    QCOMPARE(load("overlap.geojson").group, report.group);
}

void PrescriptionBackendTest::worksRequestsOffInOrder()
{
    QStringList finished;
    connect(backend.data(), &PrescriptionBackend::finished, this,
            [&finished](const LoadReport &report) { finished.append(QFileInfo(report.path).fileName()); });
    backend->load(requestFor(fixture("three-zones.geojson")));
    backend->load(requestFor(fixture("no-such-file.shp")));
    backend->load(requestFor(fixture("overlap.geojson")));
    QVERIFY(backend->isLoading());
    QVERIFY(backend->maps().isEmpty());
    QTRY_VERIFY(!backend->isLoading());
    QTRY_COMPARE(finished.size(), 3);
    QCOMPARE(finished,
             QStringList({QStringLiteral("three-zones.geojson"), QStringLiteral("no-such-file.shp"),
                          QStringLiteral("overlap.geojson")}));
    QCOMPARE(backend->maps().size(), 2);
}

void PrescriptionBackendTest::reportsProgressUpToTheWhole()
{
    QList<double> fractions;
    connect(backend.data(), &PrescriptionBackend::progress, this,
            [&fractions](const QString &, double fraction) { fractions.append(fraction); });
    load("three-zones.geojson");
    QVERIFY(!fractions.isEmpty());
    QVERIFY(std::is_sorted(fractions.begin(), fractions.end()));
    QVERIFY(fractions.first() >= 0.0);
    QCOMPARE(fractions.last(), 1.0);
}

void PrescriptionBackendTest::keepsTheEventLoopRunningWhileItLoads()
{
    bool ran = false;
    QMetaObject::invokeMethod(
        this, [&ran] { ran = true; }, Qt::QueuedConnection);
    load("three-zones.geojson");
    QVERIFY(ran);
}

void PrescriptionBackendTest::reportsProgressAndAnswersWhileABigMapLoads()
{
    constexpr int side = 60;
    LayerSketch sketch;
    sketch.fields = {{"rate", 1.0}};
    for (int i = 0; i < side * side; ++i)
        sketch.rows.append({squareText(11.0 + 0.001 * (i % side), 48.0 + 0.001 * (i / side), 0.001), {i + 1.0}});
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("big.shp"));
    QVERIFY(sketch.write(path));

    int handled = 0;
    QTimer whenIdle;
    connect(&whenIdle, &QTimer::timeout, this, [&handled] { ++handled; });
    whenIdle.start(0);
    QList<double> fractions;
    QList<int> handledBefore;
    connect(backend.data(), &PrescriptionBackend::progress, this, [&](const QString &, double fraction) {
        fractions.append(fraction);
        handledBefore.append(handled);
    });
    const LoadReport report = backend->loadAndWait(requestFor(path));
    QCOMPARE(report.polygons, side * side);
    QVERIFY(fractions.size() >= 20);
    QVERIFY(fractions.first() < 0.1);
    QCOMPARE(fractions.last(), 1.0);
    for (int i = 1; i < fractions.size(); ++i)
        QVERIFY(fractions.at(i) > fractions.at(i - 1));
    QVERIFY(handledBefore.last() > handledBefore.first());
}

void PrescriptionBackendTest::cancelsWhatRunsAndWhatWaits()
{
    const LoadReport before = load("overlap.geojson");
    QList<LoadReport> reports;
    connect(backend.data(), &PrescriptionBackend::finished, this,
            [&reports](const LoadReport &report) { reports.append(report); });
    backend->load(requestFor(fixture("three-zones.geojson")));
    backend->load(requestFor(fixture("overlap.geojson")));
    backend->cancel();
    QTRY_COMPARE(reports.size(), 2);
    for (const LoadReport &report : reports)
        QVERIFY2(report.error.contains(QStringLiteral("cancelled")), qPrintable(report.error));
    QVERIFY(reports.first().error.contains(QStringLiteral("three-zones.geojson")));
    QCOMPARE(backend->maps().size(), 1);
    QCOMPARE(backend->maps().first().group, before.group);
    QVERIFY(load("three-zones.geojson").isOk());
}

void PrescriptionBackendTest::cancelsALoadThatWaitsToBePublished()
{
    connect(backend.data(), &PrescriptionBackend::progress, this, [this](const QString &, double fraction) {
        if (fraction == 1.0)
            backend->cancel();
    });
    const LoadReport report = load("three-zones.geojson");
    QVERIFY2(report.error.contains(QStringLiteral("cancelled")), qPrintable(report.error));
    QVERIFY(backend->maps().isEmpty());
    QVERIFY(broker->findGroup(QStringLiteral("rxMap.*"), true, false).isEmpty());
}

void PrescriptionBackendTest::isDestroyedWhileItLoads()
{
    backend->load(requestFor(fixture("three-zones.geojson")));
    backend->load(requestFor(fixture("overlap.geojson")));
    backend.reset();
    QCoreApplication::processEvents();
    QVERIFY(broker->findGroup(QStringLiteral("rxMap.*"), true, false).isEmpty());

    backend.reset(new PrescriptionBackend(broker.data()));
    QMetaObject::invokeMethod(
        this, [this] { backend.reset(); }, Qt::QueuedConnection);
    const LoadReport report = load("three-zones.geojson");
    QVERIFY(report.error.contains(QStringLiteral("cancelled")));
}

void PrescriptionBackendTest::letsAListenerDestroyIt()
{
    connect(backend.data(), &PrescriptionBackend::mapsChanged, this, [this] { delete backend.take(); });
    const LoadReport report = load("three-zones.geojson");
    QVERIFY(report.isOk());
    QVERIFY(backend.isNull());
    QVERIFY(broker->findGroup(QStringLiteral("rxMap.*"), true, false).isEmpty());
}

void PrescriptionBackendTest::makesOneLoaderPerProduct()
{
    RxMapLoader *first = backend->loader(0);
    QVERIFY(first != nullptr);
    QCOMPARE(backend->loader(0), first);
    QVERIFY(backend->loader(1) != first);
}

void PrescriptionBackendTest::replacesMapsManyTimesUnderAReader()
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

QTEST_GUILESS_MAIN(PrescriptionBackendTest)
#include "tst_prescriptionbackend.moc"
