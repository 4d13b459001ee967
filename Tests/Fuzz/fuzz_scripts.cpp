// A script for a terminal of its own, in a folder with a prescription ("zones.geojson") and a track ("track.csv").
#include "files.h"
#include "fuzzinput.h"
#include "paths.h"
#include "scriptrunner.h"
#include "terminalhost.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTimer>

namespace {

constexpr int mostMilliseconds = 1500;

/// Scripts find the files here that they name, and leave here the files that they write.
bool enterFolder(const QString &folder)
{
    // Leaves the user's own settings as they are.
    qputenv("XDG_CONFIG_HOME", folder.toLocal8Bit());
    return QDir::setCurrent(folder)
        && !writeFile(QStringLiteral("track.csv"), "time,x,y\n0,0,0\n1,1,1\n2,2,2\n").isEmpty()
        && QFile::copy(TerminalHost::fixture(QStringLiteral("three-zones.geojson")), QStringLiteral("zones.geojson"));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    // Kept to the end: otherwise what the display holds would be freed after the libraries' own statics.
    static int argumentCount = 0;
    static const auto *const application = new QApplication(argumentCount, nullptr);
    static const QTemporaryDir folder;
    static const bool isPrepared = enterFolder(folder.path());
    require(application != nullptr && isPrepared, "scripts have where to run");
    TerminalHost host;
    require(host.problem().isEmpty(), "the terminal stands:", host.problem());
    const QString name = QStringLiteral("script.js");
    ScriptRunner runner(&host.terminal());
    QTimer::singleShot(mostMilliseconds, &runner, &ScriptRunner::interrupt);
    const QString error = runner.evaluate(QString::fromUtf8(FuzzInput(data, size).rest()), name);
    require(error.isEmpty() || isOneLineAbout(error, name), "one line says why it ended:", error);
    require(QApplication::activeModalWidget() == nullptr, "no dialog is left open");
    return 0;
}
