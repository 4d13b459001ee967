#include "commandline.h"
#include "consoleline.h"
#include "displayprobe.h"
#include "mapcheckrun.h"
#include "openglcheck.h"
#include "ownlooks.h"
#include "terminalrun.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QProcessEnvironment>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <fcntl.h>
#include <memory>
#include <new>
#include <unistd.h>

namespace {

int complain(const QString &reason)
{
    writeErrorLine(QStringLiteral("terminal-simulator: ") + reason);
    return 1;
}

/// Qt's own code cannot be unwound when a script's text or list outgrows the memory; that must be a plain error, too.
/// Nor can it when a plug-in throws: that is the plug-in's fault, and said before the end.
[[noreturn]] void endByException()
{
    try {
        if (const std::exception_ptr thrown = std::current_exception())
            std::rethrow_exception(thrown);
    } catch (const std::bad_alloc &) {
        std::fputs("terminal-simulator: there is not enough memory\n", stderr);
        _exit(1);
    } catch (const std::exception &thrown) {
        std::fprintf(stderr, "terminal-simulator: an exception that nobody caught, maybe a plug-in's: %s\n",
                     thrown.what());
    } catch (...) {
    }
    std::abort();
}

/// Without a login there is no run-time folder, and Qt remarks on it; errors are to stand alone.
void provideRuntimeFolder()
{
    if (!qEnvironmentVariableIsSet("XDG_RUNTIME_DIR"))
        qputenv("XDG_RUNTIME_DIR",
                QFile::encodeName(QDir::temp().filePath(QStringLiteral("runtime-%1").arg(getuid()))));
}

/// Where the shell closed a standard stream, the display's socket would take its place, and what is printed would go to
/// the display. Returns whether standard output was closed.
bool reserveStandardStreams()
{
    bool isOutputClosed = false;
    int opened = 0;
    do {
        opened = open("/dev/null", O_RDWR);
        isOutputClosed = isOutputClosed || opened == STDOUT_FILENO;
    } while (opened >= 0 && opened <= STDERR_FILENO);
    if (opened >= 0)
        close(opened);
    return isOutputClosed;
}

/// What is printed then is an error, as on a full device.
void refuseOutput()
{
    const int full = open("/dev/full", O_WRONLY);
    dup2(full, STDOUT_FILENO);
    close(full);
}

/// What somebody has set for other programs that read maps, in the environment or in a file for all of them, must not
/// change how this one reads them.
void dropSettingsOfOtherPrograms()
{
    const QStringList names = QProcessEnvironment::systemEnvironment().keys();
    for (const QString &name : names) {
        for (const char *prefix : {"CPL_", "GDAL_", "GML_", "KML_", "LIBKML_", "OGR_", "OSR_", "SHAPE_"}) {
            // Where the library has its own tables is the installation's to say.
            if (name.startsWith(QLatin1String(prefix)) && name != QLatin1String("GDAL_DATA"))
                qunsetenv(name.toLocal8Bit().constData());
        }
    }
    qputenv("GDAL_CONFIG_FILE", "/dev/null");
}

/// Nobody may take for complete what could not be printed.
int end(const QString &error)
{
    const QString problem = error.isEmpty() ? outputProblem() : error;
    return problem.isEmpty() ? 0 : complain(problem);
}

} // namespace

int main(int argc, char *argv[])
{
    const bool isOutputClosed = reserveStandardStreams();
    // A limit of a file's size is told like a full disk.
    std::signal(SIGXFSZ, SIG_IGN);
    dropSettingsOfOtherPrograms();
    std::set_terminate(endByException);
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    Result<CommandLine> line = CommandLine::parse(arguments);
    if (!line.isOk())
        return complain(line.error);
    if (isOutputClosed && line.value.printsAnswer())
        refuseOutput();
    if (line.value.wantsHelp) {
        const QCoreApplication named(argc, argv);
        std::fputs(CommandLine::helpText().toLocal8Bit().constData(), stdout);
        return end({});
    }
    if (line.value.check) {
        const QCoreApplication application(argc, argv);
        const int status = runMapCheck(line.value);
        const QString problem = outputProblem();
        return problem.isEmpty() ? status : complain(problem);
    }
    provideRuntimeFolder();
    const bool isShown = line.value.drive.isEmpty();
    std::unique_ptr<DisplayProbe> probe;
    if (isShown)
        probe.reset(new DisplayProbe(argv[0]));
    else
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (probe && !probe->canOpen())
        return complain(QStringLiteral("there is no display that can be opened; start it under xvfb-run"));

    int kept = 1; // The options are the program's own, Qt is to take none of them.
    const double scale = OwnLooks::fixResolution();
    OpenGlCheck::chooseKind();
    QApplication application(kept, argv);
    probe.reset();
    // What a task prints and pictures is the same on every desktop.
    if (!line.value.theme && line.value.isInteractive())
        line.value.theme = Theme::suiting(QGuiApplication::palette());
    OwnLooks::apply();
    const QString lack = isShown ? OpenGlCheck::problem() : QString();
    return end(lack.isEmpty() ? runTerminal(line.value, scale) : lack);
}
