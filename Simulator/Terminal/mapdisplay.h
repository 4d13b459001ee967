#pragma once

#include "loadedmaps.h"
#include "repaintthrottle.h"

#include <QObject>
#include <QRectF>

class DataBroker;
class Machine;
class PrescriptionBackend;
class Simulation;
class TerminalWindow;

/// Shows on the display what is loaded and how the vehicle moves: names, legend, boundary, the whole field when another
/// one comes into use, and a new drawing when a map's polygons change.
class MapDisplay : public QObject {
    Q_OBJECT

public:
    /// None is owned; all outlive this.
    MapDisplay(DataBroker *broker, Machine *machine, const LoadedMaps *maps, Simulation *simulation,
               TerminalWindow *window);

    /// Draws again: something may look different.
    void refresh();

private Q_SLOTS:
    void redrawMap();

private:
    void watchGroup(const QString &name);
    void followMaps();
    void showLegend();
    void showVehicle();
    void frameField();

    DataBroker *broker;
    Machine *machine;
    const LoadedMaps *maps;
    Simulation *simulation;
    TerminalWindow *window;
    QRectF framedBounds;
    RepaintThrottle viewPace;
};
