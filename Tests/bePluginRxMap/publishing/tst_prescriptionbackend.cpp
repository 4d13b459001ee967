#include "backendtest.h"

#include "Framework/dbgroupaam.h"
#include "Framework/dbgroupjob.h"
#include "bePluginRxMap/rxmaploader.h"

#include <QTemporaryDir>

#include <cmath>
#include <limits>

using OrvikTypes::RX_POLYGON;

/// What the back-end publishes of a map, and how it answers queries.
class PrescriptionBackendTest : public BackendTest {
    Q_OBJECT

private Q_SLOTS:
    void publishesAMapUnderItsFileName();
    void publishesTheChainWithHolesBehindTheirOuterRings();
    void mapsColumnsToProductsInOrder();
    void leavesOutTheProductOfAnEmptyColumn();
    void givesEachProductItsSettings();
    void keepsSettingsWhenAFileIsLoadedAgain();
    void answersAQueryWithinTheWrite();
    void answersNothingForAPointThatIsNone_data();
    void answersNothingForAPointThatIsNone();
    void answersForTheActiveProduct();
    void givesAGroupANameThatTheBrokerCanHold();
    void makesOneLoaderPerProduct();
};

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
    QCOMPARE(map->getPolygonCount(), 4U);
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

void PrescriptionBackendTest::makesOneLoaderPerProduct()
{
    RxMapLoader *first = backend->loader(0);
    QVERIFY(first != nullptr);
    QCOMPARE(backend->loader(0), first);
    QVERIFY(backend->loader(1) != first);
}

RXMAP_TEST(PrescriptionBackendTest, Core)
#include "tst_prescriptionbackend.moc"
