#pragma once

#include <QtGlobal>

// What placing holes costs, counted only where a program that watches it is built with RXMAP_COUNT_PLACEMENT; elsewhere
// nothing of it is left.

#ifdef RXMAP_COUNT_PLACEMENT
struct PlacementCost {
    quint64 edgeTests = 0;     ///< Edges of outer rings looked at for a point.
    quint64 boxVisits = 0;     ///< Boxes of holes looked at for an outer ring, of one hole or of many.
    quint64 rasterEntries = 0; ///< Cells of rasters, and edges listed in them.
};

/// Of all placements so far; the program that counts has it.
extern PlacementCost placementCost;

inline void countEdgeTest()
{
    ++placementCost.edgeTests;
}

inline void countBoxVisit()
{
    ++placementCost.boxVisits;
}

inline void countRasterEntries(int entries)
{
    placementCost.rasterEntries += static_cast<quint64>(entries);
}
#else
inline void countEdgeTest() { }
inline void countBoxVisit() { }
inline void countRasterEntries(int /*entries*/) { }
#endif
