#include "files.h"
#include "paths.h"
#include "programtest.h"

#include <QImage>

/// The program when started from a shell: arguments, settings, scripts, plug-ins and languages.
class TestTerminalSimulator : public ProgramTest {
    Q_OBJECT

private Q_SLOTS:
    void badArgumentsEndWithOneLine_data();
    void badArgumentsEndWithOneLine();
    void helpIsPrinted();
    void aPointIsDescribedInTheOperatorsUnits();
    void aFilesControlBytesStayOffTheOutput();
    void settingsForOtherProgramsChangeNothing_data();
    void settingsForOtherProgramsChangeNothing();
    void damagedSettingsAreToldAndPutAside();
    void aPictureIsSaved();
    void aScriptsResultIsTheExitStatus();
    void aScriptThatOutgrowsTheMemoryEndsWithALine();
    void brokenPluginsAreReportedAndSkipped();
    void textsOfSeveralPluginsStandApart();
    void itSpeaksTheOperatorsLanguage();
    void itSpeaksTheDesktopsLanguageToAnOperatorOnly_data();
    void itSpeaksTheDesktopsLanguageToAnOperatorOnly();
};

void TestTerminalSimulator::badArgumentsEndWithOneLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("mentioned");
    QTest::newRow("unknown option") << QStringList{"--colour"} << "colour";
    QTest::newRow("unknown units") << QStringList{"--units", "metres"} << "metres";
    QTest::newRow("missing prescription") << QStringList{"/no/such.shp"} << "/no/such.shp";
    QTest::newRow("control bytes in a file")
        << QStringList{write("{\"type\": \"FeatureCollection\", \"features\": [\x1b[31m]}", "red.geojson")} << "(?)";
    QTest::newRow("control bytes in a name") << QStringList{"/no/such\x1b[31m\n.shp"} << "/no/such?[31m?.shp";
    QTest::newRow("bad products") << QStringList{"--products", write("[]", "empty.json")} << "empty.json";
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
    QVERIFY(!outcome.errors.contains(QLatin1Char('\x1b')) && !outcome.errors.contains(QLatin1Char('\a')));
}

void TestTerminalSimulator::helpIsPrinted()
{
    const Outcome outcome = run({"--help"});
    QCOMPARE(outcome.status, 0);
    for (const char *option : {"--columns", "--source-units", "--products", "--units", "--language", "--plugin-dir",
                               "--describe", "--screenshot", "--script", "PRESCRIPTION"})
        QVERIFY2(outcome.output.contains(QLatin1String(option)), option);
}

void TestTerminalSimulator::aPointIsDescribedInTheOperatorsUnits()
{
    const Outcome outcome = run({"--describe", "-100,0", "--units", "us", "--columns", "SEED_K_HA", zones()});
    QVERIFY2(outcome.status == 0, qPrintable(outcome.errors));
    QVERIFY2(
        outcome.output.contains(QLatin1String("\nproduct 1 (Seed): Rx Rate: 28.33 (SEED_K_HA, k/ha), shown in k/ac\n")),
        qPrintable(outcome.output));
    QCOMPARE(outcome.errors, QString());
}

void TestTerminalSimulator::aFilesControlBytesStayOffTheOutput()
{
    const QString path = folder.filePath(QStringLiteral("two\nlines\x1b[31m\u202e.geojson"));
    QVERIFY(QFile::copy(zones(), path));
    const Outcome outcome = run({"--describe", "-100,0", path});
    QVERIFY2(outcome.status == 0, qPrintable(outcome.errors));
    for (const QString &line : outcome.output.chopped(1).split(QLatin1Char('\n')))
        QVERIFY2(line.contains(QLatin1String("two?lines?[31m?.geojson: product"))
                     || line.contains(QLatin1String("): Rx Rate: ")),
                 qPrintable(line));
}

void TestTerminalSimulator::settingsForOtherProgramsChangeNothing_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("value");
    const QByteArray setting = "OGR_GEOJSON_MAX_OBJ_SIZE=0.00001\n";
    QTest::newRow("in the environment") << "OGR_GEOJSON_MAX_OBJ_SIZE"
                                        << "0.00001";
    QTest::newRow("in a file") << "GDAL_CONFIG_FILE" << write("[configoptions]\n" + setting, "readers.rc");
    QDir(folder.path()).mkpath(QStringLiteral("home/.gdal"));
    write("[configoptions]\n" + setting, "home/.gdal/gdalrc");
    QTest::newRow("in the home folder") << "HOME" << folder.filePath(QStringLiteral("home"));
}

void TestTerminalSimulator::settingsForOtherProgramsChangeNothing()
{
    QFETCH(QString, name);
    QFETCH(QString, value);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(name, value);
    const Outcome outcome = run({"--describe", "-100,0", zones()}, environment);
    QVERIFY2(outcome.status == 0, qPrintable(outcome.errors));
}

void TestTerminalSimulator::damagedSettingsAreToldAndPutAside()
{
    QDir(folder.path()).mkpath(QStringLiteral("kept/rxmap"));
    const QString path =
        write("[General]\nchoices=@Variant(\\0\\0\\0\\t\\x7f\\xff\\xff\\xff)\n", "kept/rxmap/terminal-simulator.ini");
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), folder.filePath(QStringLiteral("kept")));
    const QString script = write("terminal.find('openButton').touch();", "folder.js");
    const Outcome outcome = run({"--script", script}, environment);
    QVERIFY2(outcome.status == 0, qPrintable(outcome.errors));
    QCOMPARE(outcome.errors,
             QStringLiteral("%1: is damaged; what the terminal remembers is not used, the file is now %1.damaged\n")
                 .arg(path));
    QVERIFY(QFile::exists(path + QStringLiteral(".damaged")));
    QCOMPARE(run({"--script", script}, environment).errors, QString());
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

void TestTerminalSimulator::aScriptThatOutgrowsTheMemoryEndsWithALine()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    // By default the sanitizer would end the program itself; with this it only prints a warning.
    environment.insert(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("allocator_may_return_null=1"));
    const Outcome outcome = run({"--script", write("'x'.repeat(0x7fffffff);", "huge.js")}, environment);
    QCOMPARE(outcome.status, 1);
    QVERIFY2(outcome.errors.endsWith(QLatin1String("terminal-simulator: there is not enough memory\n")),
             qPrintable(outcome.errors));
}

void TestTerminalSimulator::brokenPluginsAreReportedAndSkipped()
{
    QTemporaryDir plugins;
    QVERIFY(QFile::copy(buildPath("Plugins/uiPluginRxMap/libuiPluginRxMap.so"),
                        plugins.filePath(QStringLiteral("libuiPluginRxMap.so"))));
    writeFile(plugins.filePath(QStringLiteral("libbroken.so")), "text");
    const Outcome outcome =
        run({"--plugin-dir", plugins.path(), "--columns", "SEED_K_HA", "--describe", "0,0", zones()});
    QCOMPARE(outcome.status, 0);
    QVERIFY2(outcome.output.contains(QLatin1String(": Rx Rate: 80.00 (SEED_K_HA, k/ha)\n")),
             qPrintable(outcome.output));
    QCOMPARE(outcome.errors, QStringLiteral("libbroken.so: is no shared library\n"));
}

void TestTerminalSimulator::textsOfSeveralPluginsStandApart()
{
    const QTemporaryDir plugins;
    const QDir target(plugins.path());
    const QString map = buildPath("Plugins/uiPluginRxMap/libuiPluginRxMap.so");
    QVERIFY(QFile::link(map, target.filePath(QStringLiteral("map.so"))));
    QVERIFY(QFile::link(QStringLiteral(RXMAP_PLACE_PLUGIN), target.filePath(QStringLiteral("place.so"))));
    const Outcome outcome =
        run({"--plugin-dir", plugins.path(), "--columns", "SEED_K_HA", "--describe", "-100,0", zones()});
    QVERIFY2(outcome.status == 0, qPrintable(outcome.errors));
    QVERIFY2(outcome.output.contains(QLatin1String("Rx Rate: 70.00; -100 m east, 0 m north (SEED_K_HA")),
             qPrintable(outcome.output));
}

void TestTerminalSimulator::itSpeaksTheOperatorsLanguage()
{
    const Outcome german = run({"--language", "de", "--columns", "SEED_K_HA", "--describe", "0,0", zones()});
    QVERIFY2(german.status == 0, qPrintable(german.errors));
    QVERIFY2(german.output.contains(QLatin1String(" 80.00 (SEED_K_HA, k/ha)\n")), qPrintable(german.output));
    QVERIFY2(!german.output.contains(QLatin1String("Rx Rate")), qPrintable(german.output));
}

void TestTerminalSimulator::itSpeaksTheDesktopsLanguageToAnOperatorOnly_data()
{
    QTest::addColumn<QString>("languages");
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("reason");
    const QString german = QStringLiteral("diese Datei gibt es nicht");
    const QString english = QStringLiteral("there is no such file");
    QTest::newRow("operator") << "de_DE:en" << QStringList() << german;
    QTest::newRow("operator with a language") << "de_DE:en" << QStringList{"--language", "en"} << english;
    QTest::newRow("operator of an English desktop") << "en_US" << QStringList() << english;
    QTest::newRow("task") << "de_DE:en" << QStringList{"--describe", "0,0"} << english;
    QTest::newRow("picture") << "de_DE:en" << QStringList{"--screenshot", "never.png"} << english;
}

void TestTerminalSimulator::itSpeaksTheDesktopsLanguageToAnOperatorOnly()
{
    QFETCH(QString, languages);
    QFETCH(QStringList, arguments);
    QFETCH(QString, reason);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LANGUAGE"), languages);
    // An unreadable file ends the program before it needs anybody.
    const Outcome outcome = run(arguments + QStringList{QStringLiteral("no-such.shp")}, environment);
    QCOMPARE(outcome.status, 1);
    QVERIFY2(outcome.errors.contains(reason), qPrintable(outcome.errors));
}

RXMAP_TEST(TestTerminalSimulator, Core)
#include "tst_terminalsimulator.moc"
