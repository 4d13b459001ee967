#pragma once

#include "Backend/prescriptionbackend.h"
#include "drivepath.h"
#include "machine.h"
#include "simulation.h"

#include "Framework/databroker.h"

#include <QPointF>
#include <QString>

#include <vector>

class DbGroupRxMap;

/// A machine with three products, each with a look-ahead of its own, on the way over a map.
class DrivingBench {
public:
    static constexpr int products = 3;

    /// Feeds each product from the map's likely columns, starting over with the first where there are too few.
    explicit DrivingBench(const QString &path);

    /// Puts the machine at the way's start and sets it going (metres per second).
    void begin(double speed);
    /// Takes that many steps and returns the places at which they asked, in turn.
    std::vector<QPointF> askedPlaces(int steps);

    Simulation &simulated() { return simulation; }
    DbGroupRxMap &map() { return *group; }
    /// Metres.
    double wayLength() const { return way.length(); }
    int polygons() const { return polygonCount; }
    QPointF origin() const { return planeOrigin; }

private:
    DataBroker broker;
    PrescriptionBackend backend{&broker};
    Machine machine;
    Simulation simulation{&machine, nullptr};
    DbGroupRxMap *group = nullptr;
    DrivePath way;
    int polygonCount = 0;
    QPointF planeOrigin;
};
