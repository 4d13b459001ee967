#include "paths.h"
#include "testbase.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QScopeGuard>
#include <QTemporaryDir>

#include <csignal>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

/// The shell functions that give a program a display.
class TestWithDisplay : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void aDisplayMustAnswer_data();
    void aDisplayMustAnswer();
    void aWaylandDisplayAloneIsNone();
    void anOperatorIsNeededUnlessTheArgumentsSayWhatToDo_data();
    void anOperatorIsNeededUnlessTheArgumentsSayWhatToDo();
    void theCommandsStatusIsTheFunctions();
    void aSignalTakesTheVirtualDisplayAlong_data();
    void aSignalTakesTheVirtualDisplayAlong();

private:
    static void start(QProcess &shell, const QString &command)
    {
        shell.start(
            QStringLiteral("bash"),
            {QStringLiteral("-c"),
             QStringLiteral("set -euo pipefail; source '%1'; %2").arg(sourcePath("scripts/with-display.sh"), command)});
    }
    static int statusOf(const QString &command, const QProcessEnvironment &environment);
};

int TestWithDisplay::statusOf(const QString &command, const QProcessEnvironment &environment)
{
    QProcess shell;
    shell.setProcessEnvironment(environment);
    start(shell, command);
    return shell.waitForFinished() && shell.exitStatus() == QProcess::NormalExit ? shell.exitCode() : -1;
}

void TestWithDisplay::aDisplayMustAnswer_data()
{
    QTest::addColumn<QString>("display");
    QTest::addColumn<int>("status");
    QTest::newRow("this one") << qEnvironmentVariable("DISPLAY") << 0;
    QTest::newRow("none") << QString() << 1;
    QTest::newRow("empty") << QStringLiteral("") << 1;
    QTest::newRow("dead") << QStringLiteral(":4711") << 1;
}

void TestWithDisplay::aDisplayMustAnswer()
{
    QFETCH(QString, display);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    if (display.isNull())
        environment.remove(QStringLiteral("DISPLAY"));
    else
        environment.insert(QStringLiteral("DISPLAY"), display);
    QTEST(statusOf(QStringLiteral("has_display"), environment), "status");
}

void TestWithDisplay::aWaylandDisplayAloneIsNone()
{
    const QTemporaryDir folder;
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    qstrncpy(address.sun_path, qPrintable(folder.filePath(QStringLiteral("wayland-0"))), sizeof(address.sun_path));
    const int compositor = socket(AF_UNIX, SOCK_STREAM, 0);
    const auto closeSocket = qScopeGuard([compositor] { close(compositor); });
    QCOMPARE(bind(compositor, reinterpret_cast<const sockaddr *>(&address), sizeof(address)), 0);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("DISPLAY"));
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), folder.path());
    environment.insert(QStringLiteral("WAYLAND_DISPLAY"), QStringLiteral("wayland-0"));
    QCOMPARE(statusOf(QStringLiteral("has_display"), environment), 1);
}

void TestWithDisplay::anOperatorIsNeededUnlessTheArgumentsSayWhatToDo_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<int>("status");
    QTest::newRow("file") << "field.shp" << 0;
    QTest::newRow("units and file") << "--units us field.shp" << 0;
    QTest::newRow("describe") << "--describe 1,2 field.shp" << 1;
    QTest::newRow("place") << "--at 9,48 field.shp" << 1;
    QTest::newRow("check") << "--check field.shp" << 1;
    QTest::newRow("drive") << "field.shp --drive=a.json" << 1;
    QTest::newRow("picture") << "field.shp --screenshot=a.png" << 1;
    QTest::newRow("script") << "--script a.js" << 1;
    QTest::newRow("help") << "--help" << 1;
}

void TestWithDisplay::anOperatorIsNeededUnlessTheArgumentsSayWhatToDo()
{
    QFETCH(QString, arguments);
    QTEST(statusOf(QStringLiteral("needs_operator ") + arguments, QProcessEnvironment::systemEnvironment()), "status");
}

void TestWithDisplay::theCommandsStatusIsTheFunctions()
{
    const QString command =
        QStringLiteral("with_virtual_display bash -c 'read -r word; [[ -n $DISPLAY && $word == in ]];"
                       " exit 7' <<< in");
    QCOMPARE(statusOf(command, QProcessEnvironment::systemEnvironment()), 7);
}

void TestWithDisplay::aSignalTakesTheVirtualDisplayAlong_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("terminate") << SIGTERM;
    QTest::newRow("interrupt") << SIGINT;
}

void TestWithDisplay::aSignalTakesTheVirtualDisplayAlong()
{
    QFETCH(int, signal);
    QTemporaryDir folder;
    QProcess shell;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("TMPDIR"), folder.path());
    shell.setProcessEnvironment(environment);
    start(shell, QStringLiteral("with_virtual_display bash -c 'echo $DISPLAY; exec sleep 100'"));
    QTRY_VERIFY_WITH_TIMEOUT(shell.bytesAvailable() > 0, 20000);
    const QString display = QString::fromUtf8(shell.readAllStandardOutput()).trimmed().mid(1);
    const QString socket = QStringLiteral("/tmp/.X11-unix/X") + display;
    QVERIFY(QFile::exists(socket));
    QVERIFY(!QDir(folder.path()).isEmpty());
    kill(pid_t(shell.processId()), signal);
    QVERIFY(shell.waitForFinished(20000));
    QVERIFY(!QFile::exists(socket));
    QVERIFY(QDir(folder.path()).isEmpty());
}

RXMAP_TEST(TestWithDisplay, Core)
#include "tst_withdisplay.moc"
