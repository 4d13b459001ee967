#include "paths.h"
#include "terminalhost.h"
#include "testbase.h"

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
    void likelyColumnsAreReported();
    void aPointIsDescribed_data();
    void aPointIsDescribed();
    void aPictureIsSaved();
    void aScriptsResultIsTheExitStatus();
    void columnsAreTakenFromTheFilesThatHaveThem();
    void brokenPluginsAreReportedAndSkipped();
    void productsComeFromAFile();
    void withoutADisplayItSaysSo();
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
    QTest::newRow("bad script") << QStringList{"--script", write("throw new Error('no');", "bad.js")} << "bad.js:1";
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

void TestTerminalSimulator::likelyColumnsAreReported()
{
    const Outcome outcome = run({"--describe", "0,0", zones()});
    QVERIFY2(outcome.status == 0, qPrintable(outcome.errors));
    for (const char *column : {"SEED_K_HA", "FERT_KG_HA", "HERB_L_HA"})
        QVERIFY2(outcome.output.contains(QLatin1String(column)), qPrintable(outcome.output));
    QVERIFY(!outcome.output.contains(QLatin1String("area_ha")));
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
    const Outcome outcome = run({"--describe", point, "--units", units, "--columns", "SEED_K_HA", zones()});
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

void TestTerminalSimulator::withoutADisplayItSaysSo()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        environment.remove(QLatin1String(name));
    const Outcome none = run({zones()}, environment);
    QCOMPARE(none.status, 1);
    QCOMPARE(none.errors.count(QLatin1Char('\n')), 1);
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    // That platform leaves its own things behind.
    environment.insert(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("detect_leaks=0"));
    const Outcome flat = run({zones()}, environment);
    QCOMPARE(flat.status, 1);
    QCOMPARE(flat.errors, QStringLiteral("terminal-simulator: the display has no OpenGL\n"));
}

void TestTerminalSimulator::itSpeaksTheOperatorsLanguage()
{
    const Outcome english = run({"--language", "en", "--columns", "SEED_K_HA", "--describe", "0,0", zones()});
    QCOMPARE(english.output, QStringLiteral("Rx Rate: 80.00\n"));
    const Outcome german = run({"--language", "de", "--columns", "SEED_K_HA", "--describe", "0,0", zones()});
    QVERIFY2(german.status == 0, qPrintable(german.errors));
    QVERIFY2(german.output.endsWith(QLatin1String(" 80.00\n")), qPrintable(german.output));
    QVERIFY(german.output != english.output);
}

QTEST_GUILESS_MAIN(TestTerminalSimulator)
#include "tst_terminalsimulator.moc"
