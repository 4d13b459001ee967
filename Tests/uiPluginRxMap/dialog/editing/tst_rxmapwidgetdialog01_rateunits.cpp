#include "dialogtest.h"

#include "Framework/binmanager.h"

/// Which unit and factors the dialog takes for the default rate, and what it does without them.
class TestDialogRateUnits : public DialogTest {
    Q_OBJECT

private Q_SLOTS:
    void aRateIsShownAndStoredInItsUnit_data();
    void aRateIsShownAndStoredInItsUnit();
    void anItemThatIsNoProductHasNoRate_data();
    void anItemThatIsNoProductHasNoRate();
    void aHiddenFieldIsShownAgain_data();
    void aHiddenFieldIsShownAgain();
    void aKindWithoutUnitNeedsNoConverter();
    void aConverterOfAnotherClassIsNone();
};

namespace {

void setFactors(DbGroupQmlUnitsConverter &units)
{
    units.setCountRateToDisplay(2.0);
    units.setCountRateFromDisplay(0.5);
    units.setRatioRateToDisplay(4.0);
    units.setRatioRateFromDisplay(0.25);
    units.setInjectionRateToDisplay(8.0);
    units.setInjectionRateFromDisplay(0.125);
    units.setVolumeRateToDisplay(16.0);
    units.setVolumeRateFromDisplay(0.0625);
    units.setWeightRateToDisplay(32.0);
    units.setWeightRateFromDisplay(0.03125);
    units.setPressureToDisplay(64.0);
    units.setPressureFromDisplay(0.015625);
}

} // namespace

void TestDialogRateUnits::aRateIsShownAndStoredInItsUnit_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<int>("areaUnitSystem");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<double>("stored");
    const auto row = [](const char *title, const char *kind, int areaUnitSystem, const char *caption, const char *shown,
                        double stored) {
        QTest::newRow(title) << kind << areaUnitSystem << caption << shown << stored;
    };
    row("count, us", "count", 0, "Default Rate (k/ac)", "20", 32.0);
    row("ratio, metric", "ratio", 1, "Default Rate (L/L)", "40", 16.0);
    row("injection, turf", "injection", 2, "Default Rate (fl oz/tu)", "80", 8.0);
    row("volume, us", "volume", 0, "Default Rate (gal/ac)", "160", 4.0);
    row("weight, us", "weight", 0, "Default Rate (lb/ac)", "320", 2.0);
    row("weight, metric", "weight", 1, "Default Rate (kg/ha)", "320", 2.0);
    row("weight, turf", "weight", 2, "Default Rate (lb/tu)", "320", 2.0);
    row("pressure", "pressure", 2, "Default Rate (bar)", "640", 1.0);
}

void TestDialogRateUnits::aRateIsShownAndStoredInItsUnit()
{
    QFETCH(QString, kind);
    QFETCH(int, areaUnitSystem);
    const QHash<QString, ProductLineItem::Basis> bases{{QStringLiteral("count"), ProductLineItem::Count},
                                                       {QStringLiteral("weight"), ProductLineItem::Weight},
                                                       {QStringLiteral("pressure"), ProductLineItem::Pressure}};
    host->replaceProduct(1, bases.value(kind, ProductLineItem::Volume));
    host->nodes.at(1)->setOperationalSettings(OrvikTypes::SPN_OperationalSetStruct(kind == QLatin1String("ratio")));
    host->nodes.at(1)->setSwitchByteCalSettings(
        OrvikTypes::SPN_SwitchByteCalSettingsStruct(kind == QLatin1String("injection")));
    host->setLoaded();
    host->host.units->setAreaUnitSystem(areaUnitSystem);
    host->host.units->setPressureUnit(2);
    setFactors(*host->host.units);
    auto mappings = host->map->getRateCalMappings();
    mappings[1].defaultRate = 10.0;
    host->map->setRateCalMappings(mappings);

    open();
    DialogProbe::release(probe->productButton(1));
    QTEST(probe->defaultRateLabel()->text(), "caption");
    QTEST(probe->defaultRateEdit()->getText(), "shown");
    DialogProbe::type(probe->defaultRateEdit(), QStringLiteral("64"));
    QTEST(host->loaders[1].defaultRate, "stored");
    done();
    QTEST(host->map->getRateCalMappings().at(1).defaultRate, "stored");
}

void TestDialogRateUnits::anItemThatIsNoProductHasNoRate_data()
{
    QTest::addColumn<bool>("isNull");
    QTest::newRow("of another class") << false;
    QTest::newRow("null") << true;
}

void TestDialogRateUnits::anItemThatIsNoProductHasNoRate()
{
    QFETCH(bool, isNull);
    BinManager::instance(&host->broker)
        ->setLoadedProducts({host->products.at(0), isNull ? nullptr : new QObject, host->products.at(2)});
    open();
    DialogProbe::release(probe->productButton(1));
    QCOMPARE(probe->defaultRateLabel()->text(), QString());
    QVERIFY(dialog->getDefaultRateSettings().isEmpty());
    QVERIFY(!probe->defaultRateEdit()->isVisible());
    // The factors remain those of the product before, and every loader keeps its rate.
    QCOMPARE(probe->fromDisplayFactor(), 1.0);
    DialogProbe::type(probe->defaultRateEdit(), QStringLiteral("12.5"));
    QCOMPARE(probe->mappings().at(1).defaultRate, 12.5);
    for (const RxMapLoader &loader : host->loaders)
        QCOMPARE(loader.defaultRate, 0.0);
}

void TestDialogRateUnits::aHiddenFieldIsShownAgain_data()
{
    QTest::addColumn<int>("basis");
    QTest::newRow("weight") << int(ProductLineItem::Weight);
    QTest::newRow("no known kind") << int(ProductLineItem::None);
}

void TestDialogRateUnits::aHiddenFieldIsShownAgain()
{
    QFETCH(int, basis);
    host->replaceProduct(0, static_cast<ProductLineItem::Basis>(basis));
    host->setLoaded();
    open();
    probe->defaultRateEdit()->hide();
    QVERIFY(!dialog->getDefaultRateSettings().isEmpty());
    QVERIFY(probe->defaultRateEdit()->isVisible());
}

void TestDialogRateUnits::aKindWithoutUnitNeedsNoConverter()
{
    host->replaceProduct(0, ProductLineItem::None);
    host->setLoaded();
    host->broker.removeGroup(QStringLiteral("QmlUnitsConverter"));
    open();
    probe->setFactors(3.0, 4.0);
    probe->defaultRateEdit()->hide();
    QCOMPARE(dialog->getDefaultRateSettings(), QStringLiteral("Default Rate ()"));
    QVERIFY(probe->defaultRateEdit()->isVisible());
    QCOMPARE(probe->toDisplayFactor(), 0.0);
    QCOMPARE(probe->fromDisplayFactor(), 0.0);
}

void TestDialogRateUnits::aConverterOfAnotherClassIsNone()
{
    host->broker.removeGroup(QStringLiteral("QmlUnitsConverter"));
    QCOMPARE(host->broker.publishGroup(new BinGroup(QStringLiteral("QmlUnitsConverter"))), 0);
    open();
    QCOMPARE(probe->defaultRateLabel()->text(), QString());
    QVERIFY(dialog->getDefaultRateSettings().isEmpty());
    QVERIFY(!probe->defaultRateEdit()->isVisible());
    QCOMPARE(probe->toDisplayFactor(), 0.0);
}

RXMAP_TEST(TestDialogRateUnits, Widgets)
#include "tst_rxmapwidgetdialog01_rateunits.moc"
