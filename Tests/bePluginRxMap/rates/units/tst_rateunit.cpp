#include "columnname.h"
#include "rateunit.h"
#include "testbase.h"

#include <cmath>

using Kind = DbGroupProductGroupInfo::RateKind;
Q_DECLARE_METATYPE(Kind)

/// Units as files write them, and what they are read as.
class RateUnitTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void readsUnitsFromText_data();
    void readsUnitsFromText();
    void findsUnitsInNames_data();
    void findsUnitsInNames();
    void readsEveryAmountPerEveryArea();
    void convertsToBaseUnits_data();
    void convertsToBaseUnits();
    void differsWhereTheSameNumberIsAnotherRate_data();
    void differsWhereTheSameNumberIsAnotherRate();
    void fitsProductsThatAreMeasuredSo_data();
    void fitsProductsThatAreMeasuredSo();
};

void RateUnitTest::readsUnitsFromText_data()
{
    QTest::addColumn<QString>("unit");
    const auto row = [](const char *text, const char *unit) { QTest::newRow(text) << QString::fromLatin1(unit); };
    for (const char *text : {"lb/ac", "lbs/acre", "LBS PER ACRE", "Pounds/Ac", "lb N/ac", "lbs ai/ac", "lbac"})
        row(text, "lb/ac");
    for (const char *text : {"kg/ha", "Kg/Ha", "kg P2O5/ha", "kilos por hectarea", "kgha"})
        row(text, "kg/ha");
    for (const char *text : {"gal/ac", "GPA", "gallons per acre", "US gal/ac"})
        row(text, "gal/ac");
    for (const char *text : {"fl oz/ac", "floz/acre", "fl. oz. / ac", "Fluid Ounces/Acre"})
        row(text, "fl oz/ac");
    for (const char *text : {"seeds/ac", "plants per acre", "sds/ac"})
        row(text, "seeds/ac");
    for (const char *text : {"k/ac", "1000/ac", "ksds/ac", "1000 seeds/ac", "k seeds/ac"})
        row(text, "k/ac");
    row("mL/ha", "mL/ha");
    row("ml/m\u00b2", "mL/m2");
    row("seeds/m2", "seeds/m2");
    row("lb/1000 ft2", "lb/1000 ft2");
    row("lbs/1000 sq ft", "lb/1000 ft2");
    row("t/ha", "t/ha");
    row("tons/ha", "t/ha");
    row("tons/ac", "ton/ac");
    row("m3/ha", "m3/ha");
    row("imp gal/ac", "imp gal/ac");
    for (const char *text : {"", "kg", "ha", "bu/ac", "l/h", "kg/ha/year", "N", "good", "a", "/"})
        row(text, "");
}

void RateUnitTest::readsUnitsFromText()
{
    QTEST(RateUnit::fromText(QString::fromUtf8(QTest::currentDataTag())).text(), "unit");
}

void RateUnitTest::findsUnitsInNames_data()
{
    QTest::addColumn<QString>("unit");
    const auto row = [](const char *name, const char *unit) { QTest::newRow(name) << QString::fromLatin1(unit); };
    row("Rate_lb_ac", "lb/ac");
    row("gal/acre", "gal/ac");
    row("GPA", "gal/ac");
    row("seeds_ac", "seeds/ac");
    row("Koerner_m2", "seeds/m2");
    row("lime_t_ha", "t/ha");
    row("dt_ha", "dt/ha");
    row("m3_ha", "m3/ha");
    row("kg_N_ha", "kg/ha");
    row("N_kg_ha", "kg/ha");
    row("Litros_ha", "L/ha");
    row("floz_ac", "fl oz/ac");
    row("fl_oz_ac", "fl oz/ac");
    row("pt_ac", "pt/ac");
    row("tons_ac", "ton/ac");
    row("cc_ha", "mL/ha");
    row("l_daa", "L/daa");
    row("SEED_K_HA", "k/ha");
    row("SEED_KS_HA", "k/ha");
    row("LimeTHa", "t/ha");
    row("UreaLbAc", "lb/ac");
    row("RateMlHa", "mL/ha");
    row("Dose_mL_ha", "mL/ha");
    row("N_galperac", "gal/ac");
    // A letter before a unit of one letter belongs to a product's name.
    for (const char *name : {"C_l_ha", "c_l_ha", "C L/ha", "M_l_ha", "K_l_ha"})
        row(name, "L/ha");
    for (const char *name : {"cl_ha", "cL_ha", "Rate_cL_ha"})
        row(name, "cL/ha");
    row("k_g_ha", "g/ha");
    row("P_t_ac", "t/ac");
    row("k_seeds_ac", "k/ac");
    row("kg_m_2", "kg/m2");
    row("Rate (lb/ac)", "lb/ac");
    row("lbs/1000ft2", "lb/1000 ft2");
    // Cut at ten characters.
    row("Menge_kg_h", "kg/ha");
    row("Rate_lbs_a", "lb/ac");
    row("UreaKg_hec", "kg/ha");
    row("Prod_gal_a", "gal/ac");
    row("N_kg_h", "");
    // Only an amount, in a name that speaks of a rate.
    row("RATE_kg_", "kg/ha");
    row("Rate_lbs", "lb/ac");
    row("Rate_fl_oz", "fl oz/ac");
    row("kg_Rate_ac", "kg/ac");
    row("QT_kg", "");
    row("Rate_K", "");
    // What was cut off may have been another unit: pounds, gallons, square metres.
    for (const char *name : {"Tgt_Rate_l", "Tgt_Rate_g", "Dosis_kg_m", "Dosis_kg_d", "Rate_lb_10"})
        row(name, "");
    for (const char *name : {"Dose_ml_kg", "Rate_l_t"})
        row(name, "");
    for (const char *name : {"kg/1000m\u00b2", "kg_1000m2", "Rate kg/1000 m2"})
        row(name, "kg/daa");
    row("l_100m2", "L/a");
    row("lbs_k_sqft", "lb/1000 ft2");
    row("Mio_K_ha", "million/ha");
    row("Pflanzen_m2", "seeds/m2");
    row("K\u00f6/m\u00b2", "seeds/m2");
    // A nutrient and an area.
    for (const char *name : {"K_ha", "S_HA", "Mg_ac"})
        row(name, "");
    // A product and an area.
    row("Urea_ha", "");
    row("SEED_HA", "");
    for (const char *name : {"Rate", "dose", "N", "zone", "AREA_HA", "target_rat"})
        row(name, "");
}

void RateUnitTest::findsUnitsInNames()
{
    QTEST(ColumnName(QString::fromUtf8(QTest::currentDataTag())).unit().text(), "unit");
}

void RateUnitTest::readsEveryAmountPerEveryArea()
{
    for (const AmountUnit &amount : UnitTable::amounts()) {
        for (const AreaUnit &area : UnitTable::areas()) {
            const QString text = RateUnit(&amount, &area).text();
            // An "a" behind a customary unit is an acre.
            if (!amount.isCustomary || !text.endsWith(QLatin1String("/a")))
                QCOMPARE(RateUnit::fromText(text).text(), text);
        }
    }
}

void RateUnitTest::convertsToBaseUnits_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<double>("factor");
    const double acre = 0.40468564224;
    QTest::newRow("lb/ac") << DbGroupProductGroupInfo::WeightRate << 0.45359237 / acre;
    QTest::newRow("tons/ac") << DbGroupProductGroupInfo::WeightRate << 907.18474 / acre;
    QTest::newRow("dt/ha") << DbGroupProductGroupInfo::WeightRate << 100.0;
    QTest::newRow("oz/ac") << DbGroupProductGroupInfo::WeightRate << 0.028349523125 / acre;
    QTest::newRow("gal/ac") << DbGroupProductGroupInfo::VolumeRate << 3.785411784 / acre;
    QTest::newRow("L/daa") << DbGroupProductGroupInfo::VolumeRate << 10.0;
    QTest::newRow("oz/ac ") << DbGroupProductGroupInfo::VolumeRate << 0.0295735295625 / acre;
    QTest::newRow("gal/ac ") << DbGroupProductGroupInfo::InjectionRate << 3785.411784 / acre;
    QTest::newRow("seeds/m2") << DbGroupProductGroupInfo::CountRate << 10.0;
    QTest::newRow("seeds/ac") << DbGroupProductGroupInfo::CountRate << 0.001 / acre;
    QTest::newRow("1000/1000 ft2") << DbGroupProductGroupInfo::CountRate << 1.0 / 0.009290304;
    QTest::newRow("kg/ha") << DbGroupProductGroupInfo::CountRate << 1.0;
    QTest::newRow("g/m2") << DbGroupProductGroupInfo::UnknownRate << 10.0;
    QTest::newRow("unknown") << DbGroupProductGroupInfo::WeightRate << 1.0;
}

void RateUnitTest::convertsToBaseUnits()
{
    QFETCH(Kind, kind);
    QFETCH(double, factor);
    const double given = RateUnit::fromText(QString::fromLatin1(QTest::currentDataTag())).factorTo(kind);
    QVERIFY2(std::fabs(given / factor - 1.0) < 1e-14, qPrintable(QString::number(given, 'g', 17)));
}

void RateUnitTest::differsWhereTheSameNumberIsAnotherRate_data()
{
    QTest::addColumn<QString>("other");
    QTest::addColumn<bool>("differs");
    QTest::newRow("kg/ha") << "kg/ha" << false;
    QTest::newRow("lb/ac") << "kg/ha" << true;
    QTest::newRow("kg/ac") << "kg/ha" << true;
    QTest::newRow("dt/ha") << "kg/a" << false;
    QTest::newRow("oz/ac") << "fl oz/ac" << false;
    QTest::newRow("L/ha") << "kg/ha" << true;
    QTest::newRow("seeds/m2") << "k/ha" << true;
    QTest::newRow("bags") << "kg/ha" << false;
    QTest::newRow("t/ha") << "bags" << false;
}

void RateUnitTest::differsWhereTheSameNumberIsAnotherRate()
{
    QFETCH(QString, other);
    const RateUnit unit = RateUnit::fromText(QString::fromUtf8(QTest::currentDataTag()));
    QTEST(unit.differsFrom(RateUnit::fromText(other)), "differs");
}

void RateUnitTest::fitsProductsThatAreMeasuredSo_data()
{
    QTest::addColumn<QList<Kind>>("kinds");
    using Info = DbGroupProductGroupInfo;
    QTest::newRow("seeds/ac") << QList<Kind>{Info::UnknownRate, Info::CountRate};
    QTest::newRow("gal/ac") << QList<Kind>{Info::UnknownRate, Info::InjectionRate, Info::VolumeRate};
    QTest::newRow("kg/ha") << QList<Kind>{Info::UnknownRate, Info::WeightRate};
    // Of a dry product or a liquid.
    QTest::newRow("oz/ac") << QList<Kind>{Info::UnknownRate, Info::InjectionRate, Info::VolumeRate, Info::WeightRate};
    QTest::newRow("unknown") << QList<Kind>{Info::UnknownRate, Info::CountRate,  Info::RatioRate,   Info::InjectionRate,
                                            Info::VolumeRate,  Info::WeightRate, Info::PressureRate};
}

void RateUnitTest::fitsProductsThatAreMeasuredSo()
{
    const RateUnit unit = RateUnit::fromText(QString::fromLatin1(QTest::currentDataTag()));
    QList<Kind> fitting;
    for (int kind = DbGroupProductGroupInfo::UnknownRate; kind <= DbGroupProductGroupInfo::PressureRate; ++kind) {
        if (unit.fits(static_cast<Kind>(kind)))
            fitting.append(static_cast<Kind>(kind));
    }
    QTEST(fitting, "kinds");
}

RXMAP_TEST(RateUnitTest, None)
#include "tst_rateunit.moc"
