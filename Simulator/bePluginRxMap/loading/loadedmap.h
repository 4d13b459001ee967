#pragma once

#include "Backend/loadreport.h"
#include "localplane.h"
#include "polygonchain.h"
#include "ratecheck.h"
#include "ratelookup.h"

#include <QStringList>

#include <memory>
#include <vector>

/// What a check examines.
struct CheckInput {
    std::shared_ptr<const PolygonChain> chain;
    /// Record of each outer ring of the chain.
    std::vector<int> records;
    /// Holes that became part of their outer rings.
    std::vector<PlaneRing> joinedHoles;
    /// One per mapping.
    std::vector<RateCheck::Column> columns;
};

/// A prescription that is ready to be published, or the reason why there is none.
struct LoadedMap {
    /// Its group has no name yet.
    LoadReport report;
    LocalPlane plane;
    /// Rate channel of each mapping, as in report.columns.
    QStringList rateCalNames;
    /// Default rate of each mapping, base units.
    QList<double> defaultRates;
    /// Names of the machine's products.
    QStringList productNames;
    /// Null on failure, for the reason in report.error. The look-up refers to the chain.
    std::shared_ptr<PolygonChain> chain;
    std::unique_ptr<RateLookup> lookup;
    /// As in CheckInput.
    std::vector<int> records;
    std::vector<PlaneRing> joinedHoles;
    std::vector<RateCheck::Column> columns;

    CheckInput checkInput() const { return {chain, records, joinedHoles, columns}; }
};
