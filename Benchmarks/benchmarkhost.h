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
    /// Vertices that were built, three a triangle.
    int bankVertices() const;

private:
    DataBroker broker;
    DbGroupRxMap *rxMapGroup;
    RxMap3D *rxMap3D;
};

/// The legend of the maps: a colour for each 30 of rate, from 0 to 180.
QList<OrvikTypes::RX_RATECOLOR> benchmarkLegend();
