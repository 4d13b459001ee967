#include "paths.h"
#include "terminalhost.h"
#include "testbase.h"

#include <QFileInfo>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

/// The program as it is started from a shell.
class TestTerminalSimulator : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void badArgumentsEndWithOneLine_data();
    void badArgumentsEndWithOneLine();
    void helpIsPrinted();
    void likelyColumnsAreReportedOnceForAFileThatIsNamedTwice();
    void aPointIsDescribed_data();
    void aPointIsDescribed();
    void aPictureIsSaved();
    void aScriptsResultIsTheExitStatus();
    void columnsAreTakenFromTheFilesThatHaveThem();
    void aFileThatIsToFeedNothingIsNotOpened();
    void theColumnsThatFeedInTheEndAreReported();
    void whatALoadCountsIsTold_data();
    void whatALoadCountsIsTold();
    void aProductThatNoPrescriptionDrivesIsFedByNone();
    void brokenPluginsAreReportedAndSkipped();
    void productsComeFromAFile();
    void withoutADisplayItSaysSo_data();
    void withoutADisplayItSaysSo();
    void withoutOpenGlItSaysSo();
    void itSpeaksTheOperatorsLanguage();

private:
    struct Outcome {
        int status;
        QString output;
        QString errors;
    };

    static Outcome run(const QStringList &arguments, const QProcessEnvironment &environment);
    static Outcome run(const QStringList &arguments)
    {
        return run(arguments, QProcessEnvironment::systemEnvironment());
    }
    static QString zones() { return TerminalHost::fixture(QStringLiteral("three-zones.geojson")); }
    QString write(const QByteArray &content, const QString &name);

    QTemporaryDir folder;
};

TestTerminalSimulator::Outcome TestTerminalSimulator::run(const QStringList &arguments,
                                                          const QProcessEnvironment &environment)
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(RXMAP_PROGRAM), arguments);
    if (!process.waitForFinished(120000) || process.exitStatus() != QProcess::NormalExit)
        return {-1, QString(),
                QStringLiteral("did not end by itself: ") + QString::fromUtf8(process.readAllStandardError())};
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

QString TestTerminalSimulator::write(const QByteArray &content, const QString &name)
{
    QFile file(folder.filePath(name));
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() ? file.fileName() : QString();
}

void TestTerminalSimulator::badArgumentsEndWithOneLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("mentioned");
    QTest::newRow("unknown option") << QStringList{"--colour"} << "colour";
    QTest::newRow("unknown units") << QStringList{"--units", "metres"} << "metres";
    QTest::newRow("missing prescription") << QStringList{"/no/such.shp"} << "/no/such.shp";
    QTest::newRow("folder") << QStringList{"/tmp"} << "/tmp";
    QTest::newRow("text file") << QStringList{TerminalHost::fixture("README.md")} << "README.md";
    QTest::newRow("second file bad") << QStringList{zones(), "/no/such.shp"} << "/no/such.shp";
    QTest::newRow("missing column") << QStringList{"--columns", "NOPE", zones()} << "NOPE";
    QTest::newRow("column in no file") << QStringList{"--columns", "SEED_K_HA,NOPE", zones(),
                                                      TerminalHost::fixture("overlap.geojson")}
                                       << "NOPE";
    QTest::newRow("more columns than products")
        << QStringList{"--columns", "SEED_K_HA,,,FERT_KG_HA", zones()} << "4 columns";
    QTest::newRow("bad products") << QStringList{"--products", write("[]", "empty.json")} << "empty.json";
    QTest::newRow("no plug-in") << QStringList{"--plugin-dir", folder.path()} << folder.path();
    QTest::newRow("unknown language") << QStringList{"--language", "xx"} << "xx";
    QTest::newRow("picture in no folder")
        << QStringList{"--screenshot", "/no/such/folder/p.png"} << "/no/such/folder/p.png";
}

void TestTerminalSimulator::badArgumentsEndWithOneLine()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, mentioned);
    const Outcome outcome = run(arguments);
    QVERIFY2(outcome.status == 1, qPrintable(outcome.errors));
    QCOMPARE(outcome.errors.count(QLatin1Char('\n')), 1);
    QVERIFY2(outcome.errors.startsWith(QLatin1String("terminal-simulator: ")), qPrintable(outcome.errors));
    QVERIFY2(outcome.errors.contains(mentioned), qPrintable(outcome.errors));
}

void TestTerminalSimulator::helpIsPrinted()
{
    const Outcome outcome = run({"--help"});
    QCOMPARE(outcome.status, 0);
    for (const char *option : {"--columns", "--products", "--units", "--language", "--plugin-dir", "--describe",
                               "--screenshot", "--script", "PRESCRIPTION"})
        QVERIFY2(outcome.output.contains(QLatin1String(option)), option);
}

void TestTerminalSimulator::likelyColumnsAreReportedOnceForAFileThatIsNamedTwice()
{
    const QString again = QStringLiteral("%1/../fixtures/three-zones.geojson").arg(QFileInfo(zones()).path());
    const Outcome once = run({"--describe", "0,0", zones()});
    QVERIFY2(once.status == 0, qPrintable(once.errors));
    for (const char *column : {"SEED_K_HA", "FERT_KG_HA", "HERB_L_HA"})
        QVERIFY2(once.output.contains(QLatin1String(column)), qPrintable(once.output));
    QVERIFY(!once.output.contains(QLatin1String("area_ha")));
    const Outcome twice = run({"--describe", "0,0", zones(), again});
    QCOMPARE(twice.status, 0);
    QCOMPARE(twice.output, once.output);
    QCOMPARE(twice.errors, QString());
}

void TestTerminalSimulator::aPointIsDescribed_data()
{
    QTest::addColumn<QString>("point");
    QTest::addColumn<QString>("units");
    QTest::addColumn<QString>("line");
    QTest::newRow("west") << "-100,0"
                          << "metric"
                          << "Rx Rate: 70.00";
    QTest::newRow("per acre") << "-100,0"
                              << "us"
                              << "Rx Rate: 28.33";
    QTest::newRow("per 1000 square feet") << "-100,0"
                                          << "turf"
                                          << "Rx Rate: 0.65";
    QTest::newRow("outside") << "-1000,0"
                             << "metric"
                             << "No rate is prescribed at -1000,0";
}

void TestTerminalSimulator::aPointIsDescribed()
{
    QFETCH(QString, point);
    QFETCH(QString, units);
    QFETCH(QString, line);
    const Outcome outcome =
        run({"--language", "en", "--describe", point, "--units", units, "--columns", "SEED_K_HA", zones()});
    QVERIFY2(outcome.status == 0, qPrintable(outcome.errors));
    QCOMPARE(outcome.output, line + QLatin1Char('\n'));
}

void TestTerminalSimulator::aPictureIsSaved()
{
    const QString path = folder.filePath(QStringLiteral("map.png"));
    const Outcome outcome = run({"--screenshot", path, zones()});
    QVERIFY2(outcome.status == 0, qPrintable(outcome.errors));
    QCOMPARE(QImage(path).size(), QSize(1280, 800));
}

void TestTerminalSimulator::aScriptsResultIsTheExitStatus()
{
    const Outcome good = run({"--script", write("print('one', 2); print(terminal.activeProduct);", "good.js")});
    QCOMPARE(good.status, 0);
    QCOMPARE(good.output, QStringLiteral("one 2\n1\n"));
    const Outcome bad = run({"--script", write("print('before');\nterminal.get('x', 'y');", "bad.js")});
    QCOMPARE(bad.status, 1);
    QCOMPARE(bad.output, QStringLiteral("before\n"));
    QVERIFY2(bad.errors.contains(QLatin1String("bad.js:2: Error: no group \"x\"")), qPrintable(bad.errors));
    QCOMPARE(bad.errors.count(QLatin1Char('\n')), 1);
    QVERIFY2(bad.errors.startsWith(QLatin1String("terminal-simulator: ")), qPrintable(bad.errors));
}

void TestTerminalSimulator::columnsAreTakenFromTheFilesThatHaveThem()
{
    const QString script = write("print(terminal.get('system.binGroup.1', 'rxMapGroupName'),"
                                 " terminal.get('system.binGroup.2', 'rxMapGroupName'));",
                                 "feeds.js");
    const Outcome outcome = run({"--columns", "RATE,FERT_KG_HA", "--script", script, zones(),
                                 TerminalHost::fixture(QStringLiteral("overlap.geojson"))});
    QVERIFY2(outcome.status == 0, qPrintable(outcome.errors));
    QCOMPARE(outcome.output, QStringLiteral("rxMap.overlap.geojson rxMap.three-zones.geojson\n"));
}

void TestTerminalSimulator::aFileThatIsToFeedNothingIsNotOpened()
{
    const QString script = write("print(terminal.groups('rxMap.*'), terminal.get('system.binGroup.1',"
                                 " 'rxMapGroupName'));",
                                 "opened.js");
    const QString other = TerminalHost::fixture(QStringLiteral("overlap.geojson"));
    const Outcome outcome = run({"--columns", "SEED_K_HA", "--script", script, zones(), other});
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.output, QStringLiteral("rxMap.three-zones.geojson rxMap.three-zones.geojson\n"));
    QCOMPARE(outcome.errors, other + QStringLiteral(": not opened, it feeds no product\n"));
}

void TestTerminalSimulator::theColumnsThatFeedInTheEndAreReported()
{
    const QString other = TerminalHost::fixture(QStringLiteral("overlap.geojson"));
    const Outcome outcome = run({"--describe", "-1000,0", zones(), other});
    QCOMPARE(outcome.status, 0);
    QVERIFY2(!outcome.output.contains(QLatin1String("product 1 (Seed): SEED_K_HA")), qPrintable(outcome.output));
    QVERIFY(outcome.output.contains(zones() + QStringLiteral(": product 2 (Fertiliser): FERT_KG_HA\n")));
    QVERIFY(outcome.output.contains(other + QStringLiteral(": product 1 (Seed): rate\n")));
}

void TestTerminalSimulator::whatALoadCountsIsTold_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::newRow("likely columns") << QStringList{};
    QTest::newRow("a column by name") << QStringList{"--columns", "Rate"};
    QTest::newRow("a column by name, two files")
        << QStringList{"--columns", "Rate,SEED_K_HA", TerminalHost::fixture("three-zones.geojson")};
}

void TestTerminalSimulator::whatALoadCountsIsTold()
{
    QFETCH(QStringList, options);
    const QString path = TerminalHost::fixture(QStringLiteral("text-rates.geojson"));
    const Outcome outcome = run(options + QStringList{"--describe", "0,0", path});
    QCOMPARE(outcome.status, 0);
    QStringList lines = outcome.errors.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    lines.sort();
    QCOMPARE(lines,
             QStringList({path + QStringLiteral(": 1 entry of column \"Rate\" is no rate and was left out"),
                          path + QStringLiteral(": 2 records without a rate were skipped")}));
}

void TestTerminalSimulator::aProductThatNoPrescriptionDrivesIsFedByNone()
{
    const QString products =
        write(R"([{"name": "Lime", "kind": "weight"}, {"name": "Water", "kind": "volume", "underVra": false}])",
              "water.json");
    const QString script =
        write("print(terminal.get('rxMap.three-zones.geojson', 'rateCalMappings').length)", "count.js");
    const Outcome some =
        run({"--products", products, "--columns", "FERT_KG_HA,HERB_L_HA", "--script", script, zones()});
    QVERIFY2(some.status == 0, qPrintable(some.errors));
    QCOMPARE(some.output, QStringLiteral("1\n"));
    const QString reason =
        zones() + QStringLiteral(": column \"HERB_L_HA\" is left out, product 2 (Water) takes no prescription\n");
    QCOMPARE(some.errors, reason);
    const Outcome none = run({"--products", products, "--columns", ",HERB_L_HA", "--script", script, zones()});
    QCOMPARE(none.status, 1);
    QCOMPARE(none.errors, QStringLiteral("terminal-simulator: ") + reason);
}

void TestTerminalSimulator::brokenPluginsAreReportedAndSkipped()
{
    QTemporaryDir plugins;
    QVERIFY(QFile::copy(buildPath("Plugins/uiPluginRxMap/libuiPluginRxMap.so"),
                        plugins.filePath(QStringLiteral("libuiPluginRxMap.so"))));
    QFile broken(plugins.filePath(QStringLiteral("libbroken.so")));
    QVERIFY(broken.open(QIODevice::WriteOnly));
    broken.write("text");
    broken.close();
    const Outcome outcome =
        run({"--plugin-dir", plugins.path(), "--columns", "SEED_K_HA", "--describe", "0,0", zones()});
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.output, QStringLiteral("Rx Rate: 80.00\n"));
    QCOMPARE(outcome.errors, QStringLiteral("libbroken.so: is no shared library\n"));
}

void TestTerminalSimulator::productsComeFromAFile()
{
    const QString products =
        write(R"([{"name": "Lime", "kind": "weight"}, {"name": "Water", "kind": "volume", "underVra": false},
                    {"name": "Urea", "kind": "weight"}])",
              "machine.json");
    const Outcome outcome = run({"--products", products, "--describe", "0,0", zones()});
    QVERIFY2(outcome.status == 0, qPrintable(outcome.errors));
    QVERIFY2(outcome.output.contains(QLatin1String("product 1 (Lime)")), qPrintable(outcome.output));
    QVERIFY(!outcome.output.contains(QLatin1String("Water")));
    QVERIFY(outcome.output.contains(QLatin1String("product 3 (Urea)")));
}

void TestTerminalSimulator::withoutADisplayItSaysSo_data()
{
    QTest::addColumn<QString>("display");
    QTest::addColumn<QString>("platform");
    QTest::newRow("none") << QString() << QString();
    QTest::newRow("empty") << QStringLiteral("") << QString();
    QTest::newRow("dead") << QStringLiteral(":4711") << QString();
    QTest::newRow("dead, platform named") << QStringLiteral(":4711") << QStringLiteral("xcb");
    QTest::newRow("none, platform named") << QString() << QStringLiteral("xcb");
    QTest::newRow("no such platform") << qEnvironmentVariable("DISPLAY") << QStringLiteral("nothing");
}

void TestTerminalSimulator::withoutADisplayItSaysSo()
{
    QFETCH(QString, display);
    QFETCH(QString, platform);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        environment.remove(QLatin1String(name));
    if (!display.isNull())
        environment.insert(QStringLiteral("DISPLAY"), display);
    if (!platform.isNull())
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), platform);
    const Outcome none = run({zones()}, environment);
    QCOMPARE(none.status, 1);
    QCOMPARE(none.errors,
             QStringLiteral("terminal-simulator: there is no display that can be opened; start it under xvfb-run\n"));
}

void TestTerminalSimulator::withoutOpenGlItSaysSo()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    // With a display at hand, that platform borrows its OpenGL.
    environment.remove(QStringLiteral("DISPLAY"));
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    // That platform leaves its own things behind.
    environment.insert(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("detect_leaks=0"));
    const Outcome flat = run({zones()}, environment);
    QCOMPARE(flat.status, 1);
    QCOMPARE(flat.errors, QStringLiteral("terminal-simulator: the display has no OpenGL\n"));
}

void TestTerminalSimulator::itSpeaksTheOperatorsLanguage()
{
    const Outcome german = run({"--language", "de", "--columns", "SEED_K_HA", "--describe", "0,0", zones()});
    QVERIFY2(german.status == 0, qPrintable(german.errors));
    QVERIFY2(german.output.endsWith(QLatin1String(" 80.00\n")), qPrintable(german.output));
    QVERIFY(german.output != QLatin1String("Rx Rate: 80.00\n"));
}

QTEST_GUILESS_MAIN(TestTerminalSimulator)
#include "tst_terminalsimulator.moc"
