#include "terminalrun.h"

#include "columnplan.h"
#include "commandline.h"
#include "languages.h"
#include "machine.h"
#include "productfile.h"
#include "scriptrunner.h"
#include "terminal.h"
#include "terminalwindow.h"

#include <QApplication>

#include <cstdio>

namespace {

// Where the build leaves the plug-in and the images, seen from the program.
const char PluginFolder[] = "../../Plugins/uiPluginRxMap";
const char ImageFolder[] = "../Resources/images";

void print(std::FILE *stream, const QString &line)
{
    std::fprintf(stream, "%s\n", line.toLocal8Bit().constData());
    std::fflush(stream);
}

QDir besideProgram(const char *folder)
{
    return QDir(QDir::cleanPath(QApplication::applicationDirPath() + QLatin1Char('/') + QLatin1String(folder)));
}

QString loadPlugins(Terminal &terminal, const QDir &folder)
{
    const QStringList skipped = terminal.loadPlugins(folder, besideProgram(ImageFolder));
    for (const QString &complaint : skipped)
        print(stderr, complaint);
    return terminal.hasPlugins() ? QString()
                                 : QStringLiteral("%1: no user-interface plug-in in this folder").arg(folder.path());
}

QString openWithColumns(Terminal &terminal, const CommandLine &line)
{
    if (line.prescriptions.size() == 1)
        return terminal.open(line.prescriptions.first(), line.columns).error;
    QList<ColumnPlan::File> files;
    for (const QString &path : line.prescriptions) {
        const ColumnSearch columns = PrescriptionBackend::findColumns(path, line.columns);
        if (!columns.isOk())
            return columns.error;
        files.append({path, columns.found});
    }
    const Result<QList<QStringList>> plan = ColumnPlan::distribute(files, line.columns);
    if (!plan.isOk())
        return plan.error;
    for (int i = 0; i < files.size(); ++i) {
        const LoadReport report = terminal.open(files.at(i).path, plan.value.at(i));
        if (!report.isOk())
            return report.error;
    }
    return {};
}

/// Each file feeds the products that none before it does; once all are fed, a file takes products over.
QString openLikely(Terminal &terminal, const CommandLine &line)
{
    QList<int> unfed = terminal.productsUnderVra();
    for (const QString &path : line.prescriptions) {
        const LoadReport report = terminal.openFor(path, unfed.isEmpty() ? terminal.productsUnderVra() : unfed);
        if (!report.isOk())
            return report.error;
        const QMap<int, QString> feeds = terminal.columnsOf(report.group);
        for (auto feed = feeds.begin(); feed != feeds.end(); ++feed) {
            const QString product = terminal.machine()->products().at(feed.key() - 1).name;
            print(stdout, QStringLiteral("%1: product %2 (%3): %4").arg(path).arg(feed.key()).arg(product, *feed));
            unfed.removeAll(feed.key());
        }
    }
    return {};
}

void describe(Terminal &terminal, const QPointF &point)
{
    const QString text = terminal.touch(point);
    print(stdout,
          text.isEmpty() ? QStringLiteral("No rate is prescribed at %1,%2").arg(point.x()).arg(point.y()) : text);
}

QString runScript(Terminal &terminal, const QString &path)
{
    ScriptRunner runner(&terminal);
    QObject::connect(terminal.window(), &TerminalWindow::closed, &runner, &ScriptRunner::interrupt);
    return runner.run(path);
}

QString runTasks(Terminal &terminal, const CommandLine &line)
{
    if (line.describe)
        describe(terminal, *line.describe);
    QString error;
    if (!line.script.isEmpty())
        error = runScript(terminal, line.script);
    if (error.isEmpty() && !line.screenshot.isEmpty())
        error = terminal.saveScreenshot(line.screenshot);
    const bool isInteractive = !line.describe && line.script.isEmpty() && line.screenshot.isEmpty();
    // The operator may have closed the display while the prescriptions were loading.
    if (error.isEmpty() && isInteractive && terminal.window()->isVisible())
        QApplication::exec();
    return error;
}

} // namespace

QString runTerminal(const CommandLine &line)
{
    Products products = ProductFile::standard();
    if (!line.productFile.isEmpty()) {
        const Result<Products> read = ProductFile::read(line.productFile);
        if (!read.isOk())
            return read.error;
        products = read.value;
    }
    const QDir pluginFolder = line.pluginDir.isEmpty() ? besideProgram(PluginFolder) : QDir(line.pluginDir);
    QString error = line.language.isEmpty() ? QString() : Languages::install(line.language, pluginFolder);
    if (!error.isEmpty())
        return error;

    Terminal terminal(products, line.units);
    error = loadPlugins(terminal, pluginFolder);
    if (error.isEmpty() && !terminal.show())
        error = QStringLiteral("the display has no OpenGL");
    if (error.isEmpty())
        error = line.columns.isEmpty() ? openLikely(terminal, line) : openWithColumns(terminal, line);
    return error.isEmpty() ? runTasks(terminal, line) : error;
}
