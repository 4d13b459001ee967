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
    void aPointIsDescribedInTheOperatorsUnits();
    void aFilesControlBytesStayOffTheOutput();
    void aPictureIsSaved();
    void aScriptsResultIsTheExitStatus();
    void aScriptThatOutgrowsTheMemoryEndsWithALine();
    void brokenPluginsAreReportedAndSkipped();
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
    QVERIFY2(outcome.output.endsWith(QLatin1String("\nRx Rate: 28.33\n")), qPrintable(outcome.output));
    QCOMPARE(outcome.errors, QString());
}

void TestTerminalSimulator::aFilesControlBytesStayOffTheOutput()
{
    const QString path = folder.filePath(QStringLiteral("two\nlines\x1b[31m.geojson"));
    QVERIFY(QFile::copy(zones(), path));
    const Outcome outcome = run({"--describe", "-100,0", path});
    QVERIFY2(outcome.status == 0, qPrintable(outcome.errors));
    for (const QString &line : outcome.output.chopped(1).split(QLatin1Char('\n')))
        QVERIFY2(line.contains(QLatin1String("two?lines?[31m.geojson: product"))
                     || line.startsWith(QLatin1String("Rx Rate: ")),
                 qPrintable(line));
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
    // The sanitizer would end the program itself; as it is, it only remarks on it.
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
    QFile broken(plugins.filePath(QStringLiteral("libbroken.so")));
    QVERIFY(broken.open(QIODevice::WriteOnly));
    broken.write("text");
    broken.close();
    const Outcome outcome =
        run({"--plugin-dir", plugins.path(), "--columns", "SEED_K_HA", "--describe", "0,0", zones()});
    QCOMPARE(outcome.status, 0);
    QVERIFY2(outcome.output.endsWith(QLatin1String("\nRx Rate: 80.00\n")), qPrintable(outcome.output));
    QCOMPARE(outcome.errors, QStringLiteral("libbroken.so: is no shared library\n"));
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
    QVERIFY2(!german.output.contains(QLatin1String("Rx Rate")), qPrintable(german.output));
}

RXMAP_TEST(TestTerminalSimulator, Core)
#include "tst_terminalsimulator.moc"
