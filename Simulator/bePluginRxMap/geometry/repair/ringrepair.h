#pragma once

#include "geoscontext.h"
#include "planering.h"
#include "rawprescription.h"

#include <vector>

/// Makes polygons of a map's rings that a renderer without any repair of its own can draw: on a grid, without repeated
/// vertices, and with no ring crossing itself or another.
///
/// The grid is a power of two of a metre, so that each coordinate is exactly a single-precision number and products of
/// two differences are exact as well: a vertex stays in place when the renderer narrows it, and no rounding can make it
/// see a crossing where two edges only meet.
class RingRepair {
public:
    struct Outcome {
        std::vector<PlanePolygon> polygons;
        /// The record of each polygon whose rings cross or touch themselves or each other in the file.
        std::vector<int> repaired;
        /// The record of each ring that encloses nothing on the grid, or could not be repaired.
        std::vector<int> dropped;
        /// The record of each hole that lies beside its outer ring, and so cuts nothing.
        std::vector<int> looseHoles;
        /// Records of the polygons that were left out because their rings meet more than `mostCrossings` times.
        std::vector<int> tangled;
    };

    /// Repairing this many crossings takes about ten seconds and 800 MB; no map that somebody drew has as many in one
    /// polygon.
    static constexpr size_t mostCrossings = 200000;

    /// `maxCoordinate`: greatest absolute coordinate of the map, metres. `rings` is the memory of the rings, except
    /// repaired ones; it is not owned, and outlives them.
    explicit RingRepair(double maxCoordinate, std::pmr::memory_resource *rings = std::pmr::get_default_resource());

    double grid() const { return gridSize; }
    /// `xs` and `ys` are the map's coordinates in metres, in the order of the file's own, which are in `map`. Takes the
    /// outer ring `firstRing` and the holes that follow it; returns the ring after those.
    size_t append(const RawPrescription &map, const std::vector<double> &xs, const std::vector<double> &ys,
                  size_t firstRing, Outcome &outcome) const;

private:
    PlaneRing snapped(const std::vector<double> &xs, const std::vector<double> &ys, const SourceRing &ring) const;
    bool isValidInFile(const RawPrescription &map, size_t firstRing, size_t endRing) const;
    void appendRepaired(const PlanePolygon &polygon, Outcome &outcome) const;

    GeosContext geos;
    double gridSize;
    std::pmr::memory_resource *memory;
};
