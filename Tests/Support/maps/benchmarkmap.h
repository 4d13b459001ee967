#pragma once

#include "Framework/rxpolygon.h"

#include <string>
#include <vector>

/// A prescription map in memory, as a back-end publishes it: a chain of rings, each outer ring before its holes.
class BenchmarkMap {
public:
    explicit BenchmarkMap(std::string name);
    BenchmarkMap(BenchmarkMap &&) = default;
    BenchmarkMap &operator=(BenchmarkMap &&) = default;

    using Ring = std::vector<OrvikTypes::RX_POLYGONVERTEX>;

    /// Adds a ring; its area is taken from it.
    void add(Ring ring, float rate, bool isHole);
    /// Links the records; call once, after the last ring.
    void finish();

    const std::string &name() const { return mapName; }
    OrvikTypes::RX_POLYGON *chain() { return polygons.data(); }
    /// Outer ring number `index` of the chain, from 0.
    const OrvikTypes::RX_POLYGON &outer(std::size_t index) const { return polygons[outerPositions[index]]; }
    unsigned int count() const { return static_cast<unsigned int>(polygons.size()); }
    unsigned int outers() const { return static_cast<unsigned int>(outerPositions.size()); }
    unsigned int holes() const { return count() - outers(); }
    std::size_t vertices() const { return vertexCount; }

private:
    std::string mapName;
    std::vector<Ring> rings;
    std::vector<float> rates;
    std::vector<OrvikTypes::RX_POLYGON> polygons;
    std::vector<std::size_t> outerPositions;
    std::size_t vertexCount = 0;
};
