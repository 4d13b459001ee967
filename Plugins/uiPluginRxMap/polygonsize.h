#pragma once

#include "vertexbank.h"

class HolePlacement;
struct RingLists;

/// Triangles of the largest bank that a list holds, its head left free. No more room than that is asked for.
constexpr int mostTriangles = (0x7FFFFFFF - 256) / static_cast<int>(3 * sizeof(Vertex));

/// How much room the tessellation of a polygon needs.
struct PolygonSize {
    int vertices;  ///< Of the outer ring and the holes cut from it.
    int triangles; ///< n + 2h - 2 for n vertices and h holes; at most that where rings do not cross.
};

PolygonSize polygonSize(const RingLists &rings, const HolePlacement &placement, int outer);
/// Triangles of the whole map, likewise.
int triangleCount(const RingLists &rings, const HolePlacement &placement);
