#pragma once

#include "Framework/dbgroupproductgroupinfo.h"

#include <QPointF>
#include <QString>

#include <optional>

/// What a load has to know of one product of the machine.
struct MachineProduct {
    QString name;
    /// Name of its product group, which is also its rate channel.
    QString rateCalName;
    DbGroupProductGroupInfo::RateKind kind = DbGroupProductGroupInfo::UnknownRate;
    /// The rate in use where the prescription gives none, base units.
    double defaultRate = 0.0;
    /// Whether a prescription may drive it.
    bool isDriven = true;
    /// Whether another of the files that are opened together feeds it. Likely columns go to the other products first.
    bool isFed = false;
    /// Converts its rates from base units to the operator's, in which legends have round limits and tell rates apart.
    double displayFactor = 1.0;
    /// Origin (LoadReport::origin) of the plane of the open map from another file that feeds it; empty where none does.
    std::optional<QPointF> inUseAt = {};
};
