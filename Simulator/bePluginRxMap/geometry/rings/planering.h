#pragma once

#include "Framework/rxpolygon.h"

#include <memory_resource>
#include <vector>

/// A vertex of the local plane, metres: x east, y north.
using PlaneVertex = OrvikTypes::RX_POLYGONVERTEX;
/// A ring, closed implicitly from the last vertex to the first. A ring that is moved keeps its memory; a copy has its
/// own.
using PlaneRing = std::pmr::vector<PlaneVertex>;

/// A straight line between two vertices.
struct PlaneEdge {
    PlaneVertex from;
    PlaneVertex to;
};

/// A polygon of one record: an outer ring and the holes cut out of it.
struct PlanePolygon {
    PlaneRing outer;
    std::vector<PlaneRing> holes;
    /// Record of the source file, from 0.
    int record = -1;
};

inline bool samePlace(const PlaneVertex &a, const PlaneVertex &b)
{
    return a.x == b.x && a.y == b.y;
}

/// Twice the signed area of the triangle a, b, c; positive when it turns left. Exact for vertices on the plane's grid.
inline double turn(const PlaneVertex &a, const PlaneVertex &b, const PlaneVertex &c)
{
    return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
}

/// Square metres; positive when the ring runs counter-clockwise, 0 for fewer than three vertices.
double signedArea(const PlaneRing &ring);
/// Square metres, whichever way the ring runs.
double ringArea(const PlaneRing &ring);
/// Square metres: the outer ring's area less the holes'.
double polygonArea(const PlanePolygon &polygon);

/// Drops each vertex that repeats the one before it, and the closing vertex. A ring that encloses nothing is left with
/// fewer than three.
void dropRepeatedVertices(PlaneRing &ring);

/// Whether the segments a-b and c-d have any point in common. Exact for vertices on the plane's grid.
bool segmentsMeet(const PlaneVertex &a, const PlaneVertex &b, const PlaneVertex &c, const PlaneVertex &d);
/// Whether `point` lies on the segment a-b, ends included. Exact for vertices on the plane's grid.
bool liesOnSegment(const PlaneVertex &point, const PlaneVertex &a, const PlaneVertex &b);
/// Whether the ring turns the same way at each vertex, and around once; no edge meets another then. Exact for vertices
/// on the plane's grid.
bool isConvexRing(const PlaneRing &ring);
/// Whether no edge of the ring meets another but at the vertex between them. Compares every pair of edges, so it suits
/// short rings only.
bool isSimpleRing(const PlaneRing &ring);
