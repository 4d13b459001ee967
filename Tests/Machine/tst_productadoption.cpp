#include "machinebench.h"
#include "productadoption.h"
#include "terminalhost.h"
#include "testbase.h"

#include "Framework/binmanager.h"
#include "Framework/productlineitem.h"
#include "bePluginRxMap/rxmaploader.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>

/// Which products prescriptions are loaded for, and what happens to the machine's own.
class TestProductAdoption : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void productsThatStandInGiveWayToThoseOfTheFirstMap();
    void aMachineWithItsOwnProductsKeepsThem();
    void productsAreOfferedAnewWhereNoneStaysInUse();
    void productsMadeAgainKeepWhatWasSet();
    void defaultRatesFollowTheMap();
    void aRateThatAFileGivesIsNoneThatWasSet();

private:
    QVariant value(const char *group, const char *property);
    /// Loads a file that brings its products, as an operator does after a preview. Returns whether it could be loaded.
    bool adopt(const QString &path, const QStringList &columns = {});

    QScopedPointer<MachineBench> bench;
    QScopedPointer<ProductAdoption> adoption;
};

void TestProductAdoption::init()
{
    TestBase::init();
    bench.reset(new MachineBench);
    adoption.reset(new ProductAdoption(&bench->machine));
}

void TestProductAdoption::cleanup()
{
    adoption.reset();
    bench.reset();
    TestBase::cleanup();
}

QVariant TestProductAdoption::value(const char *group, const char *property)
{
    QVariant result;
    return bench->broker.getProperty(group, property, result) == 0 ? result : QVariant();
}

bool TestProductAdoption::adopt(const QString &path, const QStringList &columns)
{
    adoption->adoptFromNextFile();
    LoadRequest request;
    request.path = path;
    request.columns = columns;
    adoption->fillRequestForPreview(request);
    return bench->backend.loadAndWait(request).isOk();
}

void TestProductAdoption::productsThatStandInGiveWayToThoseOfTheFirstMap()
{
    adoption->adoptFromNextFile();
    const QSignalSpy changes(&bench->machine, &Machine::productsChanged);
    const auto request = [this](const char *path, const QStringList &columns) {
        LoadRequest wanted;
        wanted.path = TerminalHost::fixture(QLatin1String(path));
        wanted.columns = columns;
        adoption->fillRequest(wanted);
        return wanted;
    };
    // A file that cannot be loaded changes nothing.
    QVERIFY(!bench->backend.loadAndWait(request("three-zones.geojson", {"NONE"})).isOk());
    QCOMPARE(changes.size(), 0);
    const QStringList columns{"HERB_L_HA", "", "", "", "FERT_KG_HA"};
    const LoadReport report = bench->backend.loadAndWait(request("three-zones.geojson", columns));
    QCOMPARE(report.error, QString());
    QCOMPARE(changes.size(), 1);
    QCOMPARE(bench->machine.products().size(), 5);
    QCOMPARE(bench->machine.products().at(4).name, QStringLiteral("Fert"));
    QCOMPARE(value("system.binGroup.1", "compositionShortName"), QVariant("Herb"));
    QCOMPARE(value("system.binGroup.5", "compositionShortName"), QVariant("Fert"));
    QCOMPARE(value("system.binGroup.5", "rxMapGroupName"), QVariant("rxMap.three-zones.geojson"));
    QCOMPARE(value("system.productGroup.1", "rateKind"), QVariant(int(DbGroupProductGroupInfo::VolumeRate)));
    QCOMPARE(value("system.productGroup.5", "rateKind"), QVariant(int(DbGroupProductGroupInfo::WeightRate)));
    const QList<QObject *> items = BinManager::instance(&bench->broker)->loadedFilteredProducts();
    QCOMPARE(items.size(), 5);
    QVERIFY(qobject_cast<ProductLineItem *>(items.first())->isVolumeBasedProduct());
    QCOMPARE(bench->backend.loader(4)->defaultRate, 135.0);
    // The next file finds the products already made.
    QVERIFY(bench->backend.loadAndWait(request("two-strips.geojson", {})).isOk());
    QCOMPARE(changes.size(), 1);
    QCOMPARE(bench->machine.products().size(), 5);
}

void TestProductAdoption::aMachineWithItsOwnProductsKeepsThem()
{
    LoadRequest request;
    request.path = TerminalHost::fixture(QStringLiteral("three-zones.geojson"));
    adoption->fillRequest(request);
    QCOMPARE(bench->backend.loadAndWait(request).columnProducts.size(), 0);
    QCOMPARE(bench->machine.products().first().name, QStringLiteral("Seed"));
}

void TestProductAdoption::productsAreOfferedAnewWhereNoneStaysInUse()
{
    const auto offered = [this](const QString &path) {
        LoadRequest request;
        request.path = path;
        adoption->fillRequestForPreview(request);
        return request;
    };
    const QString zones = TerminalHost::fixture(QStringLiteral("three-zones.geojson"));
    const QString other = TerminalHost::fixture(QStringLiteral("two-strips.geojson"));
    QVERIFY(!offered(zones).makeProducts);
    adoption->adoptFromNextFile();
    QVERIFY(offered(zones).makeProducts != nullptr);
    LoadRequest request = offered(zones);
    request.columns = QStringList{"", "FERT_KG_HA"};
    QVERIFY(bench->backend.loadAndWait(request).isOk());
    QVERIFY(offered(other).products.at(1).inUseAt && !offered(other).products.at(0).inUseAt);
    QVERIFY(offered(other).makeProducts != nullptr);
    // A file does not block itself.
    QVERIFY(!offered(zones).products.at(1).inUseAt);
    bool isKept = true;
    adoption->keepProductsWhile([&isKept] { return isKept; });
    QVERIFY(!offered(other).makeProducts);
    isKept = false;
    QVERIFY(offered(other).makeProducts != nullptr);
}

void TestProductAdoption::productsMadeAgainKeepWhatWasSet()
{
    const QString path = TerminalHost::fixture(QStringLiteral("three-zones.geojson"));
    const QStringList twice{"FERT_KG_HA", "HERB_L_HA", "SEED_K_HA", "FERT_KG_HA"};
    QVERIFY(adopt(path, twice));
    bench->backend.loader(1)->defaultRate = 7.5;
    const QSignalSpy changes(&bench->machine, &Machine::productsChanged);
    QVERIFY(adopt(path, twice));
    QCOMPARE(changes.size(), 0);
    QVERIFY(adopt(path, {"SEED_K_HA", "HERB_L_HA"}));
    QCOMPARE(changes.size(), 1);
    QCOMPARE(bench->machine.products().size(), 4);
    QCOMPARE(bench->machine.products().first().name, QStringLiteral("Seed"));
    QCOMPARE(bench->backend.loader(1)->defaultRate, 7.5);
}

void TestProductAdoption::defaultRatesFollowTheMap()
{
    const QTemporaryDir folder;
    const auto load = [this, &folder](const QByteArray &rate) {
        QFile zones(TerminalHost::fixture(QStringLiteral("three-zones.geojson")));
        QFile changed(folder.filePath(QStringLiteral("changed.geojson")));
        if (!zones.open(QIODevice::ReadOnly) || !changed.open(QIODevice::WriteOnly))
            return false;
        changed.write(zones.readAll().replace("\"SEED_K_HA\": 80.0", "\"SEED_K_HA\": " + rate));
        changed.close();
        return adopt(changed.fileName());
    };
    const auto defaultRate = [this] { return bench->backend.loader(0)->defaultRate; };
    QVERIFY(load("50.0"));
    // The products are named like those that they replaced.
    QCOMPARE(bench->machine.products().first().name, ProductFile::standard().first().name);
    QCOMPARE(defaultRate(), 70.0);
    QVERIFY(load("200.0"));
    QCOMPARE(defaultRate(), 120.0);
    bench->backend.loader(0)->defaultRate = 99.0;
    for (const char *rate : {"50.0", "200.0"}) {
        QVERIFY(load(rate));
        QCOMPARE(defaultRate(), 99.0);
    }
}

void TestProductAdoption::aRateThatAFileGivesIsNoneThatWasSet()
{
    const QString zones = TerminalHost::fixture(QStringLiteral("three-zones.geojson"));
    QVERIFY(adopt(zones, {"FERT_KG_HA"}));
    QCOMPARE(bench->backend.loader(0)->defaultRate, 135.0);
    const QTemporaryDir folder;
    QFile tasks(folder.filePath(QStringLiteral("TASKDATA.XML")));
    QVERIFY(tasks.open(QIODevice::WriteOnly));
    tasks.write(R"(<ISO11783_TaskData VersionMajor="4" VersionMinor="0" DataTransferOrigin="1">
        <TSK A="TSK1" G="1" H="2"><TZN A="1"><PLN A="1"><LSG A="1"><PNT A="2" C="48" D="11"/><PNT A="2" C="48" D="11.01"/>
        <PNT A="2" C="48.01" D="11"/><PNT A="2" C="48" D="11"/></LSG></PLN><PDV A="0006" B="9000"/></TZN>
        <TZN A="2"><PDV A="0006" B="14815"/></TZN></TSK></ISO11783_TaskData>)");
    tasks.close();
    LoadRequest request;
    request.path = folder.path();
    adoption->fillRequest(request);
    QVERIFY(bench->backend.loadAndWait(request).isOk());
    QCOMPARE(bench->backend.loader(0)->defaultRate, 148.15);
    QVERIFY(adopt(zones, {"FERT_KG_HA"}));
    QCOMPARE(bench->backend.loader(0)->defaultRate, 135.0);
    // It takes nothing from a product that the machine does not have.
    for (int number = request.products.size(); number < 8; ++number) {
        for (MachineProduct &product : request.products)
            product.isDriven = false;
        request.products.append(request.products.first());
        request.products.last().isDriven = true;
    }
    QVERIFY(bench->backend.loadAndWait(request).isOk());
    QCOMPARE(bench->backend.maps().last().sources.first().product, 8);
    QCOMPARE(bench->machine.products().size(), 3);
}

RXMAP_TEST(TestProductAdoption, Core)
#include "tst_productadoption.moc"
