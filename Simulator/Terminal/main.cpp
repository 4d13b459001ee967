#include "commandline.h"
#include "terminalrun.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QOpenGLContext>

#include <cstdio>
#include <unistd.h>

namespace {

int complain(const QString &reason)
{
    std::fprintf(stderr, "terminal-simulator: %s\n", reason.toLocal8Bit().constData());
    return 1;
}

/// Qt aborts where it finds no display; that must be a plain error.
bool hasDisplay()
{
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY")
        || qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
}

/// Without a login there is no run-time folder, and Qt remarks on it; errors are to stand alone.
void provideRuntimeFolder()
{
    if (!qEnvironmentVariableIsSet("XDG_RUNTIME_DIR"))
        qputenv("XDG_RUNTIME_DIR",
                QFile::encodeName(QDir::temp().filePath(QStringLiteral("runtime-%1").arg(getuid()))));
}

} // namespace

int main(int argc, char *argv[])
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    const Result<CommandLine> line = CommandLine::parse(arguments);
    if (!line.isOk())
        return complain(line.error);
    if (line.value.wantsHelp) {
        const QCoreApplication named(argc, argv);
        std::fputs(CommandLine::helpText().toLocal8Bit().constData(), stdout);
        return 0;
    }
    if (!hasDisplay())
        return complain(QStringLiteral("there is no display; start it under xvfb-run"));

    provideRuntimeFolder();
    int kept = 1; // The options are the program's own, Qt is to take none of them.
    QApplication application(kept, argv);
    if (!QOpenGLContext().create())
        return complain(QStringLiteral("the display has no OpenGL"));
    const QString error = runTerminal(line.value);
    return error.isEmpty() ? 0 : complain(error);
}
