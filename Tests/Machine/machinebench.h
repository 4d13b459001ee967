#pragma once

#include "Backend/prescriptionbackend.h"
#include "machine.h"
#include "productfile.h"
#include "simulation.h"

#include "Framework/databroker.h"

#include <QTemporaryDir>

/// A machine with its prescriptions and its clock, without a display, for tests.
class MachineBench {
public:
    /// One zone of a map: from `from` to `to`, metres east of the map's middle, 400 m from south to north.
    struct Zone {
        double from;
        double to;
        double rate;
    };

    explicit MachineBench(const Products &products = ProductFile::standard(), UnitSystem units = UnitSystem::Metric);

    /// Loads zones whose column feeds these products; if they do not lie evenly around 0, their middle becomes 0.
    LoadReport loadZones(const QList<Zone> &zones, const QList<int> &products = {1},
                         const QString &column = QStringLiteral("A"));
    LoadReport load(const QString &path, const QStringList &columns);
    /// Writes the settings as the dialog does; `reInit` requests that the flags take effect.
    void set(int product, int lookAheadMs, bool zeroRateShutoff, bool reInit);
    /// Drives by hand, straight on from there at that speed, at once.
    void place(const QPointF &place, double degrees, double speed);

    DataBroker broker;
    PrescriptionBackend backend{&broker};
    Machine machine;
    Simulation simulation{&machine, nullptr};

private:
    QTemporaryDir folder;
};
