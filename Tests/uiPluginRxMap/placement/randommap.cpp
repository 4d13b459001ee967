#include "randommap.h"

#include <QtTest>

#include <cmath>
#include <limits>

using OrvikTypes::RX_POLYGON;
using OrvikTypes::RX_POLYGONVERTEX;

namespace {

RX_POLYGONVERTEX between(const RX_POLYGONVERTEX &from, const RX_POLYGONVERTEX &to, double share)
{
    return {from.x + (to.x - from.x) * share, from.y + (to.y - from.y) * share};
}

using Rings = RandomRings;
using Odd = OddNumbers;
using Statistics = MapStatistics;

void add(const char *name, const RandomKind &kind, const MapStatistics::Counts &least)
{
    QTest::newRow(name) << kind << least;
}

void addSingleRings()
{
    const MapStatistics::Counts notOrdinary{{Statistics::CutHole, 80}, {Statistics::HoleInOddRing, 80}};
    add("tangles", {Rings::Tangles}, {{Statistics::CutHole, 10}});
    add("tangles on a grid", {Rings::Tangles, Odd::None, 2.0},
        {{Statistics::CutHole, 10}, {Statistics::PointOnLine, 50}});
    add("tangles with odd values", {Rings::Tangles, Odd::AnyCoordinate, 1.0},
        {{Statistics::CutHole, 15}, {Statistics::HoleInOddRing, 10}});
    add("nested", {Rings::Stars}, {{Statistics::CutHole, 80}});
    add("nested on a grid", {Rings::Stars, Odd::None, 1.0},
        {{Statistics::CutHole, 80}, {Statistics::PointOnLine, 400}, {Statistics::HolesThatTouch, 15}});
    add("nested far away", {Rings::Stars, Odd::None, 0.0, 3.3e8}, {{Statistics::CutHole, 60}});
    add("nested with odd values", {Rings::Stars, Odd::AnyCoordinate},
        {{Statistics::CutHole, 4}, {Statistics::HoleInOddRing, 3}});
    add("nested with few odd values", {Rings::Stars, Odd::OneVertexOfFewRings},
        {{Statistics::CutHole, 70}, {Statistics::OddHole, 5}, {Statistics::HoleInOddRing, 5}});
    add("nested and minute", {Rings::Stars, Odd::None, 0.0, 0.0, 1e-170}, {{Statistics::CutHole, 80}});
    add("nested and all but nothing", {Rings::Stars, Odd::None, 0.0, 0.0, 1e-200}, notOrdinary);
    add("nested and next to nothing", {Rings::Stars, Odd::None, 0.0, 0.0, 1e-300}, notOrdinary);
}

void addRelatedRings()
{
    const MapStatistics::Counts narrowed{{Statistics::CutHole, 120}, {Statistics::PointNarrowedOntoLine, 150}};
    add("narrowed onto lines", {Rings::Nudged, Odd::None, 1.0}, narrowed);
    add("narrowed onto lines far away", {Rings::Nudged, Odd::None, 1.0, 1e6}, narrowed);
    add("sectors", {Rings::Sectors, Odd::None, 1.0},
        {{Statistics::CutHole, 100},
         {Statistics::PointOnLine, 2000},
         {Statistics::EdgeShared, 1500},
         {Statistics::HolesThatTouch, 80}});
    add("sectors with few odd values", {Rings::Sectors, Odd::OneVertexOfFewRings, 1.0},
        {{Statistics::CutHole, 60},
         {Statistics::EdgeShared, 1500},
         {Statistics::OddHole, 4},
         {Statistics::HoleInOddRing, 3}});
}

void addTouchingRings()
{
    const MapStatistics::Counts decided{{Statistics::CutHole, 20}, {Statistics::PlacedByNarrowing, 20}};
    add("touching", {Rings::Touching, Odd::None, 0.0, 0.0, 1.0, 1.0, true}, decided);
    add("touching far away", {Rings::Touching, Odd::None, 0.0, 5e5, 1.0, 1.0, true}, decided);
    add("touching and minute", {Rings::Touching, Odd::None, 0.0, 0.0, 1e-6, 1.0, true}, decided);
    add("touching and thin", {Rings::Touching, Odd::None, 0.0, 0.0, 1.0, 1e4, true}, decided);
    add("clustered at vertices", {Rings::Clustered, Odd::None, 0.0, 0.0, 1.0, 1.0, true},
        {{Statistics::CutHole, 20}, {Statistics::PlacedByNarrowing, 12}});
    add("equal copies", {Rings::Copies, Odd::None, 0.0, 0.0, 1.0, 1.0, true}, decided);
}

} // namespace

RandomMap::RandomMap(const RandomKind &givenKind, unsigned int seed)
    : kind(givenKind)
    , random(seed)
{
    const int rings = 2 + below(14);
    for (int i = 0; i < rings; ++i) {
        const bool isHole = below(2) == 1;
        Ring ring = nextRing(isHole);
        // The area before spoiling: a ring whose area is not a number would never be compared with another.
        const double area = ring.empty() ? 0.0 : std::fabs(shoelaceArea(ring));
        spoil(ring);
        RX_POLYGON &polygon = isHole ? chain.addHole(ring) : chain.addOuter(ring, {rate()});
        polygon.area = area;
        if (below(4) == 0)
            polygon.area = 100.0 * below(4);
        if (isHole && kind.holesAreSmall)
            polygon.area -= 20.0;
        if (kind.odd != OddNumbers::None && below(8) == 0)
            polygon.area = oddNumber();
        if (!isHole && below(8) == 0)
            polygon.rates = nullptr;
    }
}

float RandomMap::rate()
{
    if (below(16) == 0)
        return std::numeric_limits<float>::quiet_NaN();
    return 10.0F * static_cast<float>(below(12)) - 20.0F;
}

Ring RandomMap::nextRing(bool isHole)
{
    switch (kind.rings) {
    case RandomRings::Tangles:
        return tangle();
    case RandomRings::Stars:
        return star().ring;
    case RandomRings::Nudged:
    case RandomRings::Touching:
    case RandomRings::Clustered:
        if (isHole && !models.empty())
            return holeOf(models[static_cast<std::size_t>(below(static_cast<int>(models.size())))]);
        models.push_back(star());
        return models.back().ring;
    case RandomRings::Copies:
        if (models.empty()) {
            models.push_back(star());
            models.push_back({{}, touchingHole(models.front())});
        }
        return models[isHole ? 1 : 0].ring;
    case RandomRings::Sectors:
        if (models.empty())
            models.push_back(star());
        return sector(models.front());
    }
    return {};
}

double RandomMap::oddNumber()
{
    static const double odd[] = {std::numeric_limits<double>::quiet_NaN(),
                                 std::numeric_limits<double>::infinity(),
                                 -std::numeric_limits<double>::infinity(),
                                 1e300,
                                 -1e200,
                                 1e-300,
                                 5e-324,
                                 1e39};
    return odd[below(8)];
}

double RandomMap::coordinate(double value) const
{
    return kind.scale * ((kind.grid > 0.0 ? std::round(value / kind.grid) * kind.grid : value) + kind.offset);
}

Ring RandomMap::tangle()
{
    std::uniform_real_distribution<double> position(-20.0, 20.0);
    Ring ring(static_cast<std::size_t>(below(9)));
    for (auto &vertex : ring)
        vertex = {coordinate(position(random)), coordinate(position(random))};
    return ring;
}

RandomMap::Star RandomMap::star()
{
    std::uniform_real_distribution<double> position(-12.0, 12.0);
    const double x = position(random);
    const double y = position(random);
    const double radius = 1.0 + below(30);
    const int vertices = 3 + below(80);
    Star made{place(x, y), {}};
    for (int i = 0; i < vertices; ++i) {
        const double angle = 6.28318530717958648 * i / vertices;
        const double reach = radius * (0.8 + 0.02 * below(10));
        made.ring.push_back(place(x + reach * std::cos(angle), y + reach * std::sin(angle)));
    }
    return made;
}

Ring RandomMap::holeOf(const Star &outer)
{
    if (kind.rings == RandomRings::Nudged)
        return nudgedHole(outer);
    return kind.rings == RandomRings::Clustered ? clusteredHole(outer) : touchingHole(outer);
}

// Few vertices only: with many on the ring, narrowing would nearly always put one of them outside.
Ring RandomMap::touchingHole(const Star &outer)
{
    Ring hole;
    const int vertices = static_cast<int>(outer.ring.size());
    for (int i = 0, from = below(vertices); i < 4; ++i) {
        const RX_POLYGONVERTEX &vertex = outer.ring[static_cast<std::size_t>((from + i * vertices / 4) % vertices)];
        hole.push_back(between(outer.centre, vertex, below(2) == 0 ? 1.0 : 0.5));
    }
    return hole;
}

Ring RandomMap::clusteredHole(const Star &outer)
{
    const RX_POLYGONVERTEX &shared = outer.ring[static_cast<std::size_t>(below(static_cast<int>(outer.ring.size())))];
    const double share = 0.01 * (1 + below(5));
    Ring hole;
    for (const RX_POLYGONVERTEX &vertex : outer.ring)
        hole.push_back(between(shared, vertex, share));
    return hole;
}

// A smaller star with as many vertices, about two of which are vertices of the outer ring or lie in the middle of its
// edges. A float can hold those coordinates, while the outer ring's are small multiples of the grid.
Ring RandomMap::nudgedHole(const Star &outer)
{
    const int vertices = static_cast<int>(outer.ring.size());
    const double share = 0.2 + 0.07 * below(10);
    Ring hole;
    for (std::size_t i = 0; i < outer.ring.size(); ++i) {
        const RX_POLYGONVERTEX &vertex = outer.ring[i];
        if (below(vertices) == 0)
            hole.push_back(nudged(vertex));
        else if (below(vertices) == 0)
            hole.push_back(nudged(between(vertex, outer.ring[(i + 1) % outer.ring.size()], 0.5)));
        else
            hole.push_back(between(outer.centre, vertex, share));
    }
    return hole;
}

/// The vertex, or one beside it at less than half the distance between neighbouring floats there.
RX_POLYGONVERTEX RandomMap::nudged(const RX_POLYGONVERTEX &vertex)
{
    const double x = 2e-8 * (below(3) - 1);
    const double y = 2e-8 * (below(3) - 1);
    return {vertex.x * (1.0 + x), vertex.y * (1.0 + y)};
}

// Halves and quarters are exact, so that pieces of one size share edges and vertices to the last bit.
Ring RandomMap::sector(const Star &whole)
{
    const int vertices = static_cast<int>(whole.ring.size());
    const int from = below(vertices);
    const int taken = below(2) == 0 ? vertices : 1 + below(vertices);
    const double share = 1.0 / (1 << below(3));
    Ring ring;
    if (taken < vertices)
        ring.push_back(whole.centre);
    for (int i = 0; i < taken; ++i)
        ring.push_back(between(whole.centre, whole.ring[static_cast<std::size_t>((from + i) % vertices)], share));
    return ring;
}

void RandomMap::spoil(Ring &ring)
{
    if (kind.odd == OddNumbers::AnyCoordinate) {
        for (auto &vertex : ring) {
            vertex.x = below(12) == 0 ? oddNumber() : vertex.x;
            vertex.y = below(12) == 0 ? oddNumber() : vertex.y;
        }
    }
    if (kind.odd == OddNumbers::OneVertexOfFewRings && !ring.empty() && below(8) == 0) {
        RX_POLYGONVERTEX &vertex = ring[static_cast<std::size_t>(below(static_cast<int>(ring.size())))];
        (below(2) == 0 ? vertex.x : vertex.y) = oddNumber();
    }
}

void addRandomKinds()
{
    QTest::addColumn<RandomKind>("kind");
    QTest::addColumn<MapStatistics::Counts>("least");
    addSingleRings();
    addRelatedRings();
    addTouchingRings();
}
