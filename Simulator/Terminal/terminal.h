#pragma once

#include "Backend/prescriptionbackend.h"
#include "loadedmaps.h"
#include "openrequest.h"
#include "productfile.h"
#include "simulationclock.h"
#include "terminalwindow.h"
#include "touchanswer.h"
#include "unitsystem.h"

#include "Framework/databroker.h"

#include <QDir>
#include <QList>
#include <QMap>
#include <QObject>
#include <QPointer>
#include <QRectF>
#include <QScopedPointer>
#include <QStringList>

#include <optional>

class DriveDisplay;
class FileOpening;
class FindingsDisplay;
class Hints;
class Machine;
class MapDisplay;
class Notices;
class OpenWindow;
class OperatorSettings;
class ProductAdoption;
class Recorder;
class ScreenWindow;
class Simulation;
class UiGraphicsList;
class UiPluginInterface;
class Vehicle;

/// The terminal as a whole: broker, machine, prescriptions, plug-ins and display. Everything that the operator, the
/// command line or a script does with it goes through here.
class Terminal : public QObject {
    Q_OBJECT

public:
    explicit Terminal(const Products &products, UnitSystem units, QObject *parent = nullptr);
    explicit Terminal(const MachineSetup &setup, UnitSystem units, QObject *parent = nullptr);
    /// Deletes plug-ins, maps and groups, in this order.
    ~Terminal() override;

    /// Loads the plug-ins of `folder`; they take their images from `images`. Returns a line for each file that was
    /// skipped. Call before show().
    QStringList loadPlugins(const QDir &folder, const QDir &images);
    bool hasPlugins() const { return !plugins.isEmpty(); }
    /// Shows the display in a window of `size` and waits until it is drawn; false when it has no OpenGL.
    bool show(const QSize &size = TerminalWindow::displaySize);

    DataBroker *broker() { return &dataBroker; }
    PrescriptionBackend *backend() const { return prescriptions.data(); }
    Machine *machine() const { return machineModel.data(); }
    ProductAdoption *adoption() const { return productAdoption.data(); }
    Simulation *simulation() const { return simulated.data(); }
    Vehicle *vehicle() const;
    Recorder *recorder() const { return driveRecorder.data(); }
    TerminalWindow *window() const { return display.data(); }
    /// The window that shows the display on the screen. Null until the display is shown.
    ScreenWindow *screen() const { return screenWindow.data(); }
    /// Null until the display is shown.
    DriveDisplay *driving() const { return driveDisplay.data(); }
    OpenWindow *openWindow() const;
    OperatorSettings *remembered() const;

    /// Shows a line to the operator, until it is taken away or the next one comes; while the open window is shown, it
    /// waits. Call after show().
    void tell(const QString &title, const QString &line);
    /// Tells a new operator how the terminal is used; what was told once is not repeated.
    void greet();
    /// Loads prescriptions and waits for them, with the display alive, up to the first one that cannot be loaded; a
    /// report for each. A product that no prescription may drive is left out, with a warning. Each product takes its
    /// column from the first file that has it. When no columns are named, the most likely ones of each file feed the
    /// products that no file before it feeds; once all are fed, a file takes products over. A file that is to feed
    /// nothing is not opened: its report names no group. If a named column is in no file, a single report says so,
    /// without a path.
    QList<LoadReport> open(const OpenRequest &request);
    /// False when there is no such map.
    bool close(const QString &group);

    /// The prescription column that feeds the active product; empty when none does.
    QString activeColumn() const;

    /// The columns of a map that feed products now, by product number (from 1).
    QMap<int, QString> columnsOf(const QString &group) const;

    /// What the graphics lists say at a field point (metres).
    TouchAnswer answerAt(const QPointF &field) const;
    /// Touches the ground at a field point (metres): a bubble there shows the answer. Returns its text.
    QString touch(const QPointF &field);

    // As of LoadedMaps.

    std::optional<QRectF> bounds() const { return loadedMaps.bounds(); }
    Result<QPointF> toField(const QPointF &degrees) const { return loadedMaps.toField(degrees); }
    Result<QPointF> toEarth(const QPointF &field) const { return loadedMaps.toEarth(field); }

    /// What is drawn at a field point, see FieldView::colorAt().
    QColor mapColor(const QPointF &field);
    /// Saves the display as it is seen, as PNG; the reason when it cannot, or when another kind of file is there.
    QString saveScreenshot(const QString &path);
    /// Draws again: something may look different.
    void refresh();

private:
    /// Enters the products to load for.
    void fillRequest(LoadRequest &load, const OpenRequest &request) const;
    void connectDisplay();
    /// Makes the product active that the map's column feeds; if none does, or none is named, one that the map feeds.
    void activateFed(const QString &group, const QString &column);
    void showDriving();
    void installGraphicsLists();

    DataBroker dataBroker;
    RealClock clock;
    QScopedPointer<PrescriptionBackend> prescriptions;
    QScopedPointer<Machine> machineModel;
    QScopedPointer<ProductAdoption> productAdoption;
    LoadedMaps loadedMaps;
    QScopedPointer<Simulation> simulated;
    QScopedPointer<Recorder> driveRecorder;
    QScopedPointer<TerminalWindow> display;
    QScopedPointer<ScreenWindow> screenWindow;
    QScopedPointer<DriveDisplay> driveDisplay;
    FileOpening *opening;
    QScopedPointer<FindingsDisplay> findings;
    QScopedPointer<MapDisplay> mapDisplay;
    QScopedPointer<Hints> hints;
    QScopedPointer<Notices> notices; ///< Null until the display is shown.
    QList<UiPluginInterface *> plugins;
    QList<QPointer<UiGraphicsList>> graphicsLists;
};
