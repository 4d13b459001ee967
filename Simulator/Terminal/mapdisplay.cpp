#include "mapdisplay.h"

#include "Backend/prescriptionbackend.h"
#include "fieldview.h"
#include "guidancepage.h"
#include "legendcontent.h"
#include "machine.h"
#include "mapoverlay.h"
#include "productselector.h"
#include "simulation.h"
#include "statusbar.h"
#include "terminalwindow.h"
#include "vehicle.h"

#include "Framework/databroker.h"

MapDisplay::MapDisplay(DataBroker *dataBroker, Machine *terminalMachine, const LoadedMaps *loadedMaps,
                       Simulation *terminalSimulation, TerminalWindow *display)
    : broker(dataBroker)
    , machine(terminalMachine)
    , maps(loadedMaps)
    , simulation(terminalSimulation)
    , window(display)
    , viewPace(display->fieldView())
{
    window->overlay()->setMetric(machine->unitSystem() == UnitSystem::Metric);
    connect(broker, &DataBroker::groupPublished, this, &MapDisplay::watchGroup);
    connect(machine, &Machine::mapsChanged, this, &MapDisplay::followMaps);
    connect(machine, &Machine::activeProductChanged, this, &MapDisplay::showLegend);
    connect(window, &TerminalWindow::frameRequested, this, [this] {
        framedBounds = QRectF();
        frameField();
    });
    connect(simulation->vehicle(), &Vehicle::moved, this, &MapDisplay::showVehicle);
    connect(simulation, &Simulation::timeFactorChanged, this, &MapDisplay::showVehicle);
    showLegend();
    showVehicle();
}

void MapDisplay::followMaps()
{
    QStringList names;
    const QList<LoadReport> loaded = machine->backend()->maps();
    for (const LoadReport &map : loaded) {
        if (!machine->columnsOf(map.group).isEmpty())
            names.append(PrescriptionBackend::nameOf(map.path));
    }
    window->statusBar()->setMaps(names);
    window->overlay()->showBubble(QPointF(), QString(), QColor());
    window->guidancePage()->rebuild();
    showLegend();
}

void MapDisplay::showLegend()
{
    const ActiveMap map = maps->active();
    const LoadReport report = maps->reportOf(map);
    window->legend()->show(legendContent(*machine, report, map));
    window->productSelector()->setActiveProduct(machine->activeProduct());
    window->overlay()->setBoundary(report.boundary);
    window->overlay()->showBubble(QPointF(), QString(), QColor());
    // Another product's map may lie elsewhere.
    frameField();
    refresh();
}

void MapDisplay::refresh()
{
    window->fieldView()->forgetColors();
    viewPace.request();
}

void MapDisplay::redrawMap()
{
    refresh();
}

void MapDisplay::watchGroup(const QString &name)
{
    // The plug-in rebuilds its drawing whenever the count is set; drawing the display again is up to the host.
    if (DataBrokerGroup *group = broker->getGroup(name, false))
        group->connectPropertySetSlot("polygonCount", this, SLOT(redrawMap()), Qt::UniqueConnection, false);
}

void MapDisplay::showVehicle()
{
    const Vehicle &vehicle = *simulation->vehicle();
    window->overlay()->setVehicle(vehicle.position(), vehicle.heading());
    window->statusBar()->setSpeed(vehicle.currentSpeed(), machine->unitSystem() == UnitSystem::Metric);
    // When nothing is to move, nobody misses the time.
    const bool isUnderWay = !vehicle.isOver() && (vehicle.wantedSpeed() != 0.0 || vehicle.currentSpeed() != 0.0);
    window->statusBar()->setPaused(isUnderWay && simulation->timeFactor() == 0.0);
}

void MapDisplay::frameField()
{
    const QRectF used = maps->boundsInUse();
    if (used.isNull() || used == framedBounds)
        return;
    framedBounds = used;
    simulation->vehicle()->setArea(used);
    window->fieldView()->frame(used);
}
