#pragma once

#include "Backend/prescriptionbackend.h"
#include "machine.h"
#include "productfile.h"
#include "simulation.h"

#include "Framework/databroker.h"

#include <QTemporaryDir>

/// A machine with its prescriptions and its time, without a display, for tests.
class MachineBench {
public:
    /// One zone of a map: from x to x, metres east of the map's middle, 400 m from south to north.
    struct Zone {
        double from;
        double to;
        double rate;
    };

    explicit MachineBench(const Products &products = ProductFile::standard(), UnitSystem units = UnitSystem::Metric);

    /// Loads zones that feed these products; they are to lie evenly around 0, else their middle becomes it.
    LoadReport loadZones(const QList<Zone> &zones, const QList<int> &products = {1});
    LoadReport load(const QString &path, const QStringList &columns);
    /// Writes the settings as the dialog does; `reInit` asks for the flags to be taken.
    void set(int product, int lookAheadMs, bool zeroRateShutoff, bool reInit);
    /// By hand on a straight line from there at that speed, at once.
    void place(const QPointF &place, double degrees, double speed);

    DataBroker broker;
    PrescriptionBackend backend{&broker};
    Machine machine;
    Simulation simulation{&machine, nullptr};

private:
    QTemporaryDir folder;
};
