#include "dialogtest.h"

/// How the default rate is shown, and where a typed rate goes.
class TestDialogDefaultRate : public DialogTest {
    Q_OBJECT

private Q_SLOTS:
    void theDefaultRateIsShownInDisplayUnits_data();
    void theDefaultRateIsShownInDisplayUnits();
    void theDefaultRateIsShownInTheUnitOfTheProductChosen();
    void aProductWithoutMappingShowsQuestionMarks();
    void theUnitIsAskedForAgainWhereARateIsShown_data();
    void theUnitIsAskedForAgainWhereARateIsShown();
    void theDefaultRateCaptionNamesTheUnit_data();
    void theDefaultRateCaptionNamesTheUnit();
    void aProductOfNoKnownKindShowsEmptyBrackets();
    void withoutAProductTheDefaultRateIsHidden_data();
    void withoutAProductTheDefaultRateIsHidden();
    void aTypedDefaultRateTakesEffectAtOnce();
    void aTypedDefaultRateWithoutMappingReachesTheLoaderAlone();
    void aTypedDefaultRateChangesTheProductsMappingAlone_data();
    void aTypedDefaultRateChangesTheProductsMappingAlone();
    void theMappingTakesARateThatTheLoaderHas();
    void ratesThatHardlyDifferAreTwoRates();
    void aTypedDefaultRateThatIsNoNumberIsZero_data();
    void aTypedDefaultRateThatIsNoNumberIsZero();
    void theLoaderTakesTheRateBeforeTheMapping();
};

void TestDialogDefaultRate::theDefaultRateIsShownInDisplayUnits_data()
{
    QTest::addColumn<double>("rate");
    QTest::addColumn<QString>("text");
    QTest::newRow("32.5") << 32.5 << "32.5";
    QTest::newRow("six digits") << 1234567.0 << "1.23457e+06";
    QTest::newRow("0") << 0.0 << "0";
    QTest::newRow("many decimals") << 1.0 / 3.0 << "0.333333";
}

void TestDialogDefaultRate::theDefaultRateIsShownInDisplayUnits()
{
    QFETCH(double, rate);
    QFETCH(QString, text);
    auto mappings = host->map->getRateCalMappings();
    mappings[1].defaultRate = rate;
    host->map->setRateCalMappings(mappings);
    open();
    DialogProbe::release(probe->productButton(1));
    QCOMPARE(probe->defaultRateEdit()->getText(), text);

    host->host.units->setWeightRateToDisplay(2.0);
    mappings[1].defaultRate = rate / 2.0;
    host->map->setRateCalMappings(mappings);
    open();
    DialogProbe::release(probe->productButton(1));
    QCOMPARE(probe->defaultRateEdit()->getText(), text);
}

void TestDialogDefaultRate::theDefaultRateIsShownInTheUnitOfTheProductChosen()
{
    host->replaceProduct(0, ProductLineItem::Pressure);
    host->setLoaded();
    host->host.units->setPressureToDisplay(5.0);
    host->host.units->setWeightRateToDisplay(2.0);
    auto mappings = host->map->getRateCalMappings();
    mappings[0].defaultRate = 3.0;
    mappings[1].defaultRate = 10.0;
    host->map->setRateCalMappings(mappings);
    open();
    QCOMPARE(probe->defaultRateEdit()->getText(), QStringLiteral("15"));
    DialogProbe::release(probe->productButton(1));
    QCOMPARE(probe->defaultRateEdit()->getText(), QStringLiteral("20"));
    DialogProbe::release(probe->productButton(0));
    QCOMPARE(probe->defaultRateEdit()->getText(), QStringLiteral("15"));
}

void TestDialogDefaultRate::aProductWithoutMappingShowsQuestionMarks()
{
    auto mappings = host->map->getRateCalMappings();
    mappings.removeAt(1);
    host->map->setRateCalMappings(mappings);
    host->replaceProduct(1, ProductLineItem::Pressure);
    host->setLoaded();
    open();
    DialogProbe::release(probe->productButton(1));
    QCOMPARE(probe->defaultRateEdit()->getText(), QStringLiteral("????"));
    // Its unit is shown all the same.
    QCOMPARE(probe->defaultRateLabel()->text(), QStringLiteral("Default Rate (psi)"));
}

void TestDialogDefaultRate::theUnitIsAskedForAgainWhereARateIsShown_data()
{
    QTest::addColumn<bool>("isMapped");
    QTest::addColumn<int>("times");
    QTest::newRow("without a mapping") << false << 1;
    QTest::newRow("with a mapping") << true << 2;
}

void TestDialogDefaultRate::theUnitIsAskedForAgainWhereARateIsShown()
{
    QFETCH(bool, isMapped);
    QFETCH(int, times);
    if (!isMapped)
        host->map->setRateCalMappings({});
    host->replaceProduct(1, ProductLineItem::Pressure);
    host->setLoaded();
    open();
    int asked = 0;
    const auto count = [](void *argument) { ++*static_cast<int *>(argument); };
    QVERIFY(host->host.units->setBeforeReadHook("pressureToDisplay", count, &asked));
    DialogProbe::release(probe->productButton(1));
    QVERIFY(host->host.units->setBeforeReadHook("pressureToDisplay", nullptr, nullptr));
    QCOMPARE(asked, times);
}

void TestDialogDefaultRate::theDefaultRateCaptionNamesTheUnit_data()
{
    QTest::addColumn<int>("basis");
    QTest::addColumn<int>("areaUnitSystem");
    QTest::addColumn<int>("pressureUnit");
    QTest::addColumn<bool>("isCarrier");
    QTest::addColumn<QString>("caption");
    const int weight = ProductLineItem::Weight;
    const int volume = ProductLineItem::Volume;
    const int pressure = ProductLineItem::Pressure;
    QTest::newRow("weight, metric") << weight << 1 << 1 << false << "Default Rate (kg/ha)";
    QTest::newRow("weight, us") << weight << 0 << 1 << false << "Default Rate (lb/ac)";
    QTest::newRow("ratio, turf") << volume << 2 << 1 << false << "Default Rate (fl oz/gal)";
    QTest::newRow("ratio, metric") << volume << 1 << 1 << false << "Default Rate (L/L)";
    QTest::newRow("ratio of a carrier, turf") << volume << 2 << 1 << true << "Default Rate (gal/tu)";
    QTest::newRow("ratio of a carrier, metric") << volume << 1 << 1 << true << "Default Rate (L/ha)";
    QTest::newRow("pressure, kPa") << pressure << 0 << 1 << false << "Default Rate (kPa)";
    QTest::newRow("pressure, unknown") << pressure << 0 << 7 << false << "Default Rate (kPa)";
    QTest::newRow("pressure, negative") << pressure << 0 << -1 << false << "Default Rate (kPa)";
    QTest::newRow("pressure, psi") << pressure << 0 << 0 << false << "Default Rate (psi)";
}

void TestDialogDefaultRate::theDefaultRateCaptionNamesTheUnit()
{
    QFETCH(int, basis);
    QFETCH(int, areaUnitSystem);
    QFETCH(int, pressureUnit);
    QFETCH(bool, isCarrier);
    host->replaceProduct(1, static_cast<ProductLineItem::Basis>(basis));
    // Every node says ratio: only volume products follow that, and carriers never do.
    host->nodes.at(1)->setOperationalSettings(OrvikTypes::SPN_OperationalSetStruct(true));
    host->nodes.at(1)->setIsCarrier(isCarrier);
    host->setLoaded();
    host->host.units->setAreaUnitSystem(areaUnitSystem);
    host->host.units->setPressureUnit(pressureUnit);
    open();
    DialogProbe::release(probe->productButton(1));
    QTEST(probe->defaultRateLabel()->text(), "caption");
    QVERIFY(probe->defaultRateEdit()->isVisible());
    QVERIFY(probe->toDisplayFactor() > 0.0);
    QVERIFY(qFuzzyCompare(probe->toDisplayFactor() * probe->fromDisplayFactor(), 1.0));
}

void TestDialogDefaultRate::aProductOfNoKnownKindShowsEmptyBrackets()
{
    host->replaceProduct(1, ProductLineItem::None);
    host->setLoaded();
    auto mappings = host->map->getRateCalMappings();
    mappings[1].defaultRate = 99.0;
    host->map->setRateCalMappings(mappings);
    open();
    // The weight product's factors must not stay behind.
    QVERIFY(probe->toDisplayFactor() > 0.0 && probe->fromDisplayFactor() > 0.0);
    DialogProbe::release(probe->productButton(1));
    QCOMPARE(probe->defaultRateLabel()->text(), QStringLiteral("Default Rate ()"));
    QVERIFY(probe->defaultRateEdit()->isVisible());
    QCOMPARE(probe->toDisplayFactor(), 0.0);
    QCOMPARE(probe->fromDisplayFactor(), 0.0);
    QCOMPARE(probe->defaultRateEdit()->getText(), QStringLiteral("0"));
    host->loaders[1].defaultRate = 5.0;
    DialogProbe::type(probe->defaultRateEdit(), QStringLiteral("12"));
    QCOMPARE(host->loaders[1].defaultRate, 0.0);
}

void TestDialogDefaultRate::withoutAProductTheDefaultRateIsHidden_data()
{
    QTest::addColumn<QString>("missing");
    QTest::newRow("as many products as the index") << "product";
    QTest::newRow("no node") << "node";
    QTest::newRow("node of another class") << "other node";
}

void TestDialogDefaultRate::withoutAProductTheDefaultRateIsHidden()
{
    QFETCH(QString, missing);
    if (missing == QLatin1String("product")) {
        delete host->products.takeLast();
        host->setLoaded();
    } else {
        host->products.at(2)->setPrimaryProductNodeGroup(missing == QLatin1String("node") ? nullptr : host->gps);
    }
    open();
    probe->setFactors(3.0, 4.0);
    probe->selectProduct(2);
    QVERIFY(dialog->getDefaultRateSettings().isEmpty());
    QVERIFY(!probe->defaultRateEdit()->isVisible());
    QCOMPARE(probe->toDisplayFactor(), 3.0);
    QCOMPARE(probe->fromDisplayFactor(), 4.0);
}

void TestDialogDefaultRate::aTypedDefaultRateTakesEffectAtOnce()
{
    open();
    DialogProbe::release(probe->productButton(1));
    probe->setFactors(0.5, 2.0);
    QList<double> taken;
    connect(&host->loaders[1], &RxMapLoader::defaultRateTaken, this, [&taken](double rate) { taken.append(rate); });
    DialogProbe::type(probe->defaultRateEdit(), QStringLiteral("12.5"));
    QCOMPARE(host->loaders[1].defaultRate, 25.0);
    QCOMPARE(probe->mappings().at(1).defaultRate, 25.0);
    DialogProbe::type(probe->defaultRateEdit(), QStringLiteral("12.5"));
    QCOMPARE(taken, QList<double>{25.0});
    QCOMPARE(host->loaders[0].defaultRate, 0.0);
    QCOMPARE(host->map->getRateCalMappings().at(1).defaultRate, 0.0);
    dialog.reset();
    QCOMPARE(host->loaders[1].defaultRate, 25.0);
}

void TestDialogDefaultRate::aTypedDefaultRateWithoutMappingReachesTheLoaderAlone()
{
    auto mappings = host->map->getRateCalMappings();
    mappings.removeAt(1);
    host->map->setRateCalMappings(mappings);
    open();
    DialogProbe::release(probe->productButton(1));
    DialogProbe::type(probe->defaultRateEdit(), QStringLiteral("8"));
    QCOMPARE(host->loaders[1].defaultRate, 8.0);
    for (const auto &mapping : qAsConst(probe->mappings()))
        QCOMPARE(mapping.defaultRate, 0.0);
    DialogProbe::type(probe->defaultRateEdit(), QStringLiteral("0"));
    QCOMPARE(host->loaders[1].defaultRate, 0.0);
}

void TestDialogDefaultRate::aTypedDefaultRateChangesTheProductsMappingAlone_data()
{
    QTest::addColumn<QStringList>("channels");
    QTest::addColumn<int>("changed");
    QTest::newRow("one for each product") << QStringList{"2", "1", "3"} << 1;
    QTest::newRow("two that contain the number") << QStringList{"2", "11", "1"} << 1;
    QTest::newRow("the same channel twice") << QStringList{"1", "2", "1"} << 0;
}

void TestDialogDefaultRate::aTypedDefaultRateChangesTheProductsMappingAlone()
{
    QFETCH(QStringList, channels);
    QFETCH(int, changed);
    QList<OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING> mappings;
    for (const QString &channel : channels)
        mappings.append(mappingFor(channel));
    host->map->setRateCalMappings(mappings);
    open();
    DialogProbe::type(probe->defaultRateEdit(), QStringLiteral("8"));
    mappings[changed].defaultRate = 8.0;
    QCOMPARE(probe->mappings(), mappings);
}

void TestDialogDefaultRate::theMappingTakesARateThatTheLoaderHas()
{
    host->loaders[0].defaultRate = 5.0;
    open();
    int taken = 0;
    connect(&host->loaders[0], &RxMapLoader::defaultRateTaken, this, [&taken] { ++taken; });
    DialogProbe::type(probe->defaultRateEdit(), QStringLiteral("5"));
    QCOMPARE(probe->mappings().at(0).defaultRate, 5.0);
    QCOMPARE(taken, 0);
}

void TestDialogDefaultRate::ratesThatHardlyDifferAreTwoRates()
{
    open();
    QList<double> taken;
    connect(&host->loaders[0], &RxMapLoader::defaultRateTaken, this, [&taken](double rate) { taken.append(rate); });
    for (const char *text : {"1", "1.0000000000001"})
        DialogProbe::type(probe->defaultRateEdit(), QString::fromLatin1(text));
    QCOMPARE(taken.size(), 2);
    QVERIFY(taken.at(0) < taken.at(1));
}

void TestDialogDefaultRate::aTypedDefaultRateThatIsNoNumberIsZero_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text : {"????", "", "inf", "-inf", "nan", "1e308"})
        QTest::newRow(text) << QString::fromLatin1(text);
}

void TestDialogDefaultRate::aTypedDefaultRateThatIsNoNumberIsZero()
{
    QFETCH(QString, text);
    open();
    // With this factor the largest numbers overflow.
    probe->setFactors(0.1, 10.0);
    host->loaders[0].defaultRate = 5.0;
    probe->mappings()[0].defaultRate = 6.0;
    DialogProbe::type(probe->defaultRateEdit(), text);
    QCOMPARE(host->loaders[0].defaultRate, 0.0);
    QCOMPARE(probe->mappings().at(0).defaultRate, 0.0);
}

void TestDialogDefaultRate::theLoaderTakesTheRateBeforeTheMapping()
{
    open();
    DialogProbe::release(probe->productButton(1));
    QList<double> seen;
    connect(&host->loaders[1], &RxMapLoader::defaultRateTaken, this, [this, &seen] {
        seen = {host->loaders[1].defaultRate, probe->mappings().at(1).defaultRate};
    });
    DialogProbe::type(probe->defaultRateEdit(), QStringLiteral("12.5"));
    // When the loader reported the rate it already held it; the mapping did not yet.
    QCOMPARE(seen, (QList<double>{12.5, 0.0}));
    QCOMPARE(probe->mappings().at(1).defaultRate, 12.5);
}

RXMAP_TEST(TestDialogDefaultRate, Widgets)
#include "tst_rxmapwidgetdialog01_defaultrate.moc"
