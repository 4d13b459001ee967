#include "terminal.h"

#include "drivedisplay.h"
#include "driverecord.h"
#include "fieldview.h"
#include "fileopening.h"
#include "findingsdisplay.h"
#include "guidancepage.h"
#include "hints.h"
#include "machine.h"
#include "mapdisplay.h"
#include "mapoverlay.h"
#include "notices.h"
#include "openwindow.h"
#include "operatorsettings.h"
#include "pluginscanner.h"
#include "productadoption.h"
#include "productselector.h"
#include "querylistener.h"
#include "recorder.h"
#include "screenwindow.h"
#include "simulation.h"
#include "statusbar.h"
#include "vehicle.h"
#include "wholefile.h"
#include "windowstack.h"

#include "Framework/uigraphicslist.h"
#include "Framework/uiplugininterface.h"
#include "bePluginRxMap/rxmaploader.h"

#include <QApplication>
#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QScopeGuard>
#include <QVector3D>

/// A static library's resources have to be asked for, from outside of any namespace.
static void initialiseResources()
{
    Q_INIT_RESOURCE(terminal);
}

namespace {

/// The report of a file that is not opened, since other ones have all columns that are wanted.
LoadReport unused(const QString &path)
{
    LoadReport report;
    report.path = path;
    report.warnings.append(QStringLiteral("%1: not opened, it feeds no product").arg(path));
    return report;
}

/// Whether the file holds something other than a PNG picture, such as a prescription.
bool isOtherThanPicture(const QString &path)
{
    QFile file(path);
    return QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly) && file.size() > 0
        && QImageReader::imageFormat(&file) != "png";
}

} // namespace

Terminal::Terminal(const Products &products, UnitSystem units, QObject *parent)
    : Terminal(MachineSetup{{}, products, false}, units, parent)
{
}

Terminal::Terminal(const MachineSetup &setup, UnitSystem units, QObject *parent)
    : QObject(parent)
    , dataBroker(QString(), TerminalWindow::displaySize)
    , prescriptions(new PrescriptionBackend(&dataBroker))
    , machineModel(new Machine(&dataBroker, prescriptions.data(), setup.products, units))
    , productAdoption(new ProductAdoption(machineModel.data()))
    , loadedMaps(dataBroker, *prescriptions, *machineModel)
    , simulated(new Simulation(machineModel.data(), &clock))
    , driveRecorder(new Recorder(simulated.data()))
    , display(new TerminalWindow(setup.products))
    , opening(new FileOpening(this))
    , findings(new FindingsDisplay(machineModel.data(), simulated->vehicle(), display.data()))
    , mapDisplay(new MapDisplay(&dataBroker, machineModel.data(), &loadedMaps, simulated.data(), display.data()))
{
    initialiseResources();
    vehicle()->setSize(setup.size);
    productAdoption->keepProductsWhile([this] {
        return driveRecorder->isRecording() || (!vehicle()->isStopped() && !prescriptions->maps().isEmpty());
    });
    if (setup.takesProductsFromFile)
        productAdoption->adoptFromNextFile();
    connectDisplay();
}

Terminal::~Terminal()
{
    hints.reset();
    findings.reset();
    display->guidancePage()->setPlugins({}, nullptr);
    display->fieldView()->makeCurrent();
    for (UiPluginInterface *plugin : qAsConst(plugins)) {
        plugin->deleteAllWidgets();
        plugin->close();
    }
    qDeleteAll(plugins);
    display->fieldView()->doneCurrent();
    mapDisplay.reset();
    disconnect(machineModel.data(), nullptr, this, nullptr);
    prescriptions.reset();
}

void Terminal::connectDisplay()
{
    connect(machineModel.data(), &Machine::productsChanged, this,
            [this] { display->setProducts(machineModel->products()); });
    connect(display->productSelector(), &ProductSelector::chosen, machineModel.data(), &Machine::setActiveProduct);
    connect(display->fieldView(), &FieldView::touched, this, &Terminal::touch);
    connect(opening->window(), &OpenWindow::shownChanged, findings.data(), [this](bool isShown) {
        if (isShown)
            findings->leave();
    });
    connect(findings.data(), &FindingsDisplay::mapChosen, this, &Terminal::activateFed);
    connect(prescriptions.data(), &PrescriptionBackend::progress, this, [this](const QString &path, double fraction) {
        // The open window has a progress bar of its own for the load it waits for.
        const bool isShownThere = opening->window()->isVisible() && opening->window()->isBusy();
        display->statusBar()->setProgress(isShownThere ? QString() : PrescriptionBackend::nameOf(path), fraction);
    });
    const auto endProgress = [this] { display->statusBar()->setProgress(QString(), 0.0); };
    connect(prescriptions.data(), &PrescriptionBackend::finished, this, endProgress);
    connect(prescriptions.data(), &PrescriptionBackend::surveyed, this, endProgress);
}

void Terminal::activateFed(const QString &group, const QString &column)
{
    const QMap<int, QString> columns = columnsOf(group);
    const int shown = machineModel->activeProduct();
    if (column.isEmpty() ? !columns.contains(shown) : columns.value(shown) != column)
        machineModel->setActiveProduct(columns.key(column, columns.isEmpty() ? shown : columns.firstKey()));
}

OpenWindow *Terminal::openWindow() const
{
    return opening->window();
}

Vehicle *Terminal::vehicle() const
{
    return simulated->vehicle();
}

QStringList Terminal::loadPlugins(const QDir &folder, const QDir &images)
{
    const PluginScanner::Findings found = PluginScanner::scan(folder);
    for (const PluginScanner::Plugin &plugin : found.plugins) {
        plugin.instance->init(&dataBroker, folder, images);
        plugins.append(plugin.instance);
    }
    installGraphicsLists();
    display->guidancePage()->setPlugins(plugins, &dataBroker);
    return found.complaints;
}

void Terminal::installGraphicsLists()
{
    for (UiPluginInterface *plugin : qAsConst(plugins)) {
        const QStringList names = plugin->getGraphicsListNames();
        for (const QString &name : names) {
            const QPointer<UiGraphicsList> list = plugin->createUiGraphicsList(name, &dataBroker);
            if (!list)
                continue;
            graphicsLists.append(list);
            display->fieldView()->addGraphicsList(list);
        }
    }
}

bool Terminal::show(const QSize &size)
{
    if (!driveDisplay)
        showDriving();
    if (!screenWindow)
        screenWindow.reset(new ScreenWindow(display.data()));
    screenWindow->resize(size);
    screenWindow->show();
    QApplication::processEvents();
    screenWindow->repaint();
    return display->fieldView()->isValid();
}

void Terminal::showDriving()
{
    driveDisplay.reset(new DriveDisplay(display.data(), simulated.data(), driveRecorder.data()));
    opening->attend(driveDisplay.data());
    notices.reset(new Notices(display.data()));
    connect(driveDisplay->record(), &DriveRecord::told, this, &Terminal::tell);
    // What was told is over when the operator goes on.
    connect(driveRecorder.data(), &Recorder::switched, notices.data(), &Notices::leave);
    connect(opening->window(), &OpenWindow::shownChanged, notices.data(), &Notices::setCovered);
}

void Terminal::tell(const QString &title, const QString &line)
{
    notices->tell(title, line);
}

OperatorSettings *Terminal::remembered() const
{
    return opening->remembered();
}

void Terminal::greet()
{
    hints.reset(new Hints(display.data(), prescriptions.data(), &remembered()->values()));
    hints->greet();
}

QList<LoadReport> Terminal::open(const OpenRequest &request)
{
    QList<LoadReport> reports;
    LoadRequest load{{}, request.columns, request.units, {}, request.layer, request.task};
    if (request.columnProducts && !request.columnProducts->isEmpty())
        productAdoption->adoptFromNextFile();
    const auto settle = qScopeGuard([adoption = QPointer<ProductAdoption>(productAdoption.data())] {
        if (adoption)
            adoption->endWithMapLoaded();
    });
    fillRequest(load, request);
    const ColumnShares shares = PrescriptionBackend::shareColumns(request.paths, load);
    if (!shares.isOk()) {
        reports.append(LoadReport());
        reports.last().path = shares.path;
        reports.last().error = shares.error;
    }
    for (int i = 0; i < shares.columns.size(); ++i) {
        load.path = request.paths.at(i);
        load.columns = shares.columns.at(i);
        const bool isUnused = !request.columns.isEmpty() && load.columns.isEmpty();
        reports.append(isUnused ? unused(load.path) : prescriptions->loadAndWait(load));
        if (!reports.last().isOk())
            return reports;
        if (!reports.last().columnProducts.isEmpty())
            load = {{}, {}, request.units, machineModel->loadedProducts(), request.layer, request.task};
        const QList<int> fed = columnsOf(reports.last().group).keys();
        for (const int number : fed)
            load.products[number - 1].isFed = true;
    }
    return reports;
}

void Terminal::fillRequest(LoadRequest &load, const OpenRequest &request) const
{
    productAdoption->fillRequest(load);
    // A record has its columns by product. An operator who chose among the placeholders keeps them.
    const bool keepsProducts =
        driveRecorder->isRecording() || (request.columnProducts && request.columnProducts->isEmpty());
    if (keepsProducts)
        load.makeProducts = nullptr;
    load.tellsGuesses = request.columnProducts.has_value();
    load.columnProducts = request.columnProducts.value_or(QList<ColumnProduct>());
    load.replacedGroups = request.closes + request.replaces;
}

bool Terminal::close(const QString &group)
{
    return prescriptions->unload(group);
}

QString Terminal::activeColumn() const
{
    return loadedMaps.active().columnName;
}

QMap<int, QString> Terminal::columnsOf(const QString &group) const
{
    return machineModel->columnsOf(group);
}

TouchAnswer Terminal::answerAt(const QPointF &field) const
{
    const ActiveMap map = loadedMaps.active();
    const QueryListener query(dataBroker, map);
    QStringList texts;
    for (const QPointer<UiGraphicsList> &list : graphicsLists) {
        if (list)
            texts.append(list->getPointDescription(QVector3D(float(field.x()), float(field.y()), 0.0F)).trimmed());
    }
    texts.removeAll(QString());
    TouchAnswer answer;
    answer.text = texts.join(QLatin1Char('\n'));
    if (!answer.text.isEmpty())
        answer.color = map.classColor(query.rate());
    return answer;
}

QString Terminal::touch(const QPointF &field)
{
    const TouchAnswer answer = answerAt(field);
    display->overlay()->showBubble(field, answer.text, answer.color);
    return answer.text;
}

QColor Terminal::mapColor(const QPointF &field)
{
    return display->fieldView()->colorAt(field);
}

QString Terminal::saveScreenshot(const QString &path)
{
    if (isOtherThanPicture(path))
        return QStringLiteral("%1: is there already and no PNG picture").arg(path);
    QByteArray picture;
    QBuffer buffer(&picture);
    WindowStack::picture(display.data()).save(&buffer, "png");
    return writeWholeFile(path, picture);
}

void Terminal::refresh()
{
    mapDisplay->refresh();
}
