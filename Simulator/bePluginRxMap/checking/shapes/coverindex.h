#pragma once

#include "mapview.h"
#include "slabindex.h"

#include <memory>
#include <vector>

/// Which polygons of a map lie over a point, each less its own holes.
class CoverIndex {
public:
    /// `map` is not owned and outlives this.
    explicit CoverIndex(const MapView &map);

    struct Cover {
        /// Places in MapView::polygons(), ascending.
        std::vector<unsigned> polygons;
        /// Whether the point lies in a hole of the map, joined or not.
        bool isHole = false;
    };

    Cover at(const PlaneVertex &point);
    /// Places of the polygons whose extent shares a point with this one.
    RingTree::Places near(const RingExtent &extent) const { return outers.meeting(extent); }

private:
    struct Hole {
        const OrvikTypes::RX_POLYGON *ring;
        unsigned polygon;
    };

    bool contains(const OrvikTypes::RX_POLYGON &ring, std::unique_ptr<SlabIndex> &slabs, const PlaneVertex &point);

    const MapView &map;
    std::vector<Hole> holeList;
    RingTree outers;
    RingTree holes;
    RingTree joinedHoles;
    // Made for long rings when they are first asked about.
    std::vector<std::unique_ptr<SlabIndex>> outerSlabs;
    std::vector<std::unique_ptr<SlabIndex>> holeSlabs;
};
