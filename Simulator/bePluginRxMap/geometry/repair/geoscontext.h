#pragma once

#include "planering.h"

#include <geos_c.h>
#include <memory>
#include <vector>

/// A GEOS session of one thread. GEOS's messages are dropped: every call's failure shows in its result.
class GeosContext {
public:
    struct Release {
        GEOSContextHandle_t handle;
        void operator()(GEOSGeometry *geometry) const { GEOSGeom_destroy_r(handle, geometry); }
    };
    /// Must not outlive its context.
    using Geometry = std::unique_ptr<GEOSGeometry, Release>;

    GeosContext();
    ~GeosContext();

    /// Null when GEOS refuses the rings. The rings are closed here.
    Geometry polygon(const PlaneRing &outer, const std::vector<PlaneRing> &holes) const;
    Geometry owned(GEOSGeometry *geometry) const { return {geometry, Release{handle}}; }
    bool isValid(const Geometry &geometry) const;
    /// The polygons of a geometry of any kind, rings without the closing vertex; `record` is given to each.
    std::vector<PlanePolygon> polygons(const Geometry &geometry, int record) const;
    /// What the outer ring covers by the even-odd rule, less what the holes cover: valid, vertices on a grid of `grid`
    /// metres. Null when there is nothing.
    Geometry repaired(const PlanePolygon &polygon, double grid) const;
    /// How many of the polygon's holes lie beside its outer ring.
    size_t looseHoles(const PlanePolygon &polygon) const;
    /// What both cover; neither may be null. Null when GEOS fails.
    Geometry common(const Geometry &a, const Geometry &b) const;
    /// The bounded faces that the edges divide the plane into, on a grid of `grid` metres to which the edges are
    /// snapped: anything narrower is no face. Empty when there are none, or GEOS fails.
    std::vector<PlanePolygon> facesOf(const std::vector<PlaneEdge> &edges, double grid) const;
    /// The polygons, those that share an edge joined; they have no record. Empty when GEOS fails.
    std::vector<PlanePolygon> joined(const std::vector<PlanePolygon> &polygons) const;
    /// A point inside the polygon, and not on its border.
    PlaneVertex pointInside(const PlanePolygon &polygon) const;
    /// What `from` covers and `cut` does not, on the grid; both valid and of polygons only. Null when GEOS fails.
    Geometry difference(const Geometry &from, const Geometry &cut, double grid) const;

private:
    Q_DISABLE_COPY(GeosContext)

    /// A collection of the members; null ones are left out.
    Geometry collection(int type, std::vector<Geometry> members) const;
    /// The faces that the ring's edges, divided where they meet, enclose.
    std::vector<PlanePolygon> facesOf(const PlaneRing &ring) const;
    Geometry validArea(const PlaneRing &ring) const;
    GEOSGeometry *closedRing(const PlaneRing &ring) const;
    PlaneRing openRing(const GEOSGeometry *ring) const;

    GEOSContextHandle_t handle;
};
