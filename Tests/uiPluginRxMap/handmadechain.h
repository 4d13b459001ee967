#pragma once

#include "Framework/rxpolygon.h"

#include <deque>
#include <vector>

/// A ring as a list of x, y pairs.
using Ring = std::vector<OrvikTypes::RX_POLYGONVERTEX>;

Ring square(double left, double bottom, double size);
/// Signed area by the shoelace formula (Meister 1769), counter-clockwise positive, square metres.
double shoelaceArea(const Ring &ring);

/// Builds and owns a chain of polygon records.
class HandMadeChain {
public:
    /// Adds an outer ring with one rate per mapping; the area is set to the ring's own.
    OrvikTypes::RX_POLYGON &addOuter(const Ring &ring, std::vector<float> rates = {1.0F});
    OrvikTypes::RX_POLYGON &addHole(const Ring &ring);
    OrvikTypes::RX_POLYGON *first();
    unsigned int count() const { return static_cast<unsigned int>(polygons.size()); }
    OrvikTypes::RX_POLYGON &at(unsigned int index) { return polygons.at(index); }

private:
    OrvikTypes::RX_POLYGON &add(const Ring &ring, std::vector<float> rates, bool isHole);

    std::deque<Ring> rings;
    std::deque<std::vector<float>> rateLists;
    std::deque<OrvikTypes::RX_POLYGON> polygons;
};
