// A script, in a folder that holds a prescription ("zones.geojson") and a track ("track.csv").
#include "fuzzinput.h"
#include "paths.h"
#include "scriptrunner.h"
#include "terminalhost.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QScopedPointer>
#include <QTemporaryDir>
#include <QTimer>

namespace {

constexpr int mostMilliseconds = 1500;

/// Scripts find here what they name, and leave here what they write.
void enterFolder(const QString &folder)
{
    require(QDir::setCurrent(folder), "the folder can be entered");
    require(QFile::copy(TerminalHost::fixture(QStringLiteral("three-zones.geojson")), QStringLiteral("zones.geojson")),
            "the prescription can be copied");
    QFile track(QStringLiteral("track.csv"));
    require(track.open(QIODevice::WriteOnly) && track.write("time,x,y\n0,0,0\n1,1,1\n2,2,2\n") > 0,
            "the track can be written");
    // The user's own settings stay as they are.
    qputenv("XDG_CONFIG_HOME", folder.toLocal8Bit());
}

/// What a script runs in.
class Bench {
public:
    Bench() { enterFolder(folder.path()); }

    Terminal &terminal()
    {
        if (host == nullptr)
            host.reset(new TerminalHost);
        require(host->problem().isEmpty(), "the terminal stands:", host->problem());
        return host->terminal();
    }
    /// The next script has a terminal of its own.
    void leave() { host.reset(); }

private:
    int argumentCount = 0;
    QApplication application{argumentCount, nullptr};
    QTemporaryDir folder;
    QScopedPointer<TerminalHost> host;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    // Kept to the end: what the display holds goes after the libraries' own statics otherwise.
    static Bench &bench = *new Bench;
    const QString name = QStringLiteral("script.js");
    ScriptRunner runner(&bench.terminal());
    QTimer::singleShot(mostMilliseconds, &runner, &ScriptRunner::interrupt);
    const QString error = runner.evaluate(QString::fromUtf8(FuzzInput(data, size).rest()), name);
    require(error.isEmpty() || isOneLineAbout(error, name), "one line says why it ended:", error);
    require(QApplication::activeModalWidget() == nullptr, "no dialog is left open");
    // What was no script did nothing to it.
    if (!error.contains(QLatin1String("SyntaxError")))
        bench.leave();
    return 0;
}
