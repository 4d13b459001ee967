#include "paths.h"
#include "programtest.h"

#include <QFileInfo>
#include <QImage>

#include <sys/stat.h>

/// The program where its surroundings fail it: displays, drivers, images, streams, disks and limits.
class TestTerminalSimulatorSurroundings : public ProgramTest {
    Q_OBJECT

private Q_SLOTS:
    void withoutADisplayItSaysSo_data();
    void withoutADisplayItSaysSo();
    void aDisplayThatGoesEndsItWithALine();
    void withoutOpenGlItSaysSo();
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

void TestTerminalSimulatorSurroundings::withoutADisplayItSaysSo_data()
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

void TestTerminalSimulatorSurroundings::withoutADisplayItSaysSo()
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

void TestTerminalSimulatorSurroundings::aDisplayThatGoesEndsItWithALine()
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

void TestTerminalSimulatorSurroundings::withoutOpenGlItSaysSo()
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

void TestTerminalSimulatorSurroundings::aMissingImageIsNamed()
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

void TestTerminalSimulatorSurroundings::itRunsWithClosedStreams_data()
{
    QTest::addColumn<QString>("closed");
    QTest::newRow("input") << "<&-";
    QTest::newRow("output") << ">&-";
    QTest::newRow("errors") << "2>&-";
    QTest::newRow("all") << "<&- >&- 2>&-";
}

void TestTerminalSimulatorSurroundings::itRunsWithClosedStreams()
{
    QFETCH(QString, closed);
    const QString path = folder.filePath(QStringLiteral("closed.png"));
    QFile::remove(path);
    const Outcome outcome =
        runInShell(QStringLiteral("exec timeout 60 \"$@\" ") + closed, {"--screenshot", path, zones()});
    QVERIFY2(outcome.status == 0, qPrintable(outcome.errors));
    QCOMPARE(QImage(path).size(), QSize(1280, 800));
}

void TestTerminalSimulatorSurroundings::aFullDiskLeavesThePictureBefore()
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

void TestTerminalSimulatorSurroundings::outputIntoAFullDeviceIsAnError_data()
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

void TestTerminalSimulatorSurroundings::outputIntoAFullDeviceIsAnError()
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

void TestTerminalSimulatorSurroundings::tooFewOpenFilesAreNamed_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("check") << QStringList{"--check", zones()};
    QTest::newRow("a point") << QStringList{"--describe", "0,0", zones()};
    QTest::newRow("a script") << QStringList{"--script", write("print('a');", "print.js")};
}

void TestTerminalSimulatorSurroundings::tooFewOpenFilesAreNamed()
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

void TestTerminalSimulatorSurroundings::aDriverWithoutShadersIsNamed_data()
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

void TestTerminalSimulatorSurroundings::aDriverWithoutShadersIsNamed()
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

RXMAP_TEST(TestTerminalSimulatorSurroundings, Core)
#include "tst_terminalsimulator_surroundings.moc"
