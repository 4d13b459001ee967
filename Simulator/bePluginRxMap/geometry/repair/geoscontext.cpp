#include "geoscontext.h"

#include "coveredfaces.h"

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

GeosContext::Geometry GeosContext::collection(int type, std::vector<Geometry> members) const
{
    std::vector<GEOSGeometry *> released;
    for (Geometry &member : members) {
        if (member)
            released.push_back(member.release());
    }
    return owned(GEOSGeom_createCollection_r(handle, type, released.data(), static_cast<unsigned>(released.size())));
}

std::vector<PlanePolygon> GeosContext::facesOf(const PlaneRing &ring) const
{
    const Geometry line = owned(closedRing(ring));
    const Geometry noded = owned(line ? GEOSUnaryUnion_r(handle, line.get()) : nullptr);
    const GEOSGeometry *const lines = noded.get();
    return polygons(owned(noded ? GEOSPolygonize_r(handle, &lines, 1) : nullptr), 0);
}

size_t GeosContext::looseHoles(const PlanePolygon &polygon) const
{
    if (polygon.holes.empty())
        return 0;
    const Geometry outer = validArea(polygon.outer);
    const GEOSPreparedGeometry *prepared = outer ? GEOSPrepare_r(handle, outer.get()) : nullptr;
    size_t loose = 0;
    for (const PlaneRing &ring : polygon.holes) {
        const Geometry hole = prepared != nullptr ? validArea(ring) : owned(nullptr);
        if (!hole || GEOSPreparedCovers_r(handle, prepared, hole.get()) == 1)
            continue;
        const bool isApart = GEOSPreparedDisjoint_r(handle, prepared, hole.get()) == 1
            || GEOSTouches_r(handle, outer.get(), hole.get()) == 1;
        loose += isApart ? 1 : 0;
    }
    GEOSPreparedGeom_destroy_r(handle, prepared);
    return loose;
}

GeosContext::Geometry GeosContext::common(const Geometry &a, const Geometry &b) const
{
    return owned(GEOSIntersection_r(handle, a.get(), b.get()));
}

std::vector<PlanePolygon> GeosContext::facesOf(const std::vector<PlaneEdge> &edges, double grid) const
{
    std::vector<Geometry> members;
    members.reserve(edges.size());
    for (const PlaneEdge &edge : edges) {
        GEOSCoordSequence *ends =
            GEOSCoordSeq_copyFromBuffer_r(handle, reinterpret_cast<const double *>(&edge), 2, 0, 0);
        members.push_back(owned(GEOSGeom_createLineString_r(handle, ends)));
    }
    const Geometry lines = collection(GEOS_MULTILINESTRING, std::move(members));
    const Geometry noded = owned(lines ? GEOSUnaryUnionPrec_r(handle, lines.get(), grid) : nullptr);
    const GEOSGeometry *const noding = noded.get();
    return polygons(owned(noded ? GEOSPolygonize_r(handle, &noding, 1) : nullptr), -1);
}

std::vector<PlanePolygon> GeosContext::joined(const std::vector<PlanePolygon> &areas) const
{
    std::vector<Geometry> members;
    members.reserve(areas.size());
    for (const PlanePolygon &area : areas)
        members.push_back(polygon(area.outer, area.holes));
    const Geometry all = collection(GEOS_GEOMETRYCOLLECTION, std::move(members));
    return polygons(owned(all ? GEOSUnaryUnion_r(handle, all.get()) : nullptr), -1);
}

PlaneVertex GeosContext::pointInside(const PlanePolygon &area) const
{
    const Geometry shape = polygon(area.outer, area.holes);
    const Geometry point = owned(shape ? GEOSPointOnSurface_r(handle, shape.get()) : nullptr);
    PlaneVertex inside = area.outer.front();
    if (point) {
        GEOSGeomGetX_r(handle, point.get(), &inside.x);
        GEOSGeomGetY_r(handle, point.get(), &inside.y);
    }
    return inside;
}

GeosContext::Geometry GeosContext::validArea(const PlaneRing &ring) const
{
    // GEOS's own repair would peel a tangle off layer by layer, with an overlay for each. Lines where the ring runs
    // back over itself enclose no face.
    const std::vector<PlanePolygon> faces = facesOf(ring);
    std::vector<Geometry> areas;
    const std::vector<bool> isCovered = CoveredFaces::among(faces);
    for (size_t face = 0; face < faces.size(); ++face) {
        if (isCovered[face])
            areas.push_back(polygon(faces[face].outer, faces[face].holes));
    }
    return collection(GEOS_MULTIPOLYGON, std::move(areas));
}

GeosContext::Geometry GeosContext::repaired(const PlanePolygon &polygon, double grid) const
{
    const Geometry outer = validArea(polygon.outer);
    if (!outer || polygon.holes.empty())
        return owned(outer ? GEOSGeom_setPrecision_r(handle, outer.get(), grid, 0) : nullptr);
    std::vector<Geometry> areas;
    for (const PlaneRing &hole : polygon.holes)
        areas.push_back(validArea(hole));
    const Geometry holes = collection(GEOS_GEOMETRYCOLLECTION, std::move(areas));
    const Geometry cut = owned(holes ? GEOSUnaryUnion_r(handle, holes.get()) : nullptr);
    return difference(outer, cut, grid);
}

GeosContext::Geometry GeosContext::difference(const Geometry &from, const Geometry &cut, double grid) const
{
    return owned(from && cut ? GEOSDifferencePrec_r(handle, from.get(), cut.get(), grid) : nullptr);
}
