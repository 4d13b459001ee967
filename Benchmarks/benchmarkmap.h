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
    unsigned int count() const { return static_cast<unsigned int>(polygons.size()); }
    unsigned int outers() const { return outerCount; }
    unsigned int holes() const { return count() - outerCount; }
    std::size_t vertices() const { return vertexCount; }

private:
    std::string mapName;
    std::vector<Ring> rings;
    std::vector<float> rates;
    std::vector<OrvikTypes::RX_POLYGON> polygons;
    unsigned int outerCount = 0;
    std::size_t vertexCount = 0;
};
