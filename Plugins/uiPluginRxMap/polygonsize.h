#pragma once

class HolePlacement;
struct RingLists;

/// How much room the tessellation of a polygon needs.
struct PolygonSize {
    int vertices;  ///< Of the outer ring and the holes cut from it.
    int triangles; ///< At most: a polygon of n vertices with h holes has n + 2h - 2.
};

PolygonSize polygonSize(const RingLists &rings, const HolePlacement &placement, int outer);
/// Triangles of the whole map, at most.
int triangleCount(const RingLists &rings, const HolePlacement &placement);
