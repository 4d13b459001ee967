#include "geospeer.h"

#include "placement/ringtest.h"

#include <geos_c.h>
#include <memory>
#include <vector>

namespace {

using Context = std::unique_ptr<GEOSContextHandle_HS, decltype(&GEOS_finish_r)>;

/// Owned by the caller.
GEOSGeometry *ringOf(GEOSContextHandle_t context, const OrvikTypes::RX_POLYGON &ring)
{
    const auto count = static_cast<unsigned int>(vertexCount(ring));
    const unsigned int size = count == 0 ? 0 : count + 1;
    GEOSCoordSequence *coordinates = GEOSCoordSeq_create_r(context, size, 2);
    for (unsigned int i = 0; i < size; ++i) {
        const OrvikTypes::RX_POLYGONVERTEX &vertex = ring.vertices[i % count];
        GEOSCoordSeq_setXY_r(context, coordinates, i, vertex.x, vertex.y);
    }
    return GEOSGeom_createLinearRing_r(context, coordinates);
}

struct Release {
    GEOSContextHandle_t context;
    void operator()(GEOSGeometry *geometry) const { GEOSGeom_destroy_r(context, geometry); }
};
using Geometry = std::unique_ptr<GEOSGeometry, Release>;

std::vector<Geometry> polygonsOf(GEOSContextHandle_t context, const BenchmarkMap &map)
{
    std::vector<Geometry> polygons;
    for (unsigned int i = 0; i < map.outers(); ++i) {
        const OrvikTypes::RX_POLYGON &outer = map.outer(i);
        std::vector<GEOSGeometry *> holes;
        for (const OrvikTypes::RX_POLYGON *ring = outer.next; ring != nullptr && ring->isHole; ring = ring->next)
            holes.push_back(ringOf(context, *ring));
        polygons.emplace_back(GEOSGeom_createPolygon_r(context, ringOf(context, outer), holes.data(),
                                                       static_cast<unsigned int>(holes.size())),
                              Release{context});
    }
    return polygons;
}

/// The polygon that is compared with those behind it in the list.
struct Comparison {
    GEOSContextHandle_t context;
    const Geometry *one;
    int meetings = 0;
};

void compare(void *other, void *comparison)
{
    auto &pair = *static_cast<Comparison *>(comparison);
    const auto *second = static_cast<const Geometry *>(other);
    if (second <= pair.one)
        return;
    const Geometry common(GEOSIntersection_r(pair.context, pair.one->get(), second->get()), Release{pair.context});
    double area = 0.0;
    if (common && GEOSArea_r(pair.context, common.get(), &area) == 1 && area > 0.0)
        ++pair.meetings;
}

} // namespace

int overlapsByGeos(const BenchmarkMap &map)
{
    const Context context(GEOS_init_r(), GEOS_finish_r);
    std::vector<Geometry> polygons = polygonsOf(context.get(), map);
    GEOSSTRtree *tree = GEOSSTRtree_create_r(context.get(), 10);
    for (Geometry &polygon : polygons)
        GEOSSTRtree_insert_r(context.get(), tree, polygon.get(), &polygon);
    Comparison comparison{context.get(), nullptr};
    for (const Geometry &polygon : polygons) {
        comparison.one = &polygon;
        GEOSSTRtree_query_r(context.get(), tree, polygon.get(), compare, &comparison);
    }
    GEOSSTRtree_destroy_r(context.get(), tree);
    return comparison.meetings;
}

PeerResult triangulateWithGeos(const BenchmarkMap &map, const Placement &placement)
{
    const Context context(GEOS_init_r(), GEOS_finish_r);
    PeerResult result;
    for (std::size_t outer = 0; outer < placement.size(); ++outer) {
        std::vector<GEOSGeometry *> holes;
        for (const OrvikTypes::RX_POLYGON *hole : placement[outer])
            holes.push_back(ringOf(context.get(), *hole));
        GEOSGeometry *polygon = GEOSGeom_createPolygon_r(context.get(), ringOf(context.get(), map.outer(outer)),
                                                         holes.data(), static_cast<unsigned int>(holes.size()));
        GEOSGeometry *triangles = GEOSConstrainedDelaunayTriangulation_r(context.get(), polygon);
        if (triangles == nullptr)
            ++result.refused;
        else
            result.triangles += GEOSGetNumGeometries_r(context.get(), triangles);
        GEOSGeom_destroy_r(context.get(), triangles);
        GEOSGeom_destroy_r(context.get(), polygon);
    }
    return result;
}
