#include "columnname.h"
#include "testbase.h"

Q_DECLARE_METATYPE(ProductLineItem::Basis)

class ColumnNameTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void tellsRatesFromTheRest_data();
    void tellsRatesFromTheRest();
    void tellsTotalsFromOtherThings_data();
    void tellsTotalsFromOtherThings();
    void tellsWhatIsMeasuredOut_data();
    void tellsWhatIsMeasuredOut();
    void namesTheProduct_data();
    void namesTheProduct();
};

void ColumnNameTest::tellsRatesFromTheRest_data()
{
    QTest::addColumn<bool>("rate");
    QTest::addColumn<bool>("other");
    for (const char *name : {"RATE_kg_",       "Rate",       "target_rat", "target_rate", "TgtRate",      "Tgt_Rate_l",
                             "dose",           "DOSE",       "DOSE_1",     "Dosis",       "RATE_l_ha",    "SEED_kg_ha",
                             "HERB_l_ha",      "FERT_kg_ha", "FERT_KG_HA", "N_kgha",      "LimeTHa",      "UreaLbAc",
                             "Fert_kg_per_ha", "AppRate2",   "Menge_kg_h", "Rx1",         "Aufwandmenge", "ZONE_RATE",
                             "sollwert",       "GPA",        "a_seed_ha",  "plants_acre", "floz_per_ac",  "sds_m2",
                             "X_kst_a",        "lperhectare"})
        QTest::newRow(name) << true << false;
    for (const char *name :
         {"QT_kg",      "ID",        "OBJECTID",  "fid",        "FID_1",      "AREA_HA", "area",  "Shape_Area",
          "Shape_Leng", "perimeter", "DN",        "replicatio", "LC_CLASS_5", "X_MIN",   "xmax",  "Left",
          "total",      "Total_kg",  "zone_id",   "COUNT",      "Flaeche",    "HA",      "acres", "lat",
          "Longitude",  "YEAR",      "elevation", "K_mg_kg",    "P_mg_100g",  "pH",      "yield", "P_ppm",
          "soil_N",     "Einheit",   "extrude",   "drawOrder",  "visibility"})
        QTest::newRow(name) << false << true;
    for (const char *name :
         {"RATE_ID", "TOTAL_KG_HA", "target_area", "SUM_RATE", "Ertrag_dt_ha", "Rate_Unit", "Target_Yield"})
        QTest::newRow(name) << true << true;
    for (const char *name : {"Urea46", "value", "product", "Mais", "N", "strategy", "kg", "Nitrate"})
        QTest::newRow(name) << false << false;
    QTest::newRow("umlaut") << false << false;
}

void ColumnNameTest::tellsRatesFromTheRest()
{
    QFETCH(bool, rate);
    QFETCH(bool, other);
    const QByteArray tag = QTest::currentDataTag();
    const ColumnName name(tag == "umlaut" ? QString::fromUtf8("Düngung") : QString::fromLatin1(tag));
    QCOMPARE(name.namesRate(), rate);
    QCOMPARE(name.namesOther(), other);
}

void ColumnNameTest::tellsTotalsFromOtherThings_data()
{
    QTest::addColumn<bool>("total");
    for (const char *name : {"QT_kg", "total", "Total_kg", "TOTAL_KG_HA", "SUM_RATE", "Gesamt", "Menge_ges", "qty1"})
        QTest::newRow(name) << true;
    for (const char *name : {"Total_Area", "Tot_Yield", "SUM_K_mg_kg", "Total_N_ppm", "ID", "AREA_HA", "Rate", "Urea",
                             "TOTAL_ID", "qt_acre"})
        QTest::newRow(name) << false;
}

void ColumnNameTest::tellsTotalsFromOtherThings()
{
    QTEST(ColumnName(QString::fromLatin1(QTest::currentDataTag())).namesTotal(), "total");
}

void ColumnNameTest::tellsWhatIsMeasuredOut_data()
{
    QTest::addColumn<ProductLineItem::Basis>("basis");
    for (const char *name : {"SEED_KS_HA", "rate_seeds_ac", "seed_rate", "SEED_kg_ha", "PopRate", "ksha", "Saat_Rate"})
        QTest::newRow(name) << ProductLineItem::Count;
    for (const char *name : {"HERB_l_ha", "HERB_L_HA", "X_lha", "X_lperhectare", "qt_acre", "gal_per_ac", "N_galperac",
                             "dose_herb", "RateMlHa"})
        QTest::newRow(name) << ProductLineItem::Volume;
    for (const char *name : {"RATE_kg_", "FERT_KG_HA", "N_kgha", "LimeTHa", "UreaLbAc", "fert_rate"})
        QTest::newRow(name) << ProductLineItem::Weight;
    for (const char *name : {"rate", "dose", "Rx1", "target_rat", "value", ""})
        QTest::newRow(name) << ProductLineItem::None;
}

void ColumnNameTest::tellsWhatIsMeasuredOut()
{
    QTEST(ColumnName(QString::fromLatin1(QTest::currentDataTag())).basis(), "basis");
}

void ColumnNameTest::namesTheProduct_data()
{
    QTest::addColumn<QString>("product");
    const std::initializer_list<std::pair<const char *, const char *>> rows = {
        {"UREA_KG_HA", "Urea"},
        {"Urea_lb_ac", "Urea"},
        {"urea", "Urea"},
        {"SEED_KS_HA", "Seed"},
        {"SEED_kg_ha", "Seed"},
        {"HERB_l_ha", "Herb"},
        {"Rate_UAN_gal_ac", "UAN"},
        {"kg_N_ha", "N"},
        {"N_kgha", "N"},
        {"P2O5_lb_ac", "P2O5"},
        {"Lime_t_ha", "Lime"},
        {"Urea_ha", "Urea"},
        {"Tgt_Rate_MAP", "MAP"},
        {"AMMONIUM_NITRATE_KG_HA", "Ammonium Nitrate"},
        {"Round-up 360", "Round Up 360"},
        // Only a unit, and words for a rate.
        {"Rate_lb_ac", "Rate_lb_ac"},
        {"GPA", "GPA"},
        {"RATE", "RATE"},
        {"Rate_2", "Rate_2"},
        {"Koerner_m2", "Koerner_m2"}};
    for (const auto &[name, product] : rows)
        QTest::newRow(name) << QString::fromLatin1(product);
    QTest::newRow("umlaut") << QString::fromUtf8("Dünger");
}

void ColumnNameTest::namesTheProduct()
{
    QFETCH(QString, product);
    const QByteArray tag = QTest::currentDataTag();
    const ColumnName name(tag == "umlaut" ? QString::fromUtf8("DÜNGER_KG_HA") : QString::fromLatin1(tag));
    QCOMPARE(name.product(), product);
}

RXMAP_TEST(ColumnNameTest, Core)
#include "tst_columnname.moc"
