#include "commandline.h"
#include "consoleline.h"
#include "displayprobe.h"
#include "installation.h"
#include "languages.h"
#include "mapcheckrun.h"
#include "openglcheck.h"
#include "ownlooks.h"
#include "process.h"
#include "terminalrun.h"

#include <QApplication>

#include <cstdio>
#include <memory>

namespace {

int complain(const QString &reason)
{
    writeErrorLine(QStringLiteral("terminal-simulator: ") + reason);
    return 1;
}

/// Output that could not be printed in full must not pass for complete.
int end(const QString &error)
{
    const QString problem = error.isEmpty() ? outputProblem() : error;
    return problem.isEmpty() ? 0 : complain(problem);
}

int check(int &argc, char **argv, const CommandLine &line)
{
    const QCoreApplication application(argc, argv);
    // A map check speaks English, but an unknown language is still a mistake.
    const QString error =
        line.language.isEmpty() ? QString() : Languages::problem(line.language, Installation::plugins(line.pluginDir));
    if (!error.isEmpty())
        return complain(error);
    const int status = runMapCheck(line);
    const QString problem = outputProblem();
    return problem.isEmpty() ? status : complain(problem);
}

} // namespace

int main(int argc, char *argv[])
{
    Process::prepare();
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    Result<CommandLine> line = CommandLine::parse(arguments);
    if (!line.isOk())
        return complain(line.error);
    const QString lackOfFiles = Process::openFilesProblem();
    if (!lackOfFiles.isEmpty())
        return complain(lackOfFiles);
    if (line.value.printsAnswer())
        Process::refuseLostOutput();
    if (line.value.wantsHelp) {
        const QCoreApplication named(argc, argv);
        std::fputs(CommandLine::helpText().toLocal8Bit().constData(), stdout);
        return end({});
    }
    if (line.value.check)
        return check(argc, argv, line.value);
    Process::provideRuntimeFolder();
    const bool isShown = line.value.drive.isEmpty();
    std::unique_ptr<DisplayProbe> probe;
    if (isShown)
        probe.reset(new DisplayProbe(argv[0]));
    else
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (probe && !probe->canOpen())
        return complain(QStringLiteral("there is no display that can be opened; start it under xvfb-run"));

    int kept = 1; // The options are the program's own; Qt must not take any.
    const double scale = OwnLooks::fixResolution();
    OpenGlCheck::chooseKind();
    QApplication application(kept, argv);
    const Process::DisplayWatch watch;
    probe.reset();
    // What a task prints and pictures is the same on every desktop.
    if (!line.value.theme && line.value.isInteractive())
        line.value.theme = Theme::suiting(QGuiApplication::palette());
    OwnLooks::apply();
    const QString lack = isShown ? OpenGlCheck::problem() : QString();
    return end(lack.isEmpty() ? runTerminal(line.value, scale) : lack);
}
