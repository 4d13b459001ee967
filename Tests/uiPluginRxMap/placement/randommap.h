#pragma once

#include "handmadechain.h"
#include "mapstatistics.h"

#include <random>
#include <vector>

/// What kind of rings a random map has.
enum class RandomRings {
    Tangles,   ///< A few vertices anywhere.
    Stars,     ///< Many vertices around a centre, so that rings may lie inside one another.
    Nudged,    ///< Stars; holes are made from outer rings, with vertices beside a line by less than a float can tell.
    Sectors,   ///< Pieces of one star in three sizes: they share edges, vertices and the centre.
    Touching,  ///< Stars; holes are made from outer rings and share about half of their vertices.
    Clustered, ///< Stars; holes are small and similar to an outer ring, and share one of its vertices.
    Copies,    ///< All outer rings are equal; so are the holes, made as in Touching.
};

/// Where NaN, infinities, huge and tiny numbers stand among the coordinates.
enum class OddNumbers { None, AnyCoordinate, OneVertexOfFewRings };

/// How random rings are made.
struct RandomKind {
    RandomRings rings = RandomRings::Tangles;
    OddNumbers odd = OddNumbers::None;
    double grid = 0.0;   ///< Coordinates are multiples of this; 0: any coordinates.
    double offset = 0.0; ///< Far from the origin, narrowing to float moves vertices.
    double scale = 1.0;
    double flatness = 1.0;      ///< Divides heights.
    bool holesAreSmall = false; ///< Holes claim such small areas that any outer ring may take them.
};

Q_DECLARE_METATYPE(RandomKind)

/// This many maps of each kind, those with seeds from 1 on, are counted; the others are made the same way.
constexpr unsigned int countedMaps = 100;

/// A few outer rings and holes, some with a wrong area or without rates; the same seed gives the same map.
class RandomMap {
public:
    RandomMap(const RandomKind &kind, unsigned int seed);

    HandMadeChain chain;

private:
    struct Star {
        OrvikTypes::RX_POLYGONVERTEX centre;
        Ring ring;
    };

    int below(int limit) { return static_cast<int>(random() % static_cast<unsigned int>(limit)); }
    double coordinate(double value) const;
    OrvikTypes::RX_POLYGONVERTEX place(double x, double y) const
    {
        return {coordinate(x), coordinate(y / kind.flatness)};
    }
    double oddNumber();
    float rate();
    Ring nextRing(bool isHole);
    Ring tangle();
    Star star();
    Ring holeOf(const Star &outer);
    Ring nudgedHole(const Star &outer);
    Ring touchingHole(const Star &outer);
    Ring clusteredHole(const Star &outer);
    OrvikTypes::RX_POLYGONVERTEX nudged(const OrvikTypes::RX_POLYGONVERTEX &vertex);
    Ring sector(const Star &whole);
    void spoil(Ring &ring);

    RandomKind kind;
    std::mt19937 random;
    std::vector<Star> models; ///< What other rings are made from.
};

/// Adds a row for every difficulty that rings can bring: a RandomKind "kind", and MapStatistics::Counts "least" of what
/// its first countedMaps maps contain.
void addRandomKinds();
