#pragma once

#include "drivepath.h"
#include "drivetally.h"
#include "result.h"
#include "swathplan.h"

#include <QRectF>

#include <functional>
#include <map>
#include <vector>

class Simulation;

/// Drives a whole field at once and adds up the results.
class FieldDrive {
public:
    /// Metres per second.
    static constexpr double usualSpeed = 3.0;
    /// Milliseconds between the look-ahead times that are tried.
    static constexpr int lookAheadStep = 100;

    /// Median lateness of a product's changes (seconds) by look-ahead time (milliseconds).
    using Curve = std::map<int, double>;
    /// Called now and then with how much of the whole is done, 0 to 1; false ends it there.
    using Progress = std::function<bool(double)>;

    /// How a machine of the simulation's size drives.
    static SwathOptions usualOptions(const Simulation &simulation);
    /// The field of the loaded prescriptions that share a plane with the active product's; empty without any.
    static FieldArea field(const Simulation &simulation);
    /// A way over that field, or the reason why there is none.
    static Result<DrivePath> plan(const Simulation &simulation, const SwathOptions &options);

    /// Puts the machine at the path's start. `simulation` is not owned and outlives the drive.
    FieldDrive(Simulation *simulation, DrivePath path);

    /// What a machine of the simulation's size can pass over while the implement is down, metres of the local plane.
    QRectF workedBounds() const;
    /// Drives from the path's start to its end.
    void run(const Progress &progress = {});
    /// Drives with one look-ahead time after the other for all products, in steps near the best and coarser around:
    /// the curves by product. The settings are afterwards as before.
    std::vector<Curve> tune(const Progress &progress = {});
    /// The look-ahead time that puts the changes nearest to the borders, milliseconds; -1 for an empty curve.
    static int best(const Curve &curve);

private:
    Simulation *simulation;
    DrivePath path;
};
