#pragma once

#include "coverindex.h"
#include "findinglist.h"
#include "geoscontext.h"
#include "loadcontrol.h"
#include "mapview.h"

#include <vector>

/// Finds where polygons of a map lie on each other, and ground inside the field that none of them covers.
///
/// The number of polygons over the ground changes at unshared edges only. These alone are noded and made into faces
/// (GEOS, on a grid as fine as positions are known), and one point of each face tells how many polygons cover it: none
/// is a gap, two or more an overlap. Polygons near an overlap are then compared pair by pair.
class CoverageCheck {
public:
    /// What is narrower than this, in metres, comes from the rounding of shared edges: no receiver knows it better.
    static constexpr double tolerance = 0.02;
    /// Gaps that are narrower than this, in metres, are slivers: left open between neighbours, not left out.
    static constexpr double sliverWidth = 0.5;
    /// With more meeting edges than this they are not looked at, for the memory's sake.
    static constexpr size_t mostCrossings = 1000000;

    /// `map` and `control` are not owned and outlive this.
    CoverageCheck(const MapView &map, const LoadControl &control);

    /// False when it was cancelled.
    bool run(FindingList &findings);

private:
    void lookAt(const PlanePolygon &face, FindingList &findings);
    void tellGap(const PlanePolygon &face, const PlaneVertex &point, FindingList &findings);
    /// Records of the polygons beyond the face's edges, ascending.
    QList<int> neighbours(const PlanePolygon &face);
    bool comparePairs(FindingList &findings);
    void compare(unsigned a, unsigned b, FindingList &findings);
    const GeosContext::Geometry &shapeOf(unsigned polygon);

    const MapView &map;
    const LoadControl &control;
    GeosContext geos;
    CoverIndex cover;
    std::vector<bool> isSuspect;               ///< One per polygon: it lies near an overlap.
    std::vector<GeosContext::Geometry> shapes; ///< One per polygon, made when it is compared.
};
