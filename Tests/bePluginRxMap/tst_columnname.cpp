#include "columnname.h"
#include "testbase.h"

class ColumnNameTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void tellsRatesFromTheRest_data();
    void tellsRatesFromTheRest();
};

void ColumnNameTest::tellsRatesFromTheRest_data()
{
    QTest::addColumn<bool>("rate");
    QTest::addColumn<bool>("other");
    for (const char *name : {"RATE_kg_",       "Rate",       "target_rat", "target_rate", "TgtRate",      "Tgt_Rate_l",
                             "dose",           "DOSE",       "DOSE_1",     "Dosis",       "RATE_l_ha",    "SEED_kg_ha",
                             "HERB_l_ha",      "FERT_kg_ha", "FERT_KG_HA", "N_kgha",      "LimeTHa",      "UreaLbAc",
                             "Fert_kg_per_ha", "AppRate2",   "Menge_kg_h", "Rx1",         "Aufwandmenge", "ZONE_RATE",
                             "sollwert",       "GPA"})
        QTest::newRow(name) << true << false;
    for (const char *name :
         {"QT_kg",     "ID",    "OBJECTID",   "fid",        "FID_1", "AREA_HA", "area",      "Shape_Area", "Shape_Leng",
          "perimeter", "DN",    "replicatio", "LC_CLASS_5", "X_MIN", "xmax",    "Left",      "total",      "Total_kg",
          "zone_id",   "COUNT", "Flaeche",    "HA",         "acres", "lat",     "Longitude", "YEAR",       "elevation"})
        QTest::newRow(name) << false << true;
    for (const char *name : {"RATE_ID", "TOTAL_KG_HA", "target_area", "SUM_RATE"})
        QTest::newRow(name) << true << true;
    for (const char *name : {"Urea46", "value", "product", "Mais", "N", "strategy", "kg"})
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

QTEST_GUILESS_MAIN(ColumnNameTest)
#include "tst_columnname.moc"
