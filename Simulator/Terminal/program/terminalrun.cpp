#include "terminalrun.h"

#include "commandline.h"
#include "consoleline.h"
#include "headlessdrive.h"
#include "installation.h"
#include "languages.h"
#include "machine.h"
#include "neededimages.h"
#include "openwindow.h"
#include "operatorsettings.h"
#include "pointdescription.h"
#include "productfile.h"
#include "ratesourcetext.h"
#include "recorder.h"
#include "screenmemory.h"
#include "screenwindow.h"
#include "scriptrunner.h"
#include "simulation.h"
#include "terminal.h"
#include "terminalwindow.h"

#include <QApplication>
#include <QFileInfo>
#include <QLocale>
#include <QScreen>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

QString loadPlugins(Terminal &terminal, const QDir &folder)
{
    const QStringList skipped = terminal.loadPlugins(folder, Installation::images());
    for (const QString &complaint : skipped)
        writeErrorLine(complaint);
    return terminal.hasPlugins() ? QString()
                                 : QStringLiteral("%1: no user-interface plug-in in this folder").arg(folder.path());
}

/// Each file once, however it is named.
QStringList withoutRepetition(const QStringList &paths)
{
    QStringList files;
    QStringList known;
    for (const QString &path : paths) {
        const QString canonical = QFileInfo(path).canonicalFilePath();
        if (!canonical.isEmpty() && known.contains(canonical))
            continue;
        files.append(path);
        known.append(canonical);
    }
    return files;
}

/// The rate with as many digits as files write.
QString rateText(double rate)
{
    return QString::number(rate, 'g', 12);
}

/// "default rate 0 kg/ha (out of the field 0, elsewhere 148.15, position lost 148.15)"; empty where the file gives
/// none.
QString placeRatesText(const RateSource &source)
{
    const PlaceRates &rates = source.placeRates;
    QStringList parts;
    for (const auto &[name, rate] :
         {std::pair("out of the field", rates.outOfField), std::pair("elsewhere", rates.elsewhere),
          std::pair("position lost", rates.positionLost)}) {
        if (!std::isnan(rate))
            parts.append(QStringLiteral("%1 %2").arg(QLatin1String(name), rateText(rate)));
    }
    if (parts.isEmpty())
        return {};
    const QString list = parts.join(QStringLiteral(", "));
    return std::isnan(rates.defaultRate())
        ? QStringLiteral("rates without a prescription in %1: %2").arg(source.baseUnit, list)
        : QStringLiteral("default rate %1 %2 (%3)").arg(rateText(rates.defaultRate()), source.baseUnit, list);
}

/// Prints what feeds which product in the end: a later file may have taken a product over.
void printFeeds(const Terminal &terminal, const LoadReport &report)
{
    const QMap<int, QString> feeds = terminal.columnsOf(report.group);
    for (auto feed = feeds.begin(); feed != feeds.end(); ++feed) {
        const QString product = terminal.machine()->products().at(feed.key() - 1).name;
        const auto source = std::find_if(report.sources.begin(), report.sources.end(),
                                         [&feed](const RateSource &any) { return any.product == feed.key(); });
        const QString unit = source == report.sources.end() ? QString() : unitTextOf(*source);
        writeOutputLine(QStringLiteral("%1: product %2 (%3): %4 (%5)")
                            .arg(report.path, QString::number(feed.key()), product, *feed, unit));
        const QString rates = source == report.sources.end() ? QString() : placeRatesText(*source);
        if (!rates.isEmpty())
            writeOutputLine(QStringLiteral("%1: product %2 (%3): %4")
                                .arg(report.path, QString::number(feed.key()), product, rates));
    }
    if (feeds.isEmpty())
        writeOutputLine(QStringLiteral("%1: feeds no product").arg(report.path));
}

void tellWarnings(const LoadReport &report)
{
    for (const QString &warning : report.warnings)
        writeErrorLine(warning);
}

QString openAll(Terminal &terminal, const QStringList &paths, const CommandLine &line)
{
    const QList<LoadReport> reports = terminal.open({paths, line.columns, line.sourceUnits, line.layer, line.task});
    for (const LoadReport &report : reports) {
        // An error without a path belongs to no single file: none of them has a column that was named.
        if (!report.isOk())
            return report.path.isEmpty() ? QStringLiteral("--columns: %1").arg(report.error) : report.error;
        tellWarnings(report);
    }
    for (const LoadReport &report : reports) {
        if (!report.group.isEmpty())
            printFeeds(terminal, report);
    }
    return {};
}

/// If the product shown first has no map, shows the first product that has one.
void showFedProduct(Terminal &terminal)
{
    if (!terminal.activeColumn().isEmpty())
        return;
    QList<int> fed;
    const QStringList groups = terminal.broker()->findGroup(QStringLiteral("rxMap.*"), true, false);
    for (const QString &group : groups)
        fed.append(terminal.columnsOf(group).keys());
    if (!fed.isEmpty())
        terminal.machine()->setActiveProduct(*std::min_element(fed.cbegin(), fed.cend()));
}

/// Prints what is shown at the points asked for; the reason when one has no place in the field.
QString describePoints(Terminal &terminal, const CommandLine &line)
{
    const auto nameOf = [](const QPointF &point) {
        return QString::number(point.x(), 'g', 12) + QLatin1Char(',') + QString::number(point.y(), 'g', 12);
    };
    QStringList lines;
    if (line.describe)
        lines += describePoint(terminal, *line.describe, nameOf(*line.describe));
    if (line.at) {
        const Result<QPointF> field = terminal.toField(*line.at);
        if (!field.isOk())
            return QStringLiteral("--at %1: %2").arg(nameOf(*line.at), field.error);
        lines += describePoint(terminal, field.value, nameOf(*line.at));
    }
    for (const QString &text : qAsConst(lines))
        writeOutputLine(text);
    return {};
}

QString runScript(Terminal &terminal, const QString &path)
{
    QObject::connect(terminal.recorder(), &Recorder::failed, writeErrorLine);
    ScriptRunner runner(&terminal);
    QObject::connect(terminal.window(), &TerminalWindow::closed, &runner, &ScriptRunner::interrupt);
    return runner.run(path);
}

/// Shows the open window, and waits until it shows what the first file holds, so that a task finds it so.
void showOpenWindow(Terminal &terminal, const QStringList &files)
{
    OpenWindow *window = terminal.openWindow();
    if (files.isEmpty())
        window->showFiles();
    else
        window->preview(files);
    while (window->isBusy() && terminal.window()->isVisible())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

QSize firstSize(Terminal &terminal, const CommandLine &line, double scale)
{
    if (scale > 0.0)
        return (scale * QSizeF(TerminalWindow::displaySize)).toSize();
    // A task's display has the same size everywhere.
    return line.isInteractive()
        ? ScreenMemory(terminal.remembered()->values()).sizeOn(QGuiApplication::primaryScreen()->availableSize())
        : TerminalWindow::displaySize;
}

QString runTasks(Terminal &terminal, const CommandLine &line)
{
    QString error = describePoints(terminal, line);
    if (error.isEmpty() && !line.script.isEmpty())
        error = runScript(terminal, line.script);
    if (error.isEmpty() && !line.screenshot.isEmpty())
        error = terminal.saveScreenshot(line.screenshot);
    // The operator may have closed the display while the prescriptions were loading.
    if (error.isEmpty() && line.isInteractive() && terminal.window()->isVisible()) {
        QApplication::exec();
        ScreenMemory(terminal.remembered()->values()).keep(terminal.screen()->plainSize());
    }
    return error;
}

QString languageFor(const CommandLine &line, const QDir &pluginFolder)
{
    if (!line.language.isEmpty())
        return line.language;
    // What a task prints and pictures is the same on every desktop.
    return Languages::suiting(line.isInteractive() ? QLocale::system().uiLanguages() : QStringList(), pluginFolder);
}

/// Reports a complaint that does not end the run.
void tell(const QString &complaint)
{
    if (!complaint.isEmpty())
        writeErrorLine(complaint);
}

} // namespace

QString runTerminal(const CommandLine &line, double scale)
{
    const QDir pluginFolder = Installation::plugins(line.pluginDir);
    QString error = Languages::install(languageFor(line, pluginFolder), pluginFolder);
    if (error.isEmpty())
        error = NeededImages::problem(Installation::images());
    if (!error.isEmpty())
        return error;
    MachineSetup setup = ProductFile::standardMachine();
    if (!line.productFile.isEmpty()) {
        const Result<MachineSetup> read = ProductFile::read(line.productFile);
        if (!read.isOk())
            return read.error;
        setup = read.value;
    }

    Terminal terminal(setup, line.units);
    tell(terminal.remembered()->complaint());
    QObject::connect(terminal.openWindow(), &OpenWindow::opened, tellWarnings);
    QObject::connect(terminal.backend(), &PrescriptionBackend::checked,
                     [](const QString &, const QList<MapFinding> &, const QString &problem) { tell(problem); });
    terminal.openWindow()->offerSample(Installation::sampleField());
    terminal.window()->setTheme(line.theme.value_or(Theme::Kind::Day));
    const bool isShown = line.drive.isEmpty();
    // Time passes only while driving, so that each drive begins at the same moment.
    if (!isShown)
        terminal.simulation()->setTimeFactor(0.0);
    if (isShown)
        error = loadPlugins(terminal, pluginFolder);
    if (error.isEmpty() && isShown && !terminal.show(firstSize(terminal, line, scale)))
        error = QStringLiteral("the display has no OpenGL");
    if (error.isEmpty() && line.isInteractive()) {
        terminal.screen()->keepOnScreen();
        terminal.greet();
    }
    const QStringList files = withoutRepetition(line.prescriptions);
    if (error.isEmpty() && line.open)
        showOpenWindow(terminal, files);
    else if (error.isEmpty())
        error = openAll(terminal, files, line);
    if (!error.isEmpty())
        return error;
    showFedProduct(terminal);
    error = isShown ? runTasks(terminal, line) : runDrive(terminal, line);
    tell(terminal.remembered()->keep());
    return error;
}
