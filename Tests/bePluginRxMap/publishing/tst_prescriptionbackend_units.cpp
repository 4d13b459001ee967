#include "Backend/rateunits.h"
#include "testbase.h"

/// What the back-end says about units of rates.
class PrescriptionBackendUnitsTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void unitsAreThoseThatRatesOfTheKindAreWrittenIn_data();
    void unitsAreThoseThatRatesOfTheKindAreWrittenIn();
    void takesRatesToBaseUnits_data();
    void takesRatesToBaseUnits();
};

void PrescriptionBackendUnitsTest::unitsAreThoseThatRatesOfTheKindAreWrittenIn_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("amounts");
    using Info = DbGroupProductGroupInfo;
    QTest::newRow("count") << int(Info::CountRate) << "k seeds million";
    QTest::newRow("weight") << int(Info::WeightRate) << "kg g mg dt t lb oz cwt ton";
    QTest::newRow("volume") << int(Info::VolumeRate) << "L mL mm3 cL dL hL m3 gal qt pt fl oz imp gal";
    QTest::newRow("injection") << int(Info::InjectionRate) << "L mL mm3 cL dL hL m3 gal qt pt fl oz imp gal";
    for (const auto kind : {Info::RatioRate, Info::PressureRate, Info::UnknownRate})
        QTest::addRow("kind %d", int(kind)) << int(kind) << "";
}

void PrescriptionBackendUnitsTest::unitsAreThoseThatRatesOfTheKindAreWrittenIn()
{
    QFETCH(int, kind);
    const auto rateKind = DbGroupProductGroupInfo::RateKind(kind);
    const RateUnitParts parts = RateUnits::parts(rateKind);
    QTEST(parts.amounts.join(QLatin1Char(' ')), "amounts");
    QCOMPARE(parts.areas.isEmpty(), parts.amounts.isEmpty());
    for (const QString &amount : parts.amounts) {
        for (const QString &area : parts.areas)
            QVERIFY2(RateUnits::factor(amount + QLatin1Char('/') + area, rateKind) > 0.0,
                     qPrintable(amount + QLatin1Char('/') + area));
    }
}

void PrescriptionBackendUnitsTest::takesRatesToBaseUnits_data()
{
    QTest::addColumn<QString>("unit");
    QTest::addColumn<int>("kind");
    QTest::addColumn<double>("factor");
    using Info = DbGroupProductGroupInfo;
    QTest::newRow("base") << "kg/ha" << int(Info::WeightRate) << 1.0;
    QTest::newRow("lb/ac") << "lb/ac" << int(Info::WeightRate) << 0.45359237 / 0.40468564224;
    QTest::newRow("oz of a liquid") << "oz/ac" << int(Info::VolumeRate) << 3.785411784 / 128.0 / 0.40468564224;
    QTest::newRow("other basis") << "L/ha" << int(Info::WeightRate) << 0.0;
    QTest::newRow("none") << "" << int(Info::WeightRate) << 0.0;
}

void PrescriptionBackendUnitsTest::takesRatesToBaseUnits()
{
    QFETCH(QString, unit);
    QFETCH(int, kind);
    QTEST(RateUnits::factor(unit, DbGroupProductGroupInfo::RateKind(kind)), "factor");
}

RXMAP_TEST(PrescriptionBackendUnitsTest, Core)
#include "tst_prescriptionbackend_units.moc"
