// Does to the plug-in, in random order, whatever a host may do, and compares what is seen with what should be. A
// sequence that fails, or that ends the program, is shortened and printed in the form that --replay reads.
//   rxmap-hostile [--dialogs] [--seed N] [--count N] [--steps N]
//   rxmap-hostile --replay FILE

#include "actions.h"
#include "hostilehost.h"
#include "ownlooks.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFile>
#include <QProcess>
#include <QTemporaryFile>

#include <cstdio>

namespace {

struct Task {
    unsigned int seed = 1;
    int count = 300;
    int length = 36;
    bool dialogs = false;

    Sequence sequence(unsigned int number) const
    {
        return dialogs ? dialogSequence(number, length) : hostileSequence(number, length);
    }
};

/// Many debug lines and refusals are part of the day.
void ignore(QtMsgType type, const QMessageLogContext & /*context*/, const QString &text)
{
    if (type == QtFatalMsg)
        std::fprintf(stderr, "%s\n", qPrintable(text));
}

bool replay(const QString &file)
{
    QFile source(file);
    if (!source.open(QIODevice::ReadOnly))
        qFatal("%s cannot be read", qPrintable(file));
    PluginLibrary library;
    FieldView view;
    HostileHost host(library, view);
    const QString difference = host.run(fromText(QString::fromUtf8(source.readAll())));
    std::printf("%s\n", qPrintable(difference));
    return difference.isEmpty();
}

/// Announces each sequence before it runs, so that the parent process knows which one ended this one.
bool work(const Task &task)
{
    PluginLibrary library;
    FieldView view;
    long checks = 0;
    for (int i = 0; i < task.count; ++i) {
        const unsigned int seed = task.seed + static_cast<unsigned int>(i);
        std::printf("seed %u\n", seed);
        std::fflush(stdout);
        HostileHost host(library, view);
        const QString difference = host.run(task.sequence(seed));
        checks += host.checks();
        if (!difference.isEmpty()) {
            std::printf("%s\n", qPrintable(difference));
            return false;
        }
    }
    std::printf("checks %ld\n", checks);
    return true;
}

/// Runs this program once more; what it printed goes to `output`.
bool runAgain(const QStringList &arguments, QString *output)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QCoreApplication::applicationFilePath(), arguments);
    process.waitForFinished(-1);
    *output = QString::fromUtf8(process.readAll());
    return process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

bool failsAgain(const Sequence &steps, QString *output)
{
    QTemporaryFile file;
    if (!file.open() || file.write(toText(steps).toUtf8()) < 0 || !file.flush())
        qFatal("%s", qPrintable(file.errorString()));
    return !runAgain({"--replay", file.fileName()}, output);
}

bool supervise(const Task &task)
{
    QStringList arguments{"--work",
                          "--seed",
                          QString::number(task.seed),
                          "--count",
                          QString::number(task.count),
                          "--steps",
                          QString::number(task.length)};
    if (task.dialogs)
        arguments.append("--dialogs");
    QString output;
    const bool isFine = runAgain(arguments, &output);
    if (isFine) {
        std::printf("%d %s of %d steps, %s checks\n", task.count, task.dialogs ? "dialogs" : "sequences", task.length,
                    qPrintable(output.section(QLatin1String("checks "), -1).trimmed()));
        return true;
    }
    const unsigned int seed = output.section(QLatin1String("seed "), -1).section('\n', 0, 0).toUInt();
    std::printf("%s\n", qPrintable(output.section(QLatin1String("seed "), -1)));
    const Sequence all = task.sequence(seed);
    QString last;
    if (!failsAgain(all, &last)) {
        std::printf("sequence %u alone does not fail\n", seed);
        return false;
    }
    const Sequence steps = shortest(all, [&last](const Sequence &part) {
        QString text;
        const bool fails = failsAgain(part, &text);
        if (fails)
            last = text;
        return fails;
    });
    std::printf("%s\nsequence %u, shortened:\n%s", qPrintable(last), seed, qPrintable(toText(steps)));
    return false;
}

} // namespace

int main(int argc, char *argv[])
{
    OwnLooks::fixResolution();
    QApplication application(argc, argv);
    OwnLooks::apply();
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addOptions({{"dialogs", "settings dialogs, instead of whole days"},
                       {"seed", "of the first sequence", "N", "1"},
                       {"count", "of sequences", "N", "300"},
                       {"steps", "of each sequence", "N", "36"},
                       {"replay", "does the steps of a file, one a line", "FILE"},
                       {"work", "in this process, without shortening what fails"}});
    parser.process(application);
    if (parser.isSet("work") || parser.isSet("replay"))
        qInstallMessageHandler(ignore);
    Task task;
    task.seed = parser.value("seed").toUInt();
    task.count = parser.value("count").toInt();
    task.length = parser.value("steps").toInt();
    task.dialogs = parser.isSet("dialogs");
    const bool isFine = parser.isSet("replay") ? replay(parser.value("replay"))
        : parser.isSet("work")                 ? work(task)
                                               : supervise(task);
    return isFine ? 0 : 1;
}
