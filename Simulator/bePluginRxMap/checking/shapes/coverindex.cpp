#include "coverindex.h"

#include <algorithm>

using OrvikTypes::RX_POLYGON;

namespace {

std::vector<RingExtent> extentsOf(const std::vector<PlaneRing> &rings)
{
    std::vector<RingExtent> extents;
    for (const PlaneRing &ring : rings)
        extents.push_back(RingExtent::of(ring.data(), ring.size()));
    return extents;
}

std::vector<RingExtent> holeExtentsOf(const MapView &map)
{
    std::vector<RingExtent> extents;
    for (const MapView::Polygon &polygon : map.polygons()) {
        MapView::forEachRing(polygon, [&extents](const RX_POLYGON &ring) {
            if (ring.isHole)
                extents.push_back(RingExtent::of(ring.vertices, ring.vertexCount));
        });
    }
    return extents;
}

} // namespace

CoverIndex::CoverIndex(const MapView &view)
    : map(view)
    , outers(view.extents())
    , holes(holeExtentsOf(view))
    , joinedHoles(extentsOf(view.joinedHoles()))
    , outerSlabs(view.polygons().size())
{
    for (size_t i = 0; i < map.polygons().size(); ++i) {
        MapView::forEachRing(map.polygons()[i], [this, i](const RX_POLYGON &ring) {
            if (ring.isHole)
                holeList.push_back({&ring, static_cast<unsigned>(i)});
        });
    }
    holeSlabs.resize(holeList.size());
}

bool CoverIndex::contains(const RX_POLYGON &ring, std::unique_ptr<SlabIndex> &slabs, const PlaneVertex &point)
{
    const SharedEdgeCrossing rule;
    if (!SlabIndex::pays(ring.vertexCount))
        return SlabIndex(ring.vertices, ring.vertexCount).contains(point.x, point.y, rule);
    if (!slabs)
        slabs = std::make_unique<SlabIndex>(ring.vertices, ring.vertexCount);
    return slabs->contains(point.x, point.y, rule);
}

CoverIndex::Cover CoverIndex::at(const PlaneVertex &point)
{
    Cover cover;
    std::vector<unsigned> cut;
    for (const unsigned place : holes.holding(point.x, point.y)) {
        if (contains(*holeList[place].ring, holeSlabs[place], point))
            cut.push_back(holeList[place].polygon);
    }
    cover.isHole = !cut.empty();
    for (const unsigned place : joinedHoles.holding(point.x, point.y)) {
        const PlaneRing &ring = map.joinedHoles()[place];
        cover.isHole =
            cover.isHole || SlabIndex(ring.data(), ring.size()).contains(point.x, point.y, SharedEdgeCrossing());
    }
    for (const unsigned place : outers.holding(point.x, point.y)) {
        if (std::find(cut.begin(), cut.end(), place) == cut.end()
            && contains(*map.polygons()[place].outer, outerSlabs[place], point))
            cover.polygons.push_back(place);
    }
    std::sort(cover.polygons.begin(), cover.polygons.end());
    return cover;
}
