#include "testbase.h"
#include "unitsystem.h"

#include "Framework/dbgroupqmlunitsconverter.h"

#include <QTranslator>

Q_DECLARE_METATYPE(UnitSystem)

/// The units that the terminal writes after its rates.
class TestUnitSystem : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void ratesCarryTheUnitOfTheirKind_data();
    void ratesCarryTheUnitOfTheirKind();
    void unitsAreTranslatedWithTheConvertersTexts();
    void theConverterHoldsTheOperatorsSystem_data();
    void theConverterHoldsTheOperatorsSystem();
};

namespace {

/// Translates every text into its context, the text and its comment.
class EchoingTranslator : public QTranslator {
public:
    QString translate(const char *context, const char *source, const char *comment, int) const override
    {
        return QStringLiteral("%1/%2/%3").arg(QLatin1String(context), QLatin1String(source), QLatin1String(comment));
    }
    bool isEmpty() const override { return false; }
};

} // namespace

void TestUnitSystem::ratesCarryTheUnitOfTheirKind_data()
{
    QTest::addColumn<DbGroupProductGroupInfo::RateKind>("kind");
    QTest::addColumn<QStringList>("units");
    // In US, metric and turf units.
    QTest::newRow("count") << DbGroupProductGroupInfo::CountRate << QStringList{"k/ac", "k/ha", "k/tu"};
    QTest::newRow("ratio") << DbGroupProductGroupInfo::RatioRate << QStringList{"fl oz/gal", "L/L", "fl oz/gal"};
    QTest::newRow("injection") << DbGroupProductGroupInfo::InjectionRate
                               << QStringList{"fl oz/ac", "mL/ha", "fl oz/tu"};
    QTest::newRow("volume") << DbGroupProductGroupInfo::VolumeRate << QStringList{"gal/ac", "L/ha", "gal/tu"};
    QTest::newRow("weight") << DbGroupProductGroupInfo::WeightRate << QStringList{"lb/ac", "kg/ha", "lb/tu"};
    QTest::newRow("pressure") << DbGroupProductGroupInfo::PressureRate << QStringList{"psi", "kPa", "psi"};
    QTest::newRow("unknown") << DbGroupProductGroupInfo::UnknownRate << QStringList{"", "", ""};
}

void TestUnitSystem::ratesCarryTheUnitOfTheirKind()
{
    QFETCH(DbGroupProductGroupInfo::RateKind, kind);
    QStringList units;
    for (const UnitSystem system : {UnitSystem::Us, UnitSystem::Metric, UnitSystem::Turf})
        units.append(rateUnit(kind, system));
    QTEST(units, "units");
}

void TestUnitSystem::unitsAreTranslatedWithTheConvertersTexts()
{
    EchoingTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCOMPARE(rateUnit(DbGroupProductGroupInfo::WeightRate, UnitSystem::Metric),
             QStringLiteral("DbGroupQmlUnitsConverter/kg/ha/kilogram/hectare"));
    QCOMPARE(rateUnit(DbGroupProductGroupInfo::CountRate, UnitSystem::Turf),
             QStringLiteral("DbGroupQmlUnitsConverter/k/tu/count per area: 1000/turf"));
}

void TestUnitSystem::theConverterHoldsTheOperatorsSystem_data()
{
    QTest::addColumn<UnitSystem>("system");
    QTest::addColumn<double>("weightRate"); // For 1 kg/ha.
    QTest::addColumn<double>("pressure");   // For 1 kPa.
    constexpr double poundsPerKilogram = 1.0 / 0.45359237;
    constexpr double psiPerKilopascal = 1000.0 * 0.0254 * 0.0254 / (0.45359237 * 9.80665);
    QTest::newRow("us") << UnitSystem::Us << poundsPerKilogram * 0.40468564224 << psiPerKilopascal;
    QTest::newRow("metric") << UnitSystem::Metric << 1.0 << 1.0;
    QTest::newRow("turf") << UnitSystem::Turf << poundsPerKilogram * 0.009290304 << psiPerKilopascal;
}

void TestUnitSystem::theConverterHoldsTheOperatorsSystem()
{
    QFETCH(UnitSystem, system);
    DbGroupQmlUnitsConverter converter(QStringLiteral("QmlUnitsConverter"));
    converter.internalSetAreaUnitSystem(areaUnitSystem(system));
    converter.internalSetPressureUnit(pressureUnit(system));
    QTEST(converter.getWeightRateToDisplay(), "weightRate");
    QTEST(converter.getPressureToDisplay(), "pressure");
}

RXMAP_TEST(TestUnitSystem, Core)
#include "tst_unitsystem.moc"
