#pragma once

#include "loadcontrol.h"
#include "loadedmap.h"
#include "loadfindings.h"
#include "rawprescription.h"
#include "ringrepair.h"

#include <memory_resource>
#include <vector>

/// Makes the polygons of a prescription: located on the earth, projected to a plane in metres, repaired.
class FieldGeometry {
public:
    /// All are not owned and outlive this. Polygons that lie far from all others are taken out of `source`; progress
    /// goes from 0 to 1.
    FieldGeometry(RawPrescription &source, const LoadControl &control, LoadFindings &findings);

    /// Chooses the map's plane: the first of `planes` that is near enough, or one of its own; enters it, the field's
    /// boundary and the number of repairs. The reason when the map cannot be placed.
    QString place(const std::vector<LocalPlane> &planes, LoadedMap &map);
    /// Makes the polygons of what was placed; `memory` is where their rings live, and outlives them. The reason when
    /// there are none.
    QString makePolygons(std::pmr::memory_resource *memory, LoadedMap &map, std::vector<PlanePolygon> &polygons);

private:
    QString locate(GeographicExtent &extent);
    static LocalPlane planeFor(const GeographicExtent &extent, const std::vector<LocalPlane> &planes);
    void placeBoundary(LoadedMap &map) const;
    double maxCoordinate() const;
    void tell(const RingRepair::Outcome &outcome, const std::vector<PlanePolygon> &polygons);

    RawPrescription &source;
    const LoadControl &control;
    LoadFindings &findings;
    std::vector<double> xs;
    std::vector<double> ys;
};
