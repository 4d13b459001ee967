#pragma once

#include "benchmarkmap.h"

#include <functional>
#include <string>
#include <vector>

/// A way to make maps of one kind in any size.
struct MapKind {
    std::string name;
    std::function<BenchmarkMap(int rings)> make; ///< About this many rings, outer ones and holes together.
};

/// Square cells; zones grown from smooth noise, from rough noise, and specks in one piece of ground.
std::vector<MapKind> mapKinds();

struct NamedMap {
    std::string name;
    std::function<BenchmarkMap()> make;
};

/// The maps on which rebuilds are measured: 100,000 cells, smooth and rough zones in three sizes, one large ring.
std::vector<NamedMap> rebuildMaps();
/// The largest of the rough zones, and one with twice as many rings: nearly all holes lie in zones that come late in
/// the chain.
std::vector<NamedMap> manyHolesMaps();
