#include "geospeer.h"

#include "placement/ringtest.h"

#include <geos_c.h>
#include <memory>

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

} // namespace

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
