#pragma once

#include "Backend/prescriptionbackend.h"
#include "legendpanel.h"
#include "openrequest.h"
#include "productfile.h"
#include "repaintthrottle.h"
#include "result.h"
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

struct ActiveMap;
class DriveDisplay;
class FileOpening;
class FindingsDisplay;
class Hints;
class Machine;
class OpenWindow;
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
    /// Plug-ins, maps and groups go, in this order.
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
    Simulation *simulation() const { return simulated.data(); }
    Vehicle *vehicle() const;
    Recorder *recorder() const { return driveRecorder.data(); }
    TerminalWindow *window() const { return display.data(); }
    /// What shows the display on the screen. Null until the display is shown.
    ScreenWindow *screen() const { return screenWindow.data(); }
    /// Null until the display is shown.
    DriveDisplay *driving() const { return driveDisplay.data(); }
    OpenWindow *openWindow() const;

    /// Tells an operator who is new to the terminal how it is used; what was told once is not told again.
    void greet();
    /// Loads prescriptions and waits for them, with the display alive, up to the first one that cannot be loaded; a
    /// report for each. A product that no prescription may drive is left out, with a warning. Each product takes its
    /// column from the first file that has it. Without columns the most likely ones of each file feed the products that
    /// none before it does; once all are fed, a file takes products over. A file that is to feed nothing is not opened:
    /// its report names no group.
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
    /// Extent of what is loaded, metres (top = least y); nothing when no map is. Of maps that are too far apart for one
    /// plane, those on the plane of the active product's map count, or of the newest map where none feeds it.
    std::optional<QRectF> bounds() const;
    /// Where the plane of the maps in bounds() touches the earth, degrees of longitude and latitude; nothing when no
    /// map is loaded.
    std::optional<QPointF> planeOrigin() const;
    /// From degrees of longitude and latitude to metres of that plane and back; the reason when there is no way.
    Result<QPointF> toField(const QPointF &degrees) const;
    Result<QPointF> toEarth(const QPointF &field) const;
    /// What is drawn at a field point, see FieldView::colorAt().
    QColor mapColor(const QPointF &field);
    /// Saves the display as it is seen, as PNG; the reason when it cannot, or when another kind of file is there.
    QString saveScreenshot(const QString &path);
    /// Draws again: something may look different.
    void refresh();

private Q_SLOTS:
    void redrawMap();

private:
    /// Says for which products to load.
    void enterProducts(const OpenRequest &request, LoadRequest &load) const;
    void watchGroup(const QString &name);
    void connectDisplay();
    void installGraphicsLists();
    void followMaps();
    void showLegend();
    /// What came of the map's load; an empty report where there is no map.
    LoadReport reportOf(const ActiveMap &map) const;
    /// What the legend says of the map that feeds the active product.
    LegendPanel::Content legendOf(const ActiveMap &map) const;
    void showVehicle();
    /// Where the maps lie that feed a product, metres of the plane of bounds(); null without any.
    QRectF fieldInUse() const;
    void frameField();

    DataBroker dataBroker;
    RealClock clock;
    QScopedPointer<PrescriptionBackend> prescriptions;
    QScopedPointer<Machine> machineModel;
    QScopedPointer<Simulation> simulated;
    QScopedPointer<Recorder> driveRecorder;
    QScopedPointer<TerminalWindow> display;
    QScopedPointer<ScreenWindow> screenWindow;
    QScopedPointer<DriveDisplay> driveDisplay;
    FileOpening *opening;
    QScopedPointer<FindingsDisplay> findings;
    QScopedPointer<Hints> hints;
    QList<UiPluginInterface *> plugins;
    QList<QPointer<UiGraphicsList>> graphicsLists;
    QRectF framedBounds;
    RepaintThrottle viewPace;
};
