// Resident memory of the terminal simulator with a map, loaded and drawn, over that of an empty one.

#include "cellfile.h"
#include "sidebyside.h"

#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <QTemporaryDir>

#include <stdexcept>

namespace {

/// Cells in a row, and rows.
constexpr int side = 317;

/// A program's resident memory, its libraries' included, bytes.
double residentMemory(qint64 process)
{
    QFile status(QStringLiteral("/proc/%1/status").arg(process));
    if (status.open(QIODevice::ReadOnly)) {
        for (const QByteArray &line : status.readAll().split('\n')) {
            constexpr double bytesPerKilobyte = 1024.0;
            if (line.startsWith("VmRSS:"))
                return bytesPerKilobyte * line.mid(6).trimmed().split(' ').front().toDouble();
        }
    }
    throw std::runtime_error("the terminal's memory cannot be read");
}

/// Bytes.
struct Resident {
    double whenDrawn; ///< As soon as the window has been drawn.
    double atRest;    ///< Some seconds later.
};

/// Waits until the script prints a line.
void waitForLine(QProcess &terminal)
{
    constexpr int longestMs = 60000;
    while (!terminal.canReadLine()) {
        if (!terminal.waitForReadyRead(longestMs))
            throw std::runtime_error("the terminal does not answer: " + terminal.readAllStandardError().toStdString());
    }
    terminal.readLine();
}

/// The memory of a terminal in which `opening`, the text of a script, opens what is to be measured.
Resident residentAfter(const QString &opening, const QTemporaryDir &folder)
{
    QFile script(folder.filePath(QStringLiteral("script.js")));
    script.open(QIODevice::WriteOnly);
    script.write(QStringLiteral("%1\nterminal.wait(500);\nterminal.screenshot('%2');\nprint('drawn');\n"
                                "terminal.wait(4000);\nprint('at rest');\nterminal.wait(60000);\n")
                     .arg(opening, folder.filePath(QStringLiteral("picture.png")))
                     .toUtf8());
    script.close();
    QProcess terminal;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), folder.path());
    terminal.setProcessEnvironment(environment);
    terminal.start(QStringLiteral(RXMAP_SIMULATOR), {QStringLiteral("--script"), script.fileName()});
    Resident resident{};
    waitForLine(terminal);
    resident.whenDrawn = residentMemory(terminal.processId());
    waitForLine(terminal);
    resident.atRest = residentMemory(terminal.processId());
    terminal.kill();
    terminal.waitForFinished();
    return resident;
}

void loadMemory(benchmark::State &state)
{
    if (qobject_cast<QGuiApplication *>(QCoreApplication::instance()) == nullptr) {
        state.SkipWithError("there is no display");
        return;
    }
    const QTemporaryDir folder;
    const QString cells = folder.filePath(QStringLiteral("cells.shp"));
    writeCellFile(cells, side);
    std::vector<double> whenDrawn;
    std::vector<double> atRest;
    double empty = 0.0;
    for (auto _ : state) {
        const Resident before = residentAfter(QString(), folder);
        const Resident after = residentAfter(QStringLiteral("terminal.open('%1');").arg(cells), folder);
        whenDrawn.push_back((after.whenDrawn - before.whenDrawn) / (side * side));
        atRest.push_back((after.atRest - before.atRest) / (side * side));
        empty = before.atRest;
    }
    state.counters["bytes_per_cell"] = median(atRest);
    state.counters["bytes_per_cell_when_drawn"] = median(whenDrawn);
    state.counters["empty_bytes"] = empty;
}

} // namespace

BENCHMARK(loadMemory)->Name("LoadMemory/cells-100k")->Iterations(3);
