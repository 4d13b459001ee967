#pragma once

#include "coverindex.h"
#include "findinglist.h"
#include "geoscontext.h"
#include "loadcontrol.h"
#include "mapview.h"
#include "unsharededges.h"

#include <vector>

/// Finds where polygons of a map lie on each other, and ground inside the field that none of them covers.
///
/// The number of polygons over the ground changes at unshared edges only. These alone are noded and made into faces
/// (GEOS, on a grid as fine as positions are known), and one point of each face tells how many polygons cover it: none
/// is a gap, two or more an overlap. Polygons near an overlap are then compared pair by pair. Slits that are open to
/// the outside are closed by lines across them first (`SlitBridges`).
class CoverageCheck {
public:
    /// What is narrower than this, in metres, comes from the rounding of shared edges; no receiver is more exact.
    static constexpr double tolerance = 0.02;
    /// Gaps that are narrower than this, in metres, are slivers: left open between neighbours, not left out.
    static constexpr double sliverWidth = 0.5;
    /// A sliver that is open to the outside is reported from this length on, metres: shorter ones are notches of a
    /// rough border.
    static constexpr double leastOpenLength = 2.0;
    /// When more edges meet than this, they are not examined, to save memory.
    static constexpr size_t mostCrossings = 1000000;

    /// `map` and `control` are not owned and outlive this.
    CoverageCheck(const MapView &map, const LoadControl &control);

    /// False when it was cancelled.
    bool run(FindingList &findings);

private:
    /// What lies around a gap.
    struct Surroundings {
        QList<int> records;  ///< Of the polygons beyond its edges, ascending.
        bool isOpen = false; ///< Nothing lies beyond some edge.
    };

    /// Lines across slits that no polygon covers.
    std::vector<PlaneEdge> bridges(const UnsharedEdges::List &edges);
    /// Keeps the face in `gaps` when it is part of one, and the polygons near it as suspects when they overlap there.
    void lookAt(const PlanePolygon &face, std::vector<PlanePolygon> &gaps);
    void tellGap(const PlanePolygon &gap, FindingList &findings);
    Surroundings around(const PlanePolygon &gap);
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
