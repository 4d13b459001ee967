#pragma once

#include "handmadechain.h"
#include "mapstatistics.h"

#include <random>
#include <vector>

/// What the rings of a random map are.
enum class RandomRings {
    Tangles,   ///< A few vertices anywhere.
    Stars,     ///< Many vertices around a centre, so that rings lie inside one another.
    Nudged,    ///< Stars; holes are drawn from outer rings, their vertices beside a line by less than a float tells.
    Sectors,   ///< Pieces of one star in three sizes: they share edges, vertices and the centre.
    Touching,  ///< Stars; holes are drawn from outer rings and have about half of their vertices.
    Clustered, ///< Stars; holes are small and similar to an outer ring, with one of its vertices.
    Copies,    ///< Outer rings all equal; holes too, and as in Touching.
};

/// Where there are NaN, infinities, huge and tiny numbers among the coordinates.
enum class OddNumbers { None, AnyCoordinate, OneVertexOfFewRings };

/// How random rings are made.
struct RandomKind {
    RandomRings rings = RandomRings::Tangles;
    OddNumbers odd = OddNumbers::None;
    double grid = 0.0;   ///< Coordinates are multiples of this; 0: any.
    double offset = 0.0; ///< Far from the origin, narrowing to float moves vertices.
    double scale = 1.0;
    double flatness = 1.0;      ///< Divides heights.
    bool holesAreSmall = false; ///< All are said to be so much smaller than they are that any outer ring may take them.
};

Q_DECLARE_METATYPE(RandomKind)

/// So many of a kind's maps, of the seeds from 1 on, are counted; the others are made in the same way.
constexpr unsigned int countedMaps = 100;

/// A few outer rings and holes, some with an area that is not theirs or without rates; the same for the same seed.
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
    std::vector<Star> models; ///< What further rings are made from.
};

/// Adds a row for every sort of trouble that rings can make: a RandomKind "kind", and MapStatistics::Counts "least" of
/// what its first countedMaps maps hold.
void addRandomKinds();
