#include "machine.h"
#include "productfile.h"
#include "terminalhost.h"
#include "testbase.h"

#include "Framework/binmanager.h"
#include "Framework/databrokergroup.h"
#include "Framework/dbgroupaam.h"
#include "Framework/dbgroupproductgroupinfo.h"
#include "Framework/dbgroupqmlunitsconverter.h"
#include "Framework/dbgroupsingleproductnode.h"
#include "Framework/productlineitem.h"
#include "bePluginRxMap/rxmaploader.h"

#include <QSignalSpy>

/// What the machine publishes for plug-ins.
class TestMachine : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void everyGroupOfTheTerminalIsThere_data();
    void everyGroupOfTheTerminalIsThere();
    void binGroupsComeInProductOrder();
    void aProductsNamesFitTogether();
    void loadedProductsHaveKindNodeAndLoader();
    void kindsAreSeenInTheNode_data();
    void kindsAreSeenInTheNode();
    void unitsAreTheOperators_data();
    void unitsAreTheOperators();
    void productOneIsActiveAtFirst();
    void theActiveProductNamesItsApplicationMap();
    void aProductThatIsNotThereIsNotActivated();
    void aMapNamesItsGroupInTheBinsThatItFeeds();
    void aProductWithoutRateControlHasNoMapName();
    void aChangeOfMapsNamesTheApplicationMapAnew();
    void reInitialisationsAreCounted();
    void sixteenProductsAreCountedThrough();

private:
    void build(const Products &products, UnitSystem units = UnitSystem::Metric);
    QVariant value(const QString &group, const char *property) const;
    LoadReport load(const QString &file, int product, const QString &column);

    QScopedPointer<DataBroker> broker;
    QScopedPointer<PrescriptionBackend> backend;
    QScopedPointer<Machine> machine;
};

void TestMachine::init()
{
    TestBase::init();
    build(ProductFile::standard());
}

void TestMachine::cleanup()
{
    backend.reset();
    machine.reset();
    broker.reset();
    TestBase::cleanup();
}

void TestMachine::build(const Products &products, UnitSystem units)
{
    backend.reset();
    machine.reset();
    broker.reset(new DataBroker);
    backend.reset(new PrescriptionBackend(broker.data()));
    machine.reset(new Machine(broker.data(), backend.data(), products, units));
}

QVariant TestMachine::value(const QString &group, const char *property) const
{
    QVariant result;
    return broker->getProperty(group.toLatin1().constData(), property, result) == 0 ? result : QVariant();
}

LoadReport TestMachine::load(const QString &file, int product, const QString &column)
{
    LoadRequest request;
    request.path = TerminalHost::fixture(file);
    request.columns = QStringList{column};
    request.products = {{QString(), Machine::productGroupName(product)}};
    return backend->loadAndWait(request);
}

void TestMachine::everyGroupOfTheTerminalIsThere_data()
{
    QTest::addColumn<QString>("group");
    QTest::addColumn<QByteArray>("className");
    QTest::newRow("units") << "QmlUnitsConverter" << QByteArray("DbGroupQmlUnitsConverter");
    QTest::newRow("job") << "system.current.job" << QByteArray("DbGroupJob");
    QTest::newRow("position") << "mainGpsSolution" << QByteArray("DbGroupGpsSolution");
    QTest::newRow("rate controller") << "quillSpan" << QByteArray("DbGroupQuillSpan");
    QTest::newRow("bin") << "system.binGroup.3" << QByteArray("DbGroupBin");
    QTest::newRow("application map") << "system.aam.2" << QByteArray("DbGroupAAM");
    QTest::newRow("product group") << "system.productGroup.1" << QByteArray("DbGroupProductGroupInfo");
}

void TestMachine::everyGroupOfTheTerminalIsThere()
{
    QFETCH(QString, group);
    QFETCH(QByteArray, className);
    DataBrokerGroup *found = broker->getGroup(group, false);
    QVERIFY(found != nullptr);
    QCOMPARE(QByteArray(found->metaObject()->className()), className);
}

void TestMachine::binGroupsComeInProductOrder()
{
    const QStringList expected{"system.binGroup.1", "system.binGroup.2", "system.binGroup.3"};
    QCOMPARE(broker->findGroup(QStringLiteral("system.binGroup.*"), true, false), expected);
    QCOMPARE(value("system.binGroup.2", "compositionShortName").toString(), QStringLiteral("Fert"));
    QCOMPARE(value("system.binGroup.2", "rxMapGroupName").toString(), QString());
}

void TestMachine::aProductsNamesFitTogether()
{
    for (int number = 1; number <= 3; ++number) {
        auto *aam = qobject_cast<DbGroupAAM *>(broker->getGroup(Machine::aamGroupName(number), false));
        QVERIFY(aam != nullptr);
        QCOMPARE(aam->productGroupName(), Machine::productGroupName(number));
        auto *info = qobject_cast<DbGroupProductGroupInfo *>(broker->getGroup(aam->productGroupName(), false));
        QVERIFY(info != nullptr);
        QCOMPARE(info->getProductNumber(), number);
        QVERIFY(aam->productGroupName().contains(QString::number(number)));
    }
}

void TestMachine::loadedProductsHaveKindNodeAndLoader()
{
    const QList<QObject *> products = BinManager::instance(nullptr)->loadedFilteredProducts();
    QCOMPARE(products.size(), 3);
    auto *seed = qobject_cast<ProductLineItem *>(products.at(0));
    QVERIFY(seed->isCountBasedProduct());
    QVERIFY(qobject_cast<ProductLineItem *>(products.at(1))->isWeightBasedProduct());
    QVERIFY(qobject_cast<ProductLineItem *>(products.at(2))->isVolumeBasedProduct());
    QVERIFY(qobject_cast<DbGroupSingleProductNode *>(seed->primaryProductNodeGroup()) != nullptr);
    QCOMPARE(seed->rxMapLoader(), backend->loader(0));
    QCOMPARE(seed->rxMapLoader()->defaultRate, ProductFile::standard().first().defaultRate);
}

void TestMachine::kindsAreSeenInTheNode_data()
{
    using Kind = Product::Kind;
    QTest::addColumn<int>("kind");
    QTest::addColumn<bool>("isCarrier");
    QTest::addColumn<bool>("isRatio");
    QTest::addColumn<bool>("isInjection");
    QTest::addColumn<int>("rateKind");
    QTest::newRow("count") << int(Kind::Count) << false << false << false << int(DbGroupProductGroupInfo::CountRate);
    QTest::newRow("ratio") << int(Kind::Ratio) << false << true << false << int(DbGroupProductGroupInfo::RatioRate);
    QTest::newRow("injection") << int(Kind::Injection) << false << false << true
                               << int(DbGroupProductGroupInfo::InjectionRate);
    QTest::newRow("volume") << int(Kind::Volume) << false << false << false << int(DbGroupProductGroupInfo::VolumeRate);
    QTest::newRow("weight") << int(Kind::Weight) << false << false << false << int(DbGroupProductGroupInfo::WeightRate);
    QTest::newRow("pressure") << int(Kind::Pressure) << false << false << false
                              << int(DbGroupProductGroupInfo::PressureRate);
    QTest::newRow("unknown") << int(Kind::Unknown) << false << false << false
                             << int(DbGroupProductGroupInfo::UnknownRate);
    QTest::newRow("ratio carrier") << int(Kind::Ratio) << true << true << false
                                   << int(DbGroupProductGroupInfo::VolumeRate);
}

void TestMachine::kindsAreSeenInTheNode()
{
    QFETCH(int, kind);
    QFETCH(bool, isCarrier);
    Product product;
    product.kind = Product::Kind(kind);
    product.isCarrier = isCarrier;
    build({product});
    auto *item = qobject_cast<ProductLineItem *>(BinManager::instance(nullptr)->loadedFilteredProducts().value(0));
    auto *node = qobject_cast<DbGroupSingleProductNode *>(item->primaryProductNodeGroup());
    QTEST(node->getOperationalSettings().isRatioRate(), "isRatio");
    QTEST(node->getSwitchByteCalSettings().isInjection(), "isInjection");
    QCOMPARE(node->getIsCarrier(), isCarrier);
    QTEST(value("system.productGroup.1", "rateKind").toInt(), "rateKind");
}

void TestMachine::unitsAreTheOperators_data()
{
    QTest::addColumn<int>("units");
    QTest::addColumn<double>("factor");
    const double acresPerHectare = 10000.0 / 4046.8564224;
    QTest::newRow("us") << int(UnitSystem::Us) << 1.0 / acresPerHectare;
    QTest::newRow("metric") << int(UnitSystem::Metric) << 1.0;
    QTest::newRow("turf") << int(UnitSystem::Turf) << 1.0 / acresPerHectare / 43.56;
}

void TestMachine::unitsAreTheOperators()
{
    QFETCH(int, units);
    QFETCH(double, factor);
    build(ProductFile::standard(), UnitSystem(units));
    auto *seed = qobject_cast<DbGroupProductGroupInfo *>(broker->getGroup("system.productGroup.1", false));
    QVERIFY(std::abs(getRateConversion(seed) / factor - 1.0) < 1e-9);
}

void TestMachine::productOneIsActiveAtFirst()
{
    QCOMPARE(machine->activeProduct(), 1);
    QCOMPARE(value("system.current.job", "activeAAMGroupName").toString(), QStringLiteral("system.aam.1"));
}

void TestMachine::theActiveProductNamesItsApplicationMap()
{
    QSignalSpy spy(machine.data(), &Machine::activeProductChanged);
    QVERIFY(machine->setActiveProduct(3));
    QCOMPARE(value("system.current.job", "activeAAMGroupName").toString(), QStringLiteral("system.aam.3"));
    QCOMPARE(spy.size(), 1);
}

void TestMachine::aProductThatIsNotThereIsNotActivated()
{
    QVERIFY(!machine->setActiveProduct(0));
    QVERIFY(!machine->setActiveProduct(4));
    QCOMPARE(machine->activeProduct(), 1);
}

void TestMachine::aMapNamesItsGroupInTheBinsThatItFeeds()
{
    const LoadReport report = load("three-zones.geojson", 2, "FERT_KG_HA");
    QVERIFY2(report.isOk(), qPrintable(report.error));
    QCOMPARE(value("system.binGroup.1", "rxMapGroupName").toString(), QString());
    QCOMPARE(value("system.binGroup.2", "rxMapGroupName").toString(), report.group);
    QVERIFY(backend->unload(report.group));
    QCOMPARE(value("system.binGroup.2", "rxMapGroupName").toString(), QString());
}

void TestMachine::aProductWithoutRateControlHasNoMapName()
{
    Products products = ProductFile::standard();
    products[1].underVra = false;
    build(products);
    QVERIFY(load("three-zones.geojson", 2, "FERT_KG_HA").isOk());
    QCOMPARE(value("system.binGroup.2", "rxMapGroupName").toString(), QString());
}

void TestMachine::aChangeOfMapsNamesTheApplicationMapAnew()
{
    DataBrokerGroup *job = broker->getGroup("system.current.job", false);
    QSignalSpy spy(job, SIGNAL(activeAAMGroupNameSet(QString)));
    QVERIFY(spy.isValid());
    const LoadReport report = load("three-zones.geojson", 1, "SEED_K_HA");
    QVERIFY(report.isOk());
    QVERIFY(!spy.isEmpty());
    QCOMPARE(spy.last().first().toString(), QStringLiteral("system.aam.1"));
    spy.clear();
    backend->unload(report.group);
    QVERIFY(!spy.isEmpty());
}

void TestMachine::reInitialisationsAreCounted()
{
    QCOMPARE(value("quillSpan", "reInitCount").toInt(), 0);
    QCOMPARE(broker->setProperty("quillSpan", "reInit", true), 0);
    QCOMPARE(broker->setProperty("quillSpan", "reInit", true), 0);
    QCOMPARE(broker->setProperty("quillSpan", "reInit", false), 0);
    QCOMPARE(value("quillSpan", "reInitCount").toInt(), 2);
}

void TestMachine::sixteenProductsAreCountedThrough()
{
    Products products;
    for (int i = 0; i < 16; ++i)
        products.append(Product());
    build(products);
    const QStringList bins = broker->findGroup(QStringLiteral("system.binGroup.*"), true, false);
    QCOMPARE(bins.size(), 16);
    QCOMPARE(bins.at(9), QStringLiteral("system.binGroup.10"));
    QCOMPARE(BinManager::instance(nullptr)->loadedFilteredProducts().size(), 16);
}

RXMAP_TEST(TestMachine, Core)
#include "tst_machine.moc"
