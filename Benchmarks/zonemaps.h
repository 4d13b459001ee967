#pragma once

#include "benchmarkmap.h"

/// A field of side × side square cells of 10 m, each with a rate of its own.
BenchmarkMap gridMap(const std::string &name, int side);
/// How a zone map is grown.
struct ZoneKind {
    int side;          ///< Samples along an edge of the field, 5 m apart.
    int smoothing;     ///< Radius, in samples, over which white noise is averaged; 0 leaves it rough.
    double background; ///< Share of the field that the lowest class takes.
    int classes;       ///< The others share the rest evenly.
    unsigned int seed;
};

/// Zones of equal class in a field of noise.
BenchmarkMap zoneMap(const std::string &name, const ZoneKind &kind);
/// One ring of `vertices` vertices around `holes` holes.
BenchmarkMap ringMap(const std::string &name, int vertices, int holes);
