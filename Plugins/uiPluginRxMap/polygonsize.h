#pragma once

class HolePlacement;
struct RingLists;

/// How much room the tessellation of a polygon needs.
struct PolygonSize {
    int vertices;  ///< Of the outer ring and the holes cut from it.
    int triangles; ///< n + 2h - 2 for n vertices and h holes; at most that where rings do not cross.
};

PolygonSize polygonSize(const RingLists &rings, const HolePlacement &placement, int outer);
/// Triangles of the whole map, likewise.
int triangleCount(const RingLists &rings, const HolePlacement &placement);
