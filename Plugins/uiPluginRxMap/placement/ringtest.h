#pragma once

#include "Framework/rxpolygon.h"

#include <cmath>
#include <limits>

/// Coordinates up to `maxOrdinary` cannot overflow in the edge arithmetic; heights from `minOrdinary` on lose less to
/// underflow than crossingMargin() allows for.
constexpr double maxOrdinary = 1e100;
constexpr double minOrdinary = 1e-180;

/// Whether crossingMargin() holds for edges that end at this vertex; false for NaN.
inline bool isOrdinary(const OrvikTypes::RX_POLYGONVERTEX &vertex)
{
    const double height = std::fabs(vertex.y);
    return std::fabs(vertex.x) <= maxOrdinary && (height == 0.0 || (height >= minOrdinary && height <= maxOrdinary));
}

/// How far, metres, the crossing that edgeToggles() computes can lie beside its edge, for a ring of ordinary vertices
/// between two abscissas: the rounding of five operations, and an underflow at the smallest height.
inline double crossingMargin(double leftmost, double rightmost)
{
    return 16.0 * std::numeric_limits<double>::epsilon() * (std::fabs(leftmost) + std::fabs(rightmost))
        + 1.0 / maxOrdinary;
}

/// Number of a ring's vertices; 0 for a ring without a vertex array, or with more vertices than an int can count.
inline int vertexCount(const OrvikTypes::RX_POLYGON &ring)
{
    const bool isPossible = ring.vertices != nullptr && ring.vertexCount <= 0x7FFFFFFFU;
    return isPossible ? static_cast<int>(ring.vertexCount) : 0;
}

/// Where the edge between the ring vertices `j` and `i`, which spans the height y, crosses it.
inline double edgeCrossing(const OrvikTypes::RX_POLYGONVERTEX &j, const OrvikTypes::RX_POLYGONVERTEX &i, double y)
{
    return (j.x - i.x) * (y - i.y) / (j.y - i.y) + i.x;
}

/// Whether the edge between the ring vertices `j` and `i` toggles the even-odd test of the point (x, y): it spans y
/// (lower end included, upper end not, so horizontal edges never count) and crosses that height right of x.
/// Every way of testing must agree with this to the last bit.
inline bool edgeToggles(const OrvikTypes::RX_POLYGONVERTEX &j, const OrvikTypes::RX_POLYGONVERTEX &i, double x,
                        double y)
{
    const bool spans = (i.y <= y && y < j.y) || (j.y <= y && y < i.y);
    return spans && edgeCrossing(j, i, y) > x;
}

/// Even-odd test against all edges of a ring; false for an empty ring.
inline bool isInsideRing(const OrvikTypes::RX_POLYGONVERTEX *vertices, int count, double x, double y)
{
    bool inside = false;
    for (int i = 0, j = count - 1; i < count; j = i++) {
        if (edgeToggles(vertices[j], vertices[i], x, y))
            inside = !inside;
    }
    return inside;
}

/// As edgeToggles(), for an edge of ordinary vertices: without NaN, one comparison for each end tells whether it spans
/// the height.
inline bool ordinaryEdgeToggles(const OrvikTypes::RX_POLYGONVERTEX &j, const OrvikTypes::RX_POLYGONVERTEX &i, double x,
                                double y)
{
    return (i.y <= y) != (j.y <= y) && edgeCrossing(j, i, y) > x;
}

/// As isInsideRing() but faster, for a ring of ordinary vertices.
inline bool isInsideOrdinaryRing(const OrvikTypes::RX_POLYGONVERTEX *vertices, int count, double x, double y)
{
    bool inside = false;
    for (int i = 0, j = count - 1; i < count; j = i++)
        inside ^= ordinaryEdgeToggles(vertices[j], vertices[i], x, y);
    return inside;
}
