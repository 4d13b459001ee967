#include "files.h"
#include "paths.h"
#include "programtest.h"

#include <QFileInfo>
#include <QImage>

#include <sys/stat.h>

/// The program when started from a shell.
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
    void withoutADisplayItSaysSo_data();
    void withoutADisplayItSaysSo();
    void aDisplayThatGoesEndsItWithALine();
    void withoutOpenGlItSaysSo();
    void itSpeaksTheOperatorsLanguage();
    void itSpeaksTheDesktopsLanguageToAnOperatorOnly_data();
    void itSpeaksTheDesktopsLanguageToAnOperatorOnly();
    void aMissingImageIsNamed();
    void itRunsWithClosedStreams_data();
    void itRunsWithClosedStreams();
    void aFullDiskLeavesThePictureBefore();
    void outputIntoAFullDeviceIsAnError_data();
    void outputIntoAFullDeviceIsAnError();
    void tooFewOpenFilesAreNamed_data();
    void tooFewOpenFilesAreNamed();
    void aDriverWithoutShadersIsNamed_data();
    void aDriverWithoutShadersIsNamed();
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

void TestTerminalSimulator::aDisplayThatGoesEndsItWithALine()
{
    QProcess server;
    server.start(QStringLiteral("Xvfb"), {QStringLiteral("-displayfd"), QStringLiteral("1")});
    QVERIFY(server.waitForReadyRead(30000));
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DISPLAY"), QLatin1Char(':') + QString::fromLatin1(server.readLine().trimmed()));
    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(QStringLiteral(RXMAP_PROGRAM),
                  {QStringLiteral("--script"), write("print('shown'); terminal.wait(60000);", "wait.js"), zones()});
    QVERIFY(program.waitForReadyRead(60000));
    QTRY_VERIFY_WITH_TIMEOUT(program.peek(10000).contains("shown"), 60000);
    server.kill();
    QVERIFY(server.waitForFinished() && program.waitForFinished(30000));
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.exitCode(), 1);
    const QByteArray errors = program.readAllStandardError();
    QVERIFY2(errors.endsWith("terminal-simulator: the display's server is gone\n"), errors.constData());
}

void TestTerminalSimulator::withoutOpenGlItSaysSo()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    // If there is a display, that platform uses its OpenGL.
    environment.remove(QStringLiteral("DISPLAY"));
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    // That platform itself leaks.
    environment.insert(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("detect_leaks=0"));
    const Outcome flat = run({zones()}, environment);
    QCOMPARE(flat.status, 1);
    QCOMPARE(flat.errors, QStringLiteral("terminal-simulator: the display has no OpenGL\n"));
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

void TestTerminalSimulator::aMissingImageIsNamed()
{
    // The program finds everything relative to its own place.
    const QTemporaryDir build;
    const QDir root(build.path());
    QVERIFY(root.mkpath(QStringLiteral("Simulator/Terminal"))
            && root.mkpath(QStringLiteral("Simulator/Resources/images")));
    const QString program = root.filePath(QStringLiteral("Simulator/Terminal/terminal-simulator"));
    QVERIFY(QFile::copy(QStringLiteral(RXMAP_PROGRAM), program));
    for (const char *part : {"Plugins", "Simulator/Framework", "Simulator/bePluginRxMap"})
        QVERIFY(QFile::link(buildPath(part), root.filePath(QLatin1String(part))));
    const QStringList images = QDir(buildPath("Simulator/Resources/images")).entryList({QStringLiteral("*.png")});
    for (const QString &image : images)
        QVERIFY(QFile::copy(buildPath("Simulator/Resources/images/") + image,
                            root.filePath(QStringLiteral("Simulator/Resources/images/") + image)));
    const QStringList describe = {"--columns", "SEED_K_HA", "--describe", "0,0", zones()};
    const auto here = [&] { return run(program, describe, QProcessEnvironment::systemEnvironment()); };
    QCOMPARE(here().errors, QString());
    const QString popup = root.filePath(QStringLiteral("Simulator/Resources/images/RxOptionsPopup.png"));
    QVERIFY(QFile::remove(popup));
    QCOMPARE(here().errors, QStringLiteral("terminal-simulator: %1: this image is missing\n").arg(popup));
    QCOMPARE(here().status, 1);
}

void TestTerminalSimulator::itRunsWithClosedStreams_data()
{
    QTest::addColumn<QString>("closed");
    QTest::newRow("input") << "<&-";
    QTest::newRow("output") << ">&-";
    QTest::newRow("errors") << "2>&-";
    QTest::newRow("all") << "<&- >&- 2>&-";
}

void TestTerminalSimulator::itRunsWithClosedStreams()
{
    QFETCH(QString, closed);
    const QString path = folder.filePath(QStringLiteral("closed.png"));
    QFile::remove(path);
    const Outcome outcome =
        runInShell(QStringLiteral("exec timeout 60 \"$@\" ") + closed, {"--screenshot", path, zones()});
    QVERIFY2(outcome.status == 0, qPrintable(outcome.errors));
    QCOMPARE(QImage(path).size(), QSize(1280, 800));
}

void TestTerminalSimulator::aFullDiskLeavesThePictureBefore()
{
    const QTemporaryDir pictures;
    const QString path = folder.filePath(QStringLiteral("before.png"));
    QVERIFY(QImage(3, 2, QImage::Format_RGB32).save(path));
    const QString target = QDir(pictures.path()).filePath(QStringLiteral("map.png"));
    for (const bool wasThere : {false, true}) {
        QCOMPARE(wasThere, wasThere && QFile::copy(path, target));
        const Outcome outcome = runInShell(QStringLiteral("ulimit -f 16; exec \"$@\""),
                                           {"--screenshot", target, "--columns", "SEED_K_HA", zones()});
        QCOMPARE(outcome.status, 1);
        QCOMPARE(outcome.errors, QStringLiteral("terminal-simulator: %1: File too large\n").arg(target));
        QCOMPARE(QDir(pictures.path()).entryList(QDir::Files | QDir::Hidden).size(), wasThere ? 1 : 0);
    }
    QCOMPARE(QImage(target).size(), QSize(3, 2));
}

void TestTerminalSimulator::outputIntoAFullDeviceIsAnError_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("redirection");
    QTest::addColumn<QString>("subject");
    QTest::newRow("a point") << QStringList{"--columns", "SEED_K_HA", "--describe", "0,0", zones()} << ">/dev/full"
                             << "standard output";
    QTest::newRow("what a script prints") << QStringList{"--script", write("print('a');", "print.js")} << ">/dev/full"
                                          << "standard output";
    QTest::newRow("help") << QStringList{"--help"} << ">/dev/full"
                          << "standard output";
    QTest::newRow("a point into a closed stream")
        << QStringList{"--columns", "SEED_K_HA", "--describe", "0,0", zones()} << ">&-"
        << "standard output";
    QTest::newRow("help into a closed stream") << QStringList{"--help"} << ">&-"
                                               << "standard output";
    const QString pipe = folder.filePath(QStringLiteral("pipe"));
    mkfifo(QFile::encodeName(pipe).constData(), 0600);
    QTest::newRow("a picture into a pipe that nobody reads")
        << QStringList{"--screenshot", pipe, zones()} << "" << pipe + ": is a pipe that nobody reads";
    QTest::newRow("a picture") << QStringList{"--screenshot", "/dev/full", zones()} << ""
                               << "/dev/full: ";
}

void TestTerminalSimulator::outputIntoAFullDeviceIsAnError()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, redirection);
    QFETCH(QString, subject);
    const Outcome outcome = runInShell(QStringLiteral("exec \"$@\" ") + redirection, arguments);
    QCOMPARE(outcome.status, 1);
    QVERIFY2(outcome.errors.startsWith(QLatin1String("terminal-simulator: ") + subject), qPrintable(outcome.errors));
    QCOMPARE(outcome.errors.count(QLatin1Char('\n')), 1);
    QVERIFY(!QFileInfo(QStringLiteral("/dev/full")).isFile());
    QVERIFY(!QFileInfo(folder.filePath(QStringLiteral("pipe"))).isFile());
}

void TestTerminalSimulator::tooFewOpenFilesAreNamed_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("check") << QStringList{"--check", zones()};
    QTest::newRow("a point") << QStringList{"--describe", "0,0", zones()};
    QTest::newRow("a script") << QStringList{"--script", write("print('a');", "print.js")};
}

void TestTerminalSimulator::tooFewOpenFilesAreNamed()
{
    QFETCH(QStringList, arguments);
    for (const int files : {8, 12, 31, 32}) {
        const Outcome outcome = runInShell(QStringLiteral("ulimit -n %1; exec \"$@\"").arg(files), arguments);
        QVERIFY2(outcome.status == (files < 32 ? 1 : 0), qPrintable(outcome.errors));
        QCOMPARE(outcome.errors,
                 files < 32 ? QStringLiteral("terminal-simulator: fewer than 32 files may be open at once (ulimit -n), "
                                             "which are needed\n")
                            : QString());
        QCOMPARE(outcome.output.isEmpty(), files < 32);
    }
}

void TestTerminalSimulator::aDriverWithoutShadersIsNamed_data()
{
    QTest::addColumn<QString>("without");
    QTest::addColumn<QString>("lack");
    QTest::newRow("vertex shaders") << "-GL_ARB_vertex_shader"
                                    << "shaders";
    QTest::newRow("fragment shaders") << "-GL_ARB_fragment_shader"
                                      << "shaders";
    QTest::newRow("framebuffer objects") << "-GL_ARB_framebuffer_object -GL_EXT_framebuffer_object"
                                         << "framebuffer objects";
}

void TestTerminalSimulator::aDriverWithoutShadersIsNamed()
{
    QFETCH(QString, without);
    QFETCH(QString, lack);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("MESA_EXTENSION_OVERRIDE"), without);
    const QString path = folder.filePath(QStringLiteral("poor.png"));
    QFile::remove(path);
    const Outcome outcome = run({"--screenshot", path, zones()}, environment);
    QCOMPARE(outcome.status, 1);
    QVERIFY2(outcome.errors.startsWith(QLatin1String("terminal-simulator: the display's OpenGL")),
             qPrintable(outcome.errors));
    QVERIFY2(outcome.errors.contains(lack), qPrintable(outcome.errors));
    QCOMPARE(outcome.errors.count(QLatin1Char('\n')), 1);
    QVERIFY(!QFile::exists(path));
}

RXMAP_TEST(TestTerminalSimulator, Core)
#include "tst_terminalsimulator.moc"
