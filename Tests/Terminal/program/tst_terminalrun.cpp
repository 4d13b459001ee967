#include "commandline.h"
#include "paths.h"
#include "streamcapture.h"
#include "taskdatasketch.h"
#include "terminalhost.h"
#include "terminalrun.h"
#include "testbase.h"

#include <QApplication>
#include <QFileInfo>
#include <QImage>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QThread>

/// What the command line asks for, done in this process.
class TestTerminalRun : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void whatCannotBeDoneIsOneLine_data();
    void whatCannotBeDoneIsOneLine();
    void namesMayHoldWhatStandsForArguments();
    void tasksAreDoneInTheirOrder();
    void aScriptThatFailsEndsTheTasks();
    void withoutATaskItRunsUntilTheDisplayIsClosed();
    void aDisplayThatIsClosedBeforeTheMapsAreLoadedEndsTheRun();
    void likelyColumnsAreReportedOnceForAFileThatIsNamedTwice();
    void aPointIsDescribed_data();
    void aPointIsDescribed();
    void everyProductIsDescribed();
    void aMapOnAPlaneOfItsOwnIsAskedForTheSamePlace();
    void columnsAreTakenFromTheFilesThatHaveThem();
    void theFirstProductWithAMapIsShown();
    void aFileThatIsToFeedNothingIsNotOpened();
    void theColumnsThatFeedInTheEndAreReported();
    void theUnitOfTheFileIsTold_data();
    void theUnitOfTheFileIsTold();
    void theRatesAroundATaskAreTold();
    void whatALoadCountsIsTold_data();
    void whatALoadCountsIsTold();
    void aProductThatNoPrescriptionDrivesIsFedByNone();
    void productsComeFromAFile();
    void withoutOneTheyComeFromTheFirstPrescription_data();
    void withoutOneTheyComeFromTheFirstPrescription();
    void aScriptsFirstPrescriptionBringsTheProducts();

private:
    struct Outcome {
        QString error;
        QString output;
        /// The output without the lines that say what feeds which product.
        QString answer;
        QString errors;
    };

    static Outcome run(const QStringList &arguments);
    static QString zones() { return TerminalHost::fixture(QStringLiteral("three-zones.geojson")); }
    QString write(const QByteArray &content, const QString &name);
    /// A map of one square, a thousandth of a degree wide, with its south-west corner there.
    static QByteArray square(const QByteArray &column, double rate, double lon, double lat);

    QTemporaryDir folder;
};

TestTerminalRun::Outcome TestTerminalRun::run(const QStringList &arguments)
{
    const Result<CommandLine> line = CommandLine::parse(QStringList(QStringLiteral("terminal-simulator")) + arguments);
    if (!line.isOk())
        return {QStringLiteral("not understood: ") + line.error, {}, {}, {}};
    Outcome outcome;
    const StreamCapture output(stdout);
    const StreamCapture errors(stderr);
    outcome.error = runTerminal(line.value);
    outcome.output = output.written();
    static const QRegularExpression feeds(QStringLiteral("^.*: product \\d+ \\(.*\\n"),
                                          QRegularExpression::MultilineOption);
    outcome.answer = QString(outcome.output).remove(feeds);
    outcome.errors = errors.written();
    return outcome;
}

QString TestTerminalRun::write(const QByteArray &content, const QString &name)
{
    QFile file(folder.filePath(name));
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() ? file.fileName() : QString();
}

QByteArray TestTerminalRun::square(const QByteArray &column, double rate, double lon, double lat)
{
    const auto corner = [&](double east, double north) {
        return QStringLiteral("[%1,%2]").arg(lon + east, 0, 'f', 6).arg(lat + north, 0, 'f', 6);
    };
    const QString ring =
        QStringList{corner(0, 0), corner(0.001, 0), corner(0.001, 0.001), corner(0, 0.001), corner(0, 0)}.join(
            QLatin1Char(','));
    return QStringLiteral(R"({"type":"FeatureCollection","features":[{"type":"Feature","properties":{"%1":%2},)"
                          R"("geometry":{"type":"Polygon","coordinates":[[%3]]}}]})")
        .arg(QString::fromLatin1(column), QString::number(rate), ring)
        .toUtf8();
}

void TestTerminalRun::whatCannotBeDoneIsOneLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("mentioned");
    QTest::newRow("missing prescription") << QStringList{"/no/such.shp"} << "/no/such.shp";
    QTest::newRow("bad products") << QStringList{"--products", write("[]", "empty.json")} << "empty.json";
    QTest::newRow("folder") << QStringList{"/tmp"} << "/tmp";
    QTest::newRow("text file") << QStringList{TerminalHost::fixture("README.md")} << "README.md";
    QTest::newRow("second file bad") << QStringList{zones(), "/no/such.shp"} << "/no/such.shp";
    QTest::newRow("missing column") << QStringList{"--columns", "NOPE", zones()} << "NOPE";
    QTest::newRow("column in no file") << QStringList{"--columns", "SEED_K_HA,NOPE", zones(),
                                                      TerminalHost::fixture("overlap.geojson")}
                                       << "NOPE";
    QTest::newRow("more columns than products")
        << QStringList{"--columns", QString(16, ',') + "FERT_KG_HA", zones()} << "17 columns";
    QTest::newRow("no such unit") << QStringList{"--source-units", "bags", zones()} << "\"bags\" is no unit of a rate";
    QTest::newRow("no plug-in") << QStringList{"--plugin-dir", folder.path()} << folder.path();
    QTest::newRow("place without a map") << QStringList{"--at", "9,48"} << "--at 9,48: no map is loaded";
    QTest::newRow("place in another country")
        << QStringList{"--at", "-100.5,40", zones()} << "--at -100.5,40: is more than 1000 km from the field";
    QTest::newRow("unknown language") << QStringList{"--language", "xx"} << "xx";
    QTest::newRow("picture in no folder")
        << QStringList{"--screenshot", "/no/such/folder/p.png"} << "/no/such/folder/p.png";
}

void TestTerminalRun::whatCannotBeDoneIsOneLine()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, mentioned);
    const Outcome outcome = run(arguments);
    QVERIFY2(outcome.error.contains(mentioned), qPrintable(outcome.error));
    QVERIFY2(!outcome.error.contains(QLatin1Char('\n')), qPrintable(outcome.error));
    QVERIFY2(!outcome.error.startsWith(QLatin1String("not understood")), qPrintable(outcome.error));
    QCOMPARE(outcome.errors, QString());
}

void TestTerminalRun::namesMayHoldWhatStandsForArguments()
{
    const QString name = QStringLiteral("50%1 %2 %3.geojson");
    const QString map = folder.filePath(name);
    QVERIFY(QFile::copy(zones(), map));
    QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("copy")));
    const QString copy = folder.filePath(QStringLiteral("copy/") + name);
    QVERIFY(QFile::copy(zones(), copy));
    const QString script = write("print(terminal.groups('rxMap.*').join());\nthrow new Error('end');", "100%1%2.js");
    const Outcome outcome = run({"--script", script, map, copy});
    QVERIFY2(outcome.output.contains(copy + QStringLiteral(": product 2 (Fert): FERT_KG_HA (kg/ha, from the name)\n")),
             qPrintable(outcome.output));
    QVERIFY2(outcome.output.endsWith(QStringLiteral("rxMap.%1,rxMap.%1 (2)\n").replace(QStringLiteral("%1"), name)),
             qPrintable(outcome.output));
    QCOMPARE(outcome.error, script + QStringLiteral(":2: Error: end"));
    const QString refusal = run({"--columns", QString(16, ',') + "FERT_KG_HA", map}).error;
    QVERIFY2(refusal.startsWith(map + QStringLiteral(": 17 columns are named, but the machine has 16")),
             qPrintable(refusal));
}

void TestTerminalRun::tasksAreDoneInTheirOrder()
{
    const QString picture = folder.filePath(QStringLiteral("map.png"));
    const QString script =
        write("print(terminal.activeProduct); terminal.close(terminal.groups('rxMap.*')[0]);", "t.js");
    const Outcome outcome =
        run({"--columns", "SEED_K_HA", "--script", script, "--screenshot", picture, "--describe", "0,0", zones()});
    QCOMPARE(outcome.error, QString());
    QCOMPARE(outcome.answer,
             QStringLiteral("product 1 (Seed): Rx Rate: 80.00 (SEED_K_HA, 1000/ha)\n"
                            "product 2 (Fertiliser): No rate is prescribed at 0,0\n"
                            "product 3 (Herbicide): No rate is prescribed at 0,0\n1\n"));
    QCOMPARE(QImage(picture).size(), QSize(1280, 800));
    // The script has taken the map away before the picture was taken.
    const QString before = folder.filePath(QStringLiteral("before.png"));
    QCOMPARE(run({"--columns", "SEED_K_HA", "--screenshot", before, "--describe", "0,0", zones()}).error, QString());
    const QRect field(500, 300, 200, 200);
    QVERIFY(QImage(picture).copy(field) != QImage(before).copy(field));
}

void TestTerminalRun::aScriptThatFailsEndsTheTasks()
{
    const QString picture = folder.filePath(QStringLiteral("never.png"));
    const Outcome outcome =
        run({"--script", write("print('before');\nterminal.get('x', 'y');", "bad.js"), "--screenshot", picture});
    QCOMPARE(outcome.error, folder.filePath("bad.js") + QStringLiteral(":2: Error: no group \"x\""));
    QCOMPARE(outcome.output, QStringLiteral("before\n"));
    QVERIFY(!QFileInfo::exists(picture));
}

void TestTerminalRun::withoutATaskItRunsUntilTheDisplayIsClosed()
{
    bool hasRun = false;
    QTimer closing;
    connect(&closing, &QTimer::timeout, this, [&hasRun] {
        if (QThread::currentThread()->loopLevel() == 0)
            return;
        hasRun = true;
        QApplication::closeAllWindows();
    });
    closing.start(0);
    QCOMPARE(run({}).error, QString());
    QVERIFY(hasRun);
}

void TestTerminalRun::aDisplayThatIsClosedBeforeTheMapsAreLoadedEndsTheRun()
{
    QTimer::singleShot(0, this, &QApplication::closeAllWindows);
    QCOMPARE(run({zones()}).error, QString());
}

void TestTerminalRun::likelyColumnsAreReportedOnceForAFileThatIsNamedTwice()
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

void TestTerminalRun::aPointIsDescribed_data()
{
    QTest::addColumn<QString>("point");
    QTest::addColumn<QString>("units");
    QTest::addColumn<QString>("line");
    QTest::newRow("west") << "-100,0"
                          << "metric"
                          << "Rx Rate: 70.00 (SEED_K_HA, 1000/ha)";
    QTest::newRow("per acre") << "-100,0"
                              << "us"
                              << "Rx Rate: 28.33 (SEED_K_HA, 1000/ha)";
    QTest::newRow("per 1000 square feet") << "-100,0"
                                          << "turf"
                                          << "Rx Rate: 0.65 (SEED_K_HA, 1000/ha)";
    QTest::newRow("outside") << "-1000,0"
                             << "metric"
                             << "No rate is prescribed at -1000,0";
}

void TestTerminalRun::aPointIsDescribed()
{
    QFETCH(QString, point);
    QFETCH(QString, units);
    QFETCH(QString, line);
    const Outcome outcome = run({"--describe", point, "--units", units, "--columns", "SEED_K_HA", zones()});
    QCOMPARE(outcome.error, QString());
    QCOMPARE(outcome.answer.section(QLatin1Char('\n'), 0, 0), QStringLiteral("product 1 (Seed): ") + line);
}

void TestTerminalRun::everyProductIsDescribed()
{
    // In metres and in degrees; what was active is active again.
    const QString script = write("var e = terminal.toEarth(-100, 0); print(e.lon.toFixed(9) + ',' + e.lat.toFixed(9));"
                                 "print(terminal.activeProduct, terminal.groups('rxMap.*').length);",
                                 "place.js");
    const Outcome metres =
        run({"--columns", ",FERT_KG_HA,HERB_L_HA", "--describe", "-100,0", "--script", script, zones()});
    QCOMPARE(metres.error, QString());
    const QStringList lines = metres.answer.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), 5);
    QCOMPARE(lines.at(0), QStringLiteral("product 1 (Seed): No rate is prescribed at -100,0"));
    QCOMPARE(lines.at(1), QStringLiteral("product 2 (Fert): Rx Rate: 120.50 (FERT_KG_HA, kg/ha)"));
    QCOMPARE(lines.at(2), QStringLiteral("product 3 (Herb): Rx Rate: 0.00 (HERB_L_HA, L/ha)"));
    QCOMPARE(lines.at(4), QStringLiteral("2 1"));
    const Outcome degrees = run({"--columns", ",FERT_KG_HA,HERB_L_HA", "--at", lines.at(3), zones()});
    QCOMPARE(degrees.error, QString());
    QCOMPARE(degrees.answer.split(QLatin1Char('\n')).mid(1, 2), lines.mid(1, 2));
}

void TestTerminalRun::aMapOnAPlaneOfItsOwnIsAskedForTheSamePlace()
{
    const QByteArray far = square("Urea_kg_ha", 45, 11.0, 48.0);
    const QStringList files = {write(square("SEED_K_HA", 77, 9.0, 48.0), "near.geojson"), write(far, "far.geojson")};
    const Outcome outcome = run(QStringList{"--at", "11.0005,48.0005"} + files);
    QCOMPARE(outcome.error, QString());
    QVERIFY2(outcome.answer.contains(QLatin1String("product 1 (Seed): No rate is prescribed at 11.0005,48.0005\n")),
             qPrintable(outcome.answer));
    QVERIFY2(outcome.answer.contains(QLatin1String("): Rx Rate: 45.00 (Urea_kg_ha, kg/ha)\n")),
             qPrintable(outcome.answer));
}

void TestTerminalRun::columnsAreTakenFromTheFilesThatHaveThem()
{
    const QString script = write("print(terminal.get('system.binGroup.1', 'rxMapGroupName'),"
                                 " terminal.get('system.binGroup.2', 'rxMapGroupName'));",
                                 "feeds.js");
    const Outcome outcome = run({"--columns", "RATE,FERT_KG_HA", "--script", script, zones(),
                                 TerminalHost::fixture(QStringLiteral("overlap.geojson"))});
    QCOMPARE(outcome.error, QString());
    QCOMPARE(outcome.answer, QStringLiteral("rxMap.overlap.geojson rxMap.three-zones.geojson\n"));
}

void TestTerminalRun::theFirstProductWithAMapIsShown()
{
    const QString script = write("print(terminal.activeProduct);", "active.js");
    QCOMPARE(run({"--columns", ",FERT_KG_HA,HERB_L_HA", "--script", script, zones()}).answer, QStringLiteral("2\n"));
    QCOMPARE(run({"--columns", "FERT_KG_HA", "--script", script, zones()}).answer, QStringLiteral("1\n"));
}

void TestTerminalRun::aFileThatIsToFeedNothingIsNotOpened()
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

void TestTerminalRun::theColumnsThatFeedInTheEndAreReported()
{
    const QString other = TerminalHost::fixture(QStringLiteral("overlap.geojson"));
    const Outcome outcome = run({"--describe", "-1000,0", zones(), other});
    QCOMPARE(outcome.error, QString());
    QVERIFY2(!outcome.output.contains(QLatin1String("product 1 (Seed): SEED_K_HA")), qPrintable(outcome.output));
    QVERIFY(
        outcome.output.contains(zones() + QStringLiteral(": product 2 (Fert): FERT_KG_HA (kg/ha, from the name)\n")));
    QVERIFY(outcome.output.contains(other
                                    + QStringLiteral(": product 1 (Seed): rate (unit not known, taken as 1000/ha)\n")));
}

void TestTerminalRun::theUnitOfTheFileIsTold_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("answer");
    QTest::addColumn<QString>("told");
    QTest::newRow("by its name") << QStringList{"--columns", "SEED_K_HA"} << "Rx Rate: 80.00 (SEED_K_HA, 1000/ha)"
                                 << "SEED_K_HA (1000/ha, from the name)";
    QTest::newRow("by the operator") << QStringList{"--columns", "SEED_K_HA", "--source-units", "seeds/m2"}
                                     << "Rx Rate: 800.00 (SEED_K_HA, seeds/m2)"
                                     << "SEED_K_HA (seeds/m2, named by the operator)";
    QTest::newRow("by the operator, for a likely column")
        << QStringList{"--source-units", "1000/ac"} << "Rx Rate: 197.68 (SEED_K_HA, 1000/ac)"
        << "SEED_K_HA (1000/ac, named by the operator)";
}

void TestTerminalRun::theUnitOfTheFileIsTold()
{
    QFETCH(QStringList, options);
    QFETCH(QString, told);
    const Outcome outcome = run(options + QStringList{"--describe", "0,0", zones()});
    QCOMPARE(outcome.error, QString());
    QFETCH(QString, answer);
    QCOMPARE(outcome.answer.section(QLatin1Char('\n'), 0, 0), QStringLiteral("product 1 (Seed): ") + answer);
    QVERIFY2(outcome.output.startsWith(zones() + QStringLiteral(": product 1 (Seed): ") + told + QLatin1Char('\n')),
             qPrintable(outcome.output));
}

void TestTerminalRun::theRatesAroundATaskAreTold()
{
    using Sketch = TaskDataSketch;
    const auto task = [](const QByteArray &name, int steps) {
        const QByteArray zones = Sketch::zone(1, Sketch::polygon({{11.0, 48.0, 0.01}}) + Sketch::value(6, steps))
            + Sketch::zone(2, Sketch::value(6, 12345678)) + Sketch::zone(3, Sketch::value(6, 0));
        return Sketch::task(name, zones, "H=\"2\" J=\"3\"");
    };
    QVERIFY(Sketch{task("TSK1", 10000) + task("TSK2", 20000)}.write(folder.path()));
    const Outcome outcome = run({"--task", "TSK2", "--describe", "0,0", folder.path()});
    QCOMPARE(outcome.error, QString());
    QCOMPARE(outcome.errors, QString());
    const QString column = QStringLiteral("Setpoint Mass Per Area Application Rate");
    const QString product = QStringLiteral("product 1 (%1): ").arg(column);
    QCOMPARE(outcome.answer.section(QLatin1Char('\n'), 0, 0),
             QStringLiteral("%1Rx Rate: 200.00 (%2, mg/m2)").arg(product, column));
    const QString told = folder.path() + QStringLiteral(": ") + product;
    QCOMPARE(QString(outcome.output).remove(outcome.answer),
             told + column + QStringLiteral(" (mg/m2, from the format)\n") + told
                 + QStringLiteral("default rate 0 kg/ha (out of the field 0, elsewhere 123456.78)\n"));
    const QString script =
        write("print(terminal.open('" + folder.path().toUtf8() + "').sources[0].elsewhere);", "a.js");
    QCOMPARE(run({"--script", script}).output, QStringLiteral("123456.78\n"));
}

void TestTerminalRun::whatALoadCountsIsTold_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("unit");
    QTest::newRow("likely columns") << QStringList{} << "kg/ha";
    QTest::newRow("a column by name") << QStringList{"--columns", "Rate"} << "kg/ha";
    // The file before it brought the products.
    QTest::newRow("a column by name, two files")
        << QStringList{"--columns", "Rate,FERT_KG_HA", TerminalHost::fixture("three-zones.geojson")} << "1000/ha";
}

void TestTerminalRun::whatALoadCountsIsTold()
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

void TestTerminalRun::aProductThatNoPrescriptionDrivesIsFedByNone()
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

void TestTerminalRun::productsComeFromAFile()
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
        zones()
            + QStringLiteral(": no product that a prescription may drive fits the unit of \"SEED_K_HA\" (1000/ha)\n"));
    QVERIFY(outcome.output.contains(QLatin1String("product 3 (Spray)")));
}

void TestTerminalRun::withoutOneTheyComeFromTheFirstPrescription_data()
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
    QTest::newRow("gallons") << QStringList{gallons} << QStringList{"1 (GPA): Rx Rate: 140.31 (GPA, gal/ac)"};
    QTest::newRow("seed by weight") << QStringList{seed}
                                    << QStringList{"1 (Seed): Rx Rate: 180.00 (SEED_kg_ha, kg/ha)"};
    QTest::newRow("four columns") << QStringList{four}
                                  << QStringList{"1 (A): Rx Rate: 4.00 (A_l_ha, L/ha)",
                                                 "2 (B): Rx Rate: 5.00 (B_l_ha, L/ha)",
                                                 "3 (Seeds): Rx Rate: 6.00 (Seeds_K_ha, 1000/ha)",
                                                 "4 (Urea): Rx Rate: 1.00 (UREA_kg_ha, kg/ha)"};
    QTest::newRow("a column named") << QStringList{"--columns", ",UREA_kg_ha", four}
                                    << QStringList{"2 (Urea): Rx Rate: 1.00 (UREA_kg_ha, kg/ha)"};
    QTest::newRow("a unit named") << QStringList{"--source-units", "gal/ac", "--columns", "UREA_kg_ha", four}
                                  << QStringList{"1 (Urea): Rx Rate: 9.35 (UREA_kg_ha, gal/ac)"};
    // The same product in another file and another unit.
    QTest::newRow("a second file") << QStringList{four, other}
                                   << QStringList{"1 (A): Rx Rate: 28.06 (GPA, gal/ac)",
                                                  "4 (Urea): Rx Rate: 112.09 (Urea_lb_ac, lb/ac)"};
}

void TestTerminalRun::withoutOneTheyComeFromTheFirstPrescription()
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

void TestTerminalRun::aScriptsFirstPrescriptionBringsTheProducts()
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

RXMAP_TEST(TestTerminalRun, Widgets)
#include "tst_terminalrun.moc"
