#pragma once

#include <vector>

struct GeographicExtent;
struct RawPrescription;

/// Polygons that lie so far from the others of a map that their places must be wrong, such as those recorded after the
/// position was lost. With them, the map's plane would lie half-way between.
///
/// A polygon is far when any corner of its box is more than 100 km from the middle of the map: the median of all
/// polygons' centres, which few wrong places do not move. Those that touch the origin of the coordinates, where lost
/// positions go, are strays however many they are. Others are strays when there is a single one among at least three
/// polygons, or when they are at most a tenth of all: a map of two halves far from each other has no strays.
class StrayPolygons {
public:
    /// False for the extent of a map that is too small to have strays.
    static bool mayBeWithin(const GeographicExtent &extent);
    /// Removes them from a map that may have some, or that has no place on the earth; returns the record of each.
    static std::vector<int> remove(RawPrescription &map);
};
