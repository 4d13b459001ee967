#pragma once

#include "geoscontext.h"
#include "planering.h"
#include "rawprescription.h"

#include <vector>

/// Makes polygons of the rings of a map that a renderer without any repair of its own can draw: on a grid, without
/// repeated vertices, no ring crossing itself or another.
///
/// The grid is a power of two of a metre, so that each coordinate is a single-precision number exactly and the products
/// of two differences are exact as well: what the renderer narrows stays where it is, and no rounding can make it see a
/// crossing where two edges only meet.
class RingRepair {
public:
    struct Outcome {
        std::vector<PlanePolygon> polygons;
        /// For each polygon whose rings cross or touch themselves or each other in the file its record.
        std::vector<int> repaired;
        /// For each ring that encloses nothing on the grid, or that could not be repaired, its record.
        std::vector<int> dropped;
        /// For each hole that lies beside its outer ring, and so cuts nothing, its record.
        std::vector<int> looseHoles;
        /// Records of the polygons that were left out because their rings meet more than `mostCrossings` times.
        std::vector<int> tangled;
    };

    /// A repair of so many crossings takes about ten seconds and 800 MB; no map that was drawn has as many in one
    /// polygon.
    static constexpr size_t mostCrossings = 200000;

    /// `maxCoordinate`: greatest absolute coordinate of the map, metres. `rings` is where the rings live, those that
    /// were repaired excepted; it is not owned, and outlives them.
    explicit RingRepair(double maxCoordinate, std::pmr::memory_resource *rings = std::pmr::get_default_resource());

    double grid() const { return gridSize; }
    /// `xs` and `ys` are the map's coordinates in metres, in the order of the file's own ones, which are in `map`.
    /// `firstRing` is an outer ring; it and the holes behind it are taken. Returns the ring behind those.
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
