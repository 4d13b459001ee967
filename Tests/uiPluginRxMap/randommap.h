#pragma once

#include "maphost.h"

#include <random>

/// How random rings are made.
struct RandomKind {
    double grid = 0.0;      ///< Coordinates are multiples of this; 0: any.
    double offset = 0.0;    ///< Far from the origin, narrowing to float moves vertices.
    bool oddValues = false; ///< NaN, infinities, huge and tiny numbers among the coordinates.
    bool nested = false;    ///< Stars inside stars instead of tangles.
    double scale = 1.0;
};

Q_DECLARE_METATYPE(RandomKind)

/// A few outer rings and holes, some with an area that is not theirs; the same for the same seed.
class RandomMap {
public:
    RandomMap(const RandomKind &kind, unsigned int seed);

    PolygonChain chain;

private:
    int below(int limit) { return static_cast<int>(random() % static_cast<unsigned int>(limit)); }
    double coordinate(double value);
    Ring tangle();
    Ring star();

    RandomKind kind;
    std::mt19937 random;
};

/// Adds a row "kind" of RandomKind for every sort of trouble that rings can make.
void addRandomKinds();
