#pragma once

#include "benchmarkmap.h"

#include "Framework/databroker.h"

class DbGroupRxMap;
class RxMap3D;

/// A host with one prescription group, and the drawable bound to it.
class BenchmarkHost {
public:
    explicit BenchmarkHost(BenchmarkMap &map);
    ~BenchmarkHost();

    RxMap3D &drawable() { return *rxMap3D; }
    DbGroupRxMap &group() { return *rxMapGroup; }
    /// Vertices built, three per triangle.
    int bankVertices() const;

private:
    DataBroker broker;
    DbGroupRxMap *rxMapGroup;
    RxMap3D *rxMap3D;
};

/// The legend of the maps: one colour for every 30 units of rate, from 0 to 180.
QList<OrvikTypes::RX_RATECOLOR> benchmarkLegend();
