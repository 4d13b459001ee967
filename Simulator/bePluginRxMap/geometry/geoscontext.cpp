#include "geoscontext.h"

namespace {

void dropMessage(const char *, void *) { }

} // namespace

GeosContext::GeosContext()
    : handle(GEOS_init_r())
{
    GEOSContext_setNoticeMessageHandler_r(handle, dropMessage, nullptr);
    GEOSContext_setErrorMessageHandler_r(handle, dropMessage, nullptr);
}

GeosContext::~GeosContext()
{
    GEOS_finish_r(handle);
}

GEOSGeometry *GeosContext::closedRing(const PlaneRing &ring) const
{
    PlaneRing closed = ring;
    if (!ring.empty())
        closed.push_back(ring.front());
    GEOSCoordSequence *vertices = GEOSCoordSeq_copyFromBuffer_r(handle, reinterpret_cast<const double *>(closed.data()),
                                                                static_cast<unsigned>(closed.size()), 0, 0);
    return vertices == nullptr ? nullptr : GEOSGeom_createLinearRing_r(handle, vertices);
}

GeosContext::Geometry GeosContext::polygon(const PlaneRing &outer, const std::vector<PlaneRing> &holes) const
{
    Geometry shell = owned(closedRing(outer));
    if (!shell)
        return owned(nullptr);
    std::vector<GEOSGeometry *> inner;
    for (const PlaneRing &hole : holes) {
        if (GEOSGeometry *ring = closedRing(hole))
            inner.push_back(ring);
    }
    return owned(GEOSGeom_createPolygon_r(handle, shell.release(), inner.data(), static_cast<unsigned>(inner.size())));
}

bool GeosContext::isValid(const Geometry &geometry) const
{
    return geometry && GEOSisValid_r(handle, geometry.get()) == 1;
}

PlaneRing GeosContext::openRing(const GEOSGeometry *ring) const
{
    const GEOSCoordSequence *vertices = ring == nullptr ? nullptr : GEOSGeom_getCoordSeq_r(handle, ring);
    unsigned count = 0;
    if (vertices == nullptr || GEOSCoordSeq_getSize_r(handle, vertices, &count) == 0)
        return {};
    PlaneRing result(count);
    GEOSCoordSeq_copyToBuffer_r(handle, vertices, reinterpret_cast<double *>(result.data()), 0, 0);
    dropRepeatedVertices(result);
    return result;
}

std::vector<PlanePolygon> GeosContext::polygons(const Geometry &geometry, int record) const
{
    std::vector<PlanePolygon> result;
    const int members = geometry ? GEOSGetNumGeometries_r(handle, geometry.get()) : 0;
    for (int i = 0; i < members; ++i) {
        const GEOSGeometry *member = GEOSGetGeometryN_r(handle, geometry.get(), i);
        if (GEOSGeomTypeId_r(handle, member) != GEOS_POLYGON || GEOSisEmpty_r(handle, member) == 1)
            continue;
        PlanePolygon polygon;
        polygon.record = record;
        polygon.outer = openRing(GEOSGetExteriorRing_r(handle, member));
        const int holes = GEOSGetNumInteriorRings_r(handle, member);
        for (int k = 0; k < holes; ++k)
            polygon.holes.push_back(openRing(GEOSGetInteriorRingN_r(handle, member, k)));
        if (polygon.outer.size() >= 3)
            result.push_back(std::move(polygon));
    }
    return result;
}

GeosContext::Geometry GeosContext::validArea(const PlaneRing &ring) const
{
    const Geometry rough = polygon(ring, {});
    const Geometry valid = owned(rough ? GEOSMakeValid_r(handle, rough.get()) : nullptr);
    // A repair leaves lines where a ring ran back over itself; only areas count.
    std::vector<GEOSGeometry *> areas;
    for (const PlanePolygon &part : polygons(valid, 0)) {
        if (GEOSGeometry *area = polygon(part.outer, part.holes).release())
            areas.push_back(area);
    }
    return owned(
        GEOSGeom_createCollection_r(handle, GEOS_MULTIPOLYGON, areas.data(), static_cast<unsigned>(areas.size())));
}

GeosContext::Geometry GeosContext::repaired(const PlanePolygon &polygon, double grid) const
{
    const Geometry outer = validArea(polygon.outer);
    if (!outer || polygon.holes.empty())
        return owned(outer ? GEOSGeom_setPrecision_r(handle, outer.get(), grid, 0) : nullptr);
    std::vector<GEOSGeometry *> areas;
    for (const PlaneRing &hole : polygon.holes) {
        if (GEOSGeometry *area = validArea(hole).release())
            areas.push_back(area);
    }
    const Geometry holes = owned(GEOSGeom_createCollection_r(handle, GEOS_GEOMETRYCOLLECTION, areas.data(),
                                                             static_cast<unsigned>(areas.size())));
    const Geometry cut = owned(holes ? GEOSUnaryUnion_r(handle, holes.get()) : nullptr);
    return difference(outer, cut, grid);
}

GeosContext::Geometry GeosContext::difference(const Geometry &from, const Geometry &cut, double grid) const
{
    return owned(from && cut ? GEOSDifferencePrec_r(handle, from.get(), cut.get(), grid) : nullptr);
}
