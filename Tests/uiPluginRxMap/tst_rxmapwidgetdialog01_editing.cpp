#include "dialoghost.h"
#include "dialogprobe.h"
#include "testbase.h"

/// What the dialog's controls do between construction and Done.
class TestDialogEditing : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void selectingAProductShowsItsValues();
    void lookAheadIsShownWithOneDecimal_data();
    void lookAheadIsShownWithOneDecimal();
    void typedLookAheadIsStoredInMilliseconds_data();
    void typedLookAheadIsStoredInMilliseconds();
    void theDefaultRateIsShownInDisplayUnits_data();
    void theDefaultRateIsShownInDisplayUnits();
    void aProductWithoutMappingShowsQuestionMarks();
    void theDefaultRateCaptionNamesTheUnit_data();
    void theDefaultRateCaptionNamesTheUnit();
    void aProductOfNoKnownKindShowsEmptyBrackets();
    void withoutAProductTheDefaultRateIsHidden_data();
    void withoutAProductTheDefaultRateIsHidden();
    void aTypedDefaultRateTakesEffectAtOnce();
    void aTypedDefaultRateWithoutMappingReachesTheLoaderAlone();
    void aTypedDefaultRateThatIsNoNumberIsZero();
    void theLoaderTakesTheRateBeforeTheMapping();
    void applyToAllMakesTheSelectedProductMaster();
    void applyToAllOffClearsTheMasterAndNothingElse();
    void applyToAllRefreshesOnlyWhenSwitchedOn();
    void aMasterBeyondTheButtonsFallsToTheFirst();
    void zeroRateShutoffReachesFollowersOfTheMaster();
    void zeroRateShutoffWithoutMasterReachesTheSelectedProductAlone();
    void otherIdsDoNothing();

private:
    void open();

    QScopedPointer<DialogHost> host;
    QScopedPointer<RxMapWidgetDialog01> dialog;
    QScopedPointer<DialogProbe> probe;
};

void TestDialogEditing::init()
{
    TestBase::init();
    host.reset(new DialogHost);
}

void TestDialogEditing::cleanup()
{
    probe.reset();
    dialog.reset();
    host.reset();
    TestBase::cleanup();
}

void TestDialogEditing::open()
{
    dialog.reset(new RxMapWidgetDialog01(&host->broker, host->images, nullptr));
    probe.reset(new DialogProbe(*dialog));
    dialog->show();
}

void TestDialogEditing::selectingAProductShowsItsValues()
{
    OrvikTypes::RX_SETTINGS entry = host->entry(2);
    entry.zeroRateShutoff = true;
    host->editSettings(2, entry);
    open();
    DialogProbe::release(probe->productButton(2));
    QCOMPARE(probe->selectedProduct(), 2);
    QCOMPARE(probe->lookAheadEdit()->getText(), QStringLiteral("3.0"));
    QCOMPARE(probe->zeroRateShutoffBox()->currentImage(), 1);
    QCOMPARE(probe->applyToAllBox()->currentImage(), 0);
    QCOMPARE(probe->productButton(0)->currentImage(), 0);
    QCOMPARE(probe->productButton(0)->textColor(0), QColor(129, 129, 129, 255));
    QCOMPARE(probe->productButton(2)->currentImage(), 1);
    QCOMPARE(probe->productButton(2)->textColor(0), QColor(Qt::white));
    DialogProbe::release(probe->productButton(1));
    QCOMPARE(probe->zeroRateShutoffBox()->currentImage(), 0);
}

void TestDialogEditing::lookAheadIsShownWithOneDecimal_data()
{
    QTest::addColumn<int>("milliseconds");
    QTest::addColumn<QString>("text");
    QTest::newRow("2500") << 2500 << "2.5";
    QTest::newRow("0") << 0 << "0.0";
    QTest::newRow("1260") << 1260 << "1.3";
    QTest::newRow("negative") << -1500 << "-1.5";
    QTest::newRow("long") << 123456 << "123.5";
}

void TestDialogEditing::lookAheadIsShownWithOneDecimal()
{
    QFETCH(int, milliseconds);
    OrvikTypes::RX_SETTINGS entry = host->entry(2);
    entry.onLookAheadMs = milliseconds;
    host->editSettings(2, entry);
    open();
    DialogProbe::release(probe->productButton(2));
    QTEST(probe->lookAheadEdit()->getText(), "text");
    QCOMPARE(probe->settings().at(2).onLookAheadMs, milliseconds);
}

void TestDialogEditing::typedLookAheadIsStoredInMilliseconds_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("milliseconds");
    QTest::newRow("two decimals") << "2.57" << 2570;
    QTest::newRow("below a millisecond") << "0.0004" << 0;
    QTest::newRow("truncated") << "1.9999" << 1999;
    QTest::newRow("truncated toward zero") << "-1.9999" << -1999;
    QTest::newRow("no number") << "abc" << 0;
    QTest::newRow("empty") << "" << 0;
    QTest::newRow("not a number") << "nan" << 0;
    QTest::newRow("too large") << "1e300" << std::numeric_limits<int>::max();
}

void TestDialogEditing::typedLookAheadIsStoredInMilliseconds()
{
    QFETCH(QString, text);
    open();
    DialogProbe::release(probe->productButton(1));
    DialogProbe::type(probe->lookAheadEdit(), text);
    QTEST(probe->settings().at(1).onLookAheadMs, "milliseconds");
    QCOMPARE(host->entry(1).onLookAheadMs, 2000);
}

void TestDialogEditing::theDefaultRateIsShownInDisplayUnits_data()
{
    QTest::addColumn<double>("rate");
    QTest::addColumn<QString>("text");
    QTest::newRow("32.5") << 32.5 << "32.5";
    QTest::newRow("six digits") << 1234567.0 << "1.23457e+06";
    QTest::newRow("0") << 0.0 << "0";
    QTest::newRow("many decimals") << 1.0 / 3.0 << "0.333333";
}

void TestDialogEditing::theDefaultRateIsShownInDisplayUnits()
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

void TestDialogEditing::aProductWithoutMappingShowsQuestionMarks()
{
    auto mappings = host->map->getRateCalMappings();
    mappings.removeAt(1);
    host->map->setRateCalMappings(mappings);
    open();
    DialogProbe::release(probe->productButton(1));
    QCOMPARE(probe->defaultRateEdit()->getText(), QStringLiteral("????"));
}

void TestDialogEditing::theDefaultRateCaptionNamesTheUnit_data()
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

void TestDialogEditing::theDefaultRateCaptionNamesTheUnit()
{
    QFETCH(int, basis);
    QFETCH(int, areaUnitSystem);
    QFETCH(int, pressureUnit);
    QFETCH(bool, isCarrier);
    host->replaceProduct(1, static_cast<ProductLineItem::Basis>(basis));
    // Every node says ratio: only volume products heed it, and no carrier does.
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

void TestDialogEditing::aProductOfNoKnownKindShowsEmptyBrackets()
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

void TestDialogEditing::withoutAProductTheDefaultRateIsHidden_data()
{
    QTest::addColumn<QString>("missing");
    QTest::newRow("as many products as the index") << "product";
    QTest::newRow("no node") << "node";
    QTest::newRow("node of another class") << "other node";
}

void TestDialogEditing::withoutAProductTheDefaultRateIsHidden()
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

void TestDialogEditing::aTypedDefaultRateTakesEffectAtOnce()
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

void TestDialogEditing::aTypedDefaultRateWithoutMappingReachesTheLoaderAlone()
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
}

void TestDialogEditing::aTypedDefaultRateThatIsNoNumberIsZero()
{
    open();
    host->loaders[0].defaultRate = 5.0;
    DialogProbe::type(probe->defaultRateEdit(), QStringLiteral("????"));
    QCOMPARE(host->loaders[0].defaultRate, 0.0);
}

void TestDialogEditing::theLoaderTakesTheRateBeforeTheMapping()
{
    open();
    DialogProbe::release(probe->productButton(1));
    QList<double> seen;
    connect(&host->loaders[1], &RxMapLoader::defaultRateTaken, this, [this, &seen] {
        seen = {host->loaders[1].defaultRate, probe->mappings().at(1).defaultRate};
    });
    DialogProbe::type(probe->defaultRateEdit(), QStringLiteral("12.5"));
    // The loader held the rate when it was told of it; the mapping did not yet.
    QCOMPARE(seen, (QList<double>{12.5, 0.0}));
    QCOMPARE(probe->mappings().at(1).defaultRate, 12.5);
}

void TestDialogEditing::applyToAllMakesTheSelectedProductMaster()
{
    OrvikTypes::RX_SETTINGS entry = host->entry(2);
    entry.zeroRateShutoff = true;
    host->editSettings(2, entry);
    entry = host->entry(0);
    entry.followsMaster = false;
    host->editSettings(0, entry);
    open();
    DialogProbe::release(probe->productButton(2));
    probe->productButton(1)->setEnabled(false);
    DialogProbe::release(probe->applyToAllBox());
    QVERIFY(probe->settings().at(2).isMaster);
    QVERIFY(!probe->settings().at(0).isMaster && !probe->settings().at(1).isMaster);
    // Whatever they follow.
    QVERIFY(probe->settings().at(0).zeroRateShutoff && probe->settings().at(1).zeroRateShutoff);
    QCOMPARE(probe->selectedProduct(), 2);
    QCOMPARE(probe->applyToAllBox()->currentImage(), 1);
    QVERIFY(probe->productButton(1)->isEnabled());
}

void TestDialogEditing::applyToAllOffClearsTheMasterAndNothingElse()
{
    open();
    DialogProbe::release(probe->productButton(1));
    DialogProbe::release(probe->zeroRateShutoffBox());
    DialogProbe::release(probe->applyToAllBox());
    DialogProbe::release(probe->productButton(2));
    auto expected = probe->settings();
    expected[1].isMaster = false;
    DialogProbe::release(probe->applyToAllBox());
    QCOMPARE(probe->settings(), expected);
    QCOMPARE(probe->selectedProduct(), 2);
    QCOMPARE(probe->applyToAllBox()->currentImage(), 0);
}

void TestDialogEditing::applyToAllRefreshesOnlyWhenSwitchedOn()
{
    open();
    DialogProbe::release(probe->productButton(2));
    DialogProbe::type(probe->lookAheadEdit(), QStringLiteral("2.57"));
    DialogProbe::release(probe->applyToAllBox());
    QCOMPARE(probe->lookAheadEdit()->getText(), QStringLiteral("2.6"));
    QCOMPARE(probe->settings().at(2).onLookAheadMs, 2570);
    DialogProbe::type(probe->lookAheadEdit(), QStringLiteral("3.14"));
    DialogProbe::release(probe->applyToAllBox());
    QCOMPARE(probe->lookAheadEdit()->getText(), QStringLiteral("3.14"));
}

void TestDialogEditing::aMasterBeyondTheButtonsFallsToTheFirst()
{
    auto settings = host->map->getSettings();
    settings.append(OrvikTypes::RX_SETTINGS());
    settings[3].isMaster = true;
    host->map->setSettings(settings);
    open();
    QCOMPARE(probe->selectedProduct(), 0);
    QVERIFY(probe->settings().at(0).isMaster);
    QVERIFY(!probe->settings().at(3).isMaster);
}

void TestDialogEditing::zeroRateShutoffReachesFollowersOfTheMaster()
{
    for (int index : {0, 1}) {
        OrvikTypes::RX_SETTINGS entry = host->entry(index);
        entry.followsMaster = false;
        host->editSettings(index, entry);
    }
    open();
    DialogProbe::release(probe->applyToAllBox());
    DialogProbe::release(probe->zeroRateShutoffBox());
    QCOMPARE(probe->zeroRateShutoffBox()->currentImage(), 1);
    // Not even the selected one, which does not follow.
    QVERIFY(!probe->settings().at(0).zeroRateShutoff);
    QVERIFY(!probe->settings().at(1).zeroRateShutoff);
    QVERIFY(probe->settings().at(2).zeroRateShutoff);
}

void TestDialogEditing::zeroRateShutoffWithoutMasterReachesTheSelectedProductAlone()
{
    open();
    DialogProbe::release(probe->productButton(1));
    DialogProbe::release(probe->zeroRateShutoffBox());
    QVERIFY(!probe->settings().at(0).zeroRateShutoff);
    QVERIFY(probe->settings().at(1).zeroRateShutoff);
    QVERIFY(!probe->settings().at(2).zeroRateShutoff);
    DialogProbe::release(probe->zeroRateShutoffBox());
    QVERIFY(!probe->settings().at(1).zeroRateShutoff);
}

void TestDialogEditing::otherIdsDoNothing()
{
    open();
    const auto settings = probe->settings();
    for (int id : {-1, 4, 99})
        dialog->onValueChanged(id);
    QCOMPARE(probe->settings(), settings);
    QCOMPARE(probe->applyToAllBox()->currentImage(), 0);
    QCOMPARE(probe->zeroRateShutoffBox()->currentImage(), 0);
}

QTEST_MAIN(TestDialogEditing)
#include "tst_rxmapwidgetdialog01_editing.moc"
