#pragma once

#include "findinglist.h"
#include "loadcontrol.h"
#include "mapview.h"

#include <vector>

/// Finds polygons that are slivers, and areas of one rate that are narrower than the machine.
///
/// Polygons with the same rates that share a border are one area: cells of a grid that are narrower than the machine
/// are not narrow areas where their neighbours have the same rate.
class NarrowCheck {
public:
    /// More narrow areas than this are reported together: then the whole map is finer than the machine.
    static constexpr size_t mostTold = 10;

    /// `map` and `control` are not owned and outlive this. `machineWidth`: metres.
    NarrowCheck(const MapView &map, double machineWidth, const LoadControl &control);

    /// False when it was cancelled.
    bool run(FindingList &findings);

private:
    struct Area {
        /// Places in MapView::polygons(); the first is the polygon by which the area was found.
        std::vector<unsigned> places;
        double size = 0.0;      ///< Square metres.
        double perimeter = 0.0; ///< Metres.
        double width = 0.0;     ///< Metres.
        bool isBesideWide = false;
    };

    void tellSliver(unsigned place, FindingList &findings) const;
    /// The area that the narrow polygon is part of.
    Area areaAround(unsigned place);
    void join(Area &area, unsigned place, std::vector<unsigned> &open);
    /// Ascending, each once.
    QList<int> recordsOf(const Area &area) const;
    MapFinding findingOf(const Area &area) const;
    MapFinding findingOf(const std::vector<Area> &areas) const;

    const MapView &map;
    double machineWidth;
    double leastWidth; ///< Narrower areas are reported, metres.
    const LoadControl &control;
    RingTree tree;
    std::vector<double> widths; ///< One per polygon, metres.
    std::vector<bool> isTaken;  ///< One per polygon: it is part of an area that is known.
};
