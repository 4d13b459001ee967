#include "terminalruntest.h"

#include <QFileInfo>

/// Which columns of the files feed which products.
class TestTerminalRunProducts : public TerminalRunTest {
    Q_OBJECT

private Q_SLOTS:
    void likelyColumnsAreReportedOnceForAFileThatIsNamedTwice();
    void columnsAreTakenFromTheFilesThatHaveThem();
    void theFirstProductWithAMapIsShown();
    void aFileThatIsToFeedNothingIsNotOpened();
    void theColumnsThatFeedInTheEndAreReported();
    void whatALoadCountsIsTold_data();
    void whatALoadCountsIsTold();
    void aProductThatNoPrescriptionDrivesIsFedByNone();
    void columnsThatFeedNoProductAreNamed();
    void productsComeFromAFile();
    void withoutOneTheyComeFromTheFirstPrescription_data();
    void withoutOneTheyComeFromTheFirstPrescription();
    void aScriptsFirstPrescriptionBringsTheProducts();
};

void TestTerminalRunProducts::likelyColumnsAreReportedOnceForAFileThatIsNamedTwice()
{
    const QString again = QStringLiteral("%1/../fixtures/three-zones.geojson").arg(QFileInfo(zones()).path());
    const Outcome once = run({"--describe", "0,0", zones()});
    QCOMPARE(once.error, QString());
    for (const char *column : {"SEED_K_HA", "FERT_KG_HA", "HERB_L_HA"})
        QVERIFY2(once.output.contains(QLatin1String(column)), qPrintable(once.output));
    QVERIFY(!once.output.contains(QLatin1String("area_ha")));
    const Outcome twice = run({"--describe", "0,0", zones(), again});
    QCOMPARE(twice.error, QString());
    QCOMPARE(twice.output, once.output);
    QCOMPARE(twice.errors, QString());
}

void TestTerminalRunProducts::columnsAreTakenFromTheFilesThatHaveThem()
{
    const QString script = write("print(terminal.get('system.binGroup.1', 'rxMapGroupName'),"
                                 " terminal.get('system.binGroup.2', 'rxMapGroupName'));",
                                 "feeds.js");
    const Outcome outcome = run({"--columns", "RATE,FERT_KG_HA", "--script", script, zones(),
                                 TerminalHost::fixture(QStringLiteral("overlap.geojson"))});
    QCOMPARE(outcome.error, QString());
    QCOMPARE(outcome.answer, QStringLiteral("rxMap.overlap.geojson rxMap.three-zones.geojson\n"));
}

void TestTerminalRunProducts::theFirstProductWithAMapIsShown()
{
    const QString script = write("print(terminal.activeProduct);", "active.js");
    QCOMPARE(run({"--columns", ",FERT_KG_HA,HERB_L_HA", "--script", script, zones()}).answer, QStringLiteral("2\n"));
    QCOMPARE(run({"--columns", "FERT_KG_HA", "--script", script, zones()}).answer, QStringLiteral("1\n"));
}

void TestTerminalRunProducts::aFileThatIsToFeedNothingIsNotOpened()
{
    const QString script = write("print(terminal.groups('rxMap.*'), terminal.get('system.binGroup.1',"
                                 " 'rxMapGroupName'));",
                                 "opened.js");
    const QString other = TerminalHost::fixture(QStringLiteral("overlap.geojson"));
    const Outcome outcome = run({"--columns", "SEED_K_HA", "--script", script, zones(), other});
    QCOMPARE(outcome.error, QString());
    QCOMPARE(outcome.answer, QStringLiteral("rxMap.three-zones.geojson rxMap.three-zones.geojson\n"));
    QCOMPARE(outcome.errors, other + QStringLiteral(": not opened, it feeds no product\n"));
}

void TestTerminalRunProducts::theColumnsThatFeedInTheEndAreReported()
{
    const QString other = TerminalHost::fixture(QStringLiteral("overlap.geojson"));
    const Outcome outcome = run({"--describe", "-1000,0", zones(), other});
    QCOMPARE(outcome.error, QString());
    QVERIFY2(!outcome.output.contains(QLatin1String("product 1 (Seed): SEED_K_HA")), qPrintable(outcome.output));
    QVERIFY(
        outcome.output.contains(zones() + QStringLiteral(": product 2 (Fert): FERT_KG_HA (kg/ha, from the name)\n")));
    QVERIFY(
        outcome.output.contains(other + QStringLiteral(": product 1 (Seed): rate (unit not known, taken as k/ha)\n")));
}

void TestTerminalRunProducts::whatALoadCountsIsTold_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("unit");
    QTest::newRow("likely columns") << QStringList{} << "kg/ha";
    QTest::newRow("a column by name") << QStringList{"--columns", "Rate"} << "kg/ha";
    // The first file brought the products.
    QTest::newRow("a column by name, two files")
        << QStringList{"--columns", "Rate,FERT_KG_HA", TerminalHost::fixture("three-zones.geojson")} << "k/ha";
}

void TestTerminalRunProducts::whatALoadCountsIsTold()
{
    QFETCH(QStringList, options);
    QFETCH(QString, unit);
    const QString path = TerminalHost::fixture(QStringLiteral("text-rates.geojson"));
    const Outcome outcome = run(options + QStringList{"--describe", "0,0", path});
    QCOMPARE(outcome.error, QString());
    QStringList lines = outcome.errors.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    lines.sort();
    QCOMPARE(lines,
             QStringList({path + QStringLiteral(": 1 entry of column \"Rate\" is no rate and was left out"),
                          path + QStringLiteral(": 2 records without a rate were skipped (records 2, 3)"),
                          path + QStringLiteral(": the unit of column \"Rate\" is not known, taken as ") + unit}));
}

void TestTerminalRunProducts::aProductThatNoPrescriptionDrivesIsFedByNone()
{
    const QString products =
        write(R"([{"name": "Lime", "kind": "weight"}, {"name": "Water", "kind": "volume", "underVra": false}])",
              "water.json");
    const QString script =
        write("print(terminal.get('rxMap.three-zones.geojson', 'rateCalMappings').length)", "count.js");
    const Outcome some =
        run({"--products", products, "--columns", "FERT_KG_HA,HERB_L_HA", "--script", script, zones()});
    QCOMPARE(some.error, QString());
    QCOMPARE(some.answer, QStringLiteral("1\n"));
    const QString reason =
        zones() + QStringLiteral(": column \"HERB_L_HA\" is left out, product 2 (Water) takes no prescription");
    QCOMPARE(some.errors, reason + QLatin1Char('\n'));
    const Outcome none = run({"--products", products, "--columns", ",HERB_L_HA", "--script", script, zones()});
    QCOMPARE(none.error, reason);
}

void TestTerminalRunProducts::columnsThatFeedNoProductAreNamed()
{
    const QString products = write(R"([{"name": "Lime", "kind": "weight"}])", "lime.json");
    const Outcome outcome = run({"--products", products, "--source-units", "kg/ha", "--describe", "0,0", zones()});
    QCOMPARE(outcome.error, QString());
    QCOMPARE(outcome.errors, zones() + QStringLiteral(": columns \"SEED_K_HA\", \"HERB_L_HA\" feed no product\n"));
}

void TestTerminalRunProducts::productsComeFromAFile()
{
    const QString products =
        write(R"([{"name": "Lime", "kind": "weight"}, {"name": "Water", "kind": "volume", "underVra": false},
                    {"name": "Spray", "kind": "volume"}])",
              "machine.json");
    const Outcome outcome = run({"--products", products, "--describe", "0,0", zones()});
    QCOMPARE(outcome.error, QString());
    QVERIFY2(outcome.output.contains(QLatin1String("product 1 (Lime)")), qPrintable(outcome.output));
    QVERIFY(!QString(outcome.output).remove(outcome.answer).contains(QLatin1String("Water")));
    QCOMPARE(
        outcome.errors,
        zones() + QStringLiteral(": no product that a prescription may drive fits the unit of \"SEED_K_HA\" (k/ha)\n"));
    QVERIFY(outcome.output.contains(QLatin1String("product 3 (Spray)")));
}

void TestTerminalRunProducts::withoutOneTheyComeFromTheFirstPrescription_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QStringList>("answers");
    const QString pounds = write(square("Rate_lb_ac", 150, 11.0, 48.0), "pounds.geojson");
    const QString gallons = write(square("GPA", 15, 11.0, 48.0), "gallons.geojson");
    const QString seed = write(square("SEED_kg_ha", 180, 11.0, 48.0), "seed.geojson");
    const QString four = write(
        square("UREA_kg_ha", 1, 11.0, 48.0).replace("\"UREA", "\"A_l_ha\":4,\"B_l_ha\":5,\"Seeds_K_ha\":6,\"UREA"),
        "four.geojson");
    const QString other =
        write(square("Urea_lb_ac", 100, 11.0, 48.0).replace("\"Urea", "\"GPA\":3,\"Urea"), "urea.geojson");
    QTest::newRow("pounds") << QStringList{"--units", "us", pounds}
                            << QStringList{"1 (Rate_lb_ac): Rx Rate: 150.00 (Rate_lb_ac, lb/ac)"};
    QTest::newRow("gallons") << QStringList{gallons}
                             << QStringList{"1 (GPA): Rx Rate: 140.31 (GPA, gal/ac), shown in L/ha"};
    QTest::newRow("seed by weight") << QStringList{seed}
                                    << QStringList{"1 (Seed): Rx Rate: 180.00 (SEED_kg_ha, kg/ha)"};
    QTest::newRow("four columns") << QStringList{four}
                                  << QStringList{"1 (A): Rx Rate: 4.00 (A_l_ha, L/ha)",
                                                 "2 (B): Rx Rate: 5.00 (B_l_ha, L/ha)",
                                                 "3 (Seeds): Rx Rate: 6.00 (Seeds_K_ha, k/ha)",
                                                 "4 (Urea): Rx Rate: 1.00 (UREA_kg_ha, kg/ha)"};
    QTest::newRow("a column named") << QStringList{"--columns", ",UREA_kg_ha", four}
                                    << QStringList{"2 (Urea): Rx Rate: 1.00 (UREA_kg_ha, kg/ha)"};
    QTest::newRow("a unit named") << QStringList{"--source-units", "gal/ac", "--columns", "UREA_kg_ha", four}
                                  << QStringList{"1 (Urea): Rx Rate: 9.35 (UREA_kg_ha, gal/ac), shown in L/ha"};
    // The same product in another file, in another unit.
    QTest::newRow("a second file") << QStringList{four, other}
                                   << QStringList{"1 (A): Rx Rate: 28.06 (GPA, gal/ac), shown in L/ha",
                                                  "4 (Urea): Rx Rate: 112.09 (Urea_lb_ac, lb/ac), shown in kg/ha"};
}

void TestTerminalRunProducts::withoutOneTheyComeFromTheFirstPrescription()
{
    QFETCH(QStringList, arguments);
    QFETCH(QStringList, answers);
    const Outcome outcome = run(QStringList{"--at", "11.0005,48.0005"} + arguments);
    QCOMPARE(outcome.error, QString());
    QCOMPARE(outcome.errors, QString());
    const QStringList lines = outcome.answer.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QVERIFY(lines.size() >= 3);
    for (const QString &answer : qAsConst(answers))
        QVERIFY2(lines.contains(QStringLiteral("product ") + answer), qPrintable(outcome.answer));
}

void TestTerminalRunProducts::aScriptsFirstPrescriptionBringsTheProducts()
{
    const QString file =
        write(square("Urea_lb_ac", 100, 11.0, 48.0).replace("\"Urea", "\"GPA\":3,\"Urea"), "u.geojson");
    const QString script = write("terminal.drive(1); terminal.run(5);"
                                 "var r = terminal.open('"
                                     + file.toUtf8()
                                     + "');"
                                       "print(r.sources.map(function(s) { return s.product + s.column + s.unit; }),"
                                       " terminal.get('system.binGroup.1', 'compositionShortName'),"
                                       " terminal.find('selectProduct2').text, terminal.find('selectProduct3').text,"
                                       " terminal.rates(2).unit, r.warnings.length);"
                                       "terminal.run(5); terminal.close(r.group); terminal.open('"
                                     + zones().toUtf8()
                                     + "');"
                                       "print(terminal.find('selectProduct1').text, terminal.find('selectProduct4'));",
                                 "first.js");
    const Outcome outcome = run({"--script", script});
    QCOMPARE(outcome.error, QString());
    QCOMPARE(outcome.output, QStringLiteral("1GPAgal/ac,2Urea_lb_aclb/ac GPA Urea Seed kg/ha 0\nGPA null\n"));
}

RXMAP_TEST(TestTerminalRunProducts, Widgets)
#include "tst_terminalrun_products.moc"
