#pragma once

#include "benchmarkmap.h"

/// A field of side × side square cells of 10 m, each with a rate of its own.
BenchmarkMap gridMap(const std::string &name, int side);
/// How a zone map is grown.
struct ZoneKind {
    int side;        ///< Samples along an edge of the field, 5 m apart.
    int smoothing;   ///< Radius, in samples, over which white noise is averaged twice; its quantiles bound the zones.
    int classes;     ///< Of equal share.
    double speckles; ///< Share of samples that are drawn again, into two classes of their own below the others.
    unsigned int seed;
};

/// Zones of equal class in a field of noise. The rings of one class follow each other, as in a file with one record for
/// each rate.
BenchmarkMap zoneMap(const std::string &name, const ZoneKind &kind);
/// One ring of `vertices` vertices around `holes` holes.
BenchmarkMap ringMap(const std::string &name, int vertices, int holes);
