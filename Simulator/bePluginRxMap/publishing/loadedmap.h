#pragma once

#include "Backend/loadreport.h"
#include "localplane.h"
#include "polygonchain.h"
#include "ratelookup.h"

#include <QStringList>

#include <memory>

/// A prescription that is ready to be published, or the reason why there is none.
struct LoadedMap {
    /// Its group is still to be named.
    LoadReport report;
    LocalPlane plane;
    /// Rate channel of each mapping, as in report.columns.
    QStringList rateCalNames;
    /// Default rate of each mapping, base units.
    QList<double> defaultRates;
    /// Names of the machine's products.
    QStringList productNames;
    /// Null when report.error says why. The look-up refers to the chain.
    std::unique_ptr<PolygonChain> chain;
    std::unique_ptr<RateLookup> lookup;
};
