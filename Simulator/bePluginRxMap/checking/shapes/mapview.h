#pragma once

#include "ringtree.h"

#include "Framework/rxpolygon.h"

#include <vector>

/// A loaded map as the check looks at it. The chain is not copied and outlives the view.
class MapView {
public:
    /// An outer ring and the holes that follow it in the chain.
    struct Polygon {
        const OrvikTypes::RX_POLYGON *outer;
        unsigned holes = 0;
        int record = -1;
        RingExtent extent;
    };

    /// `first` heads a chain in which each outer ring is followed by its own holes; `records` has the record of each
    /// outer ring; each has `mappings` rates. `joinedHoles`: holes that the chain has as parts of outer rings.
    MapView(const OrvikTypes::RX_POLYGON *first, const std::vector<int> &records, size_t mappings,
            const std::vector<PlaneRing> &joinedHoles = {});

    const std::vector<Polygon> &polygons() const { return list; }
    size_t mappings() const { return mappingCount; }
    const std::vector<PlaneRing> &joinedHoles() const { return joined; }
    /// Whether any mapping has a rate in both polygons, which then compete for the ground where they overlap.
    bool contend(const Polygon &a, const Polygon &b) const;
    /// Whether all mappings have the same rate in both polygons, or none in either.
    bool haveSameRates(const Polygon &a, const Polygon &b) const;
    /// One for each polygon.
    std::vector<RingExtent> extents() const;
    /// Square metres, less the holes.
    static double area(const Polygon &polygon);
    /// Metres, around the holes as well.
    static double perimeter(const Polygon &polygon);
    static PlanePolygon copy(const Polygon &polygon);

    /// Calls `visit(ring)` with the outer ring and each hole.
    template <typename Visit> static void forEachRing(const Polygon &polygon, Visit visit)
    {
        const OrvikTypes::RX_POLYGON *ring = polygon.outer;
        visit(*ring);
        for (unsigned i = 0; i < polygon.holes; ++i) {
            ring = ring->next;
            visit(*ring);
        }
    }

private:
    std::vector<Polygon> list;
    size_t mappingCount;
    std::vector<PlaneRing> joined;
};
