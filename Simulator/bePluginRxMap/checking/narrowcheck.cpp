#include "narrowcheck.h"

#include "Backend/backendtext.h"
#include "coveragecheck.h"
#include "findingtext.h"
#include "planeshape.h"
#include "sharedborder.h"

#include <algorithm>

namespace {

/// An area that would be reported as "12.0 m wide, narrower than the machine (12 m)" counts as wide enough; metres.
constexpr double halfOfLastDigit = 0.05;

} // namespace

NarrowCheck::NarrowCheck(const MapView &view, double width, const LoadControl &loadControl)
    : map(view)
    , machineWidth(width)
    , leastWidth(width - halfOfLastDigit)
    , control(loadControl)
    , tree(view.extents())
    , isTaken(view.polygons().size(), false)
{
    widths.reserve(map.polygons().size());
    for (const MapView::Polygon &polygon : map.polygons())
        widths.push_back(PlaneShape::width(MapView::area(polygon), MapView::perimeter(polygon)));
}

bool NarrowCheck::run(FindingList &findings)
{
    std::vector<Area> narrow;
    for (unsigned place = 0; place < widths.size(); ++place) {
        if (control.isCancelled())
            return false;
        if (widths[place] < CoverageCheck::sliverWidth)
            tellSliver(place, findings);
        if (isTaken[place] || widths[place] >= leastWidth)
            continue;
        Area area = areaAround(place);
        if (!area.isBesideWide && area.width < leastWidth && area.width >= CoverageCheck::sliverWidth)
            narrow.push_back(std::move(area));
    }
    if (narrow.size() > mostTold)
        findings.add(findingOf(narrow), 0.0);
    else
        for (const Area &area : narrow)
            findings.add(findingOf(area), -area.width);
    return true;
}

void NarrowCheck::tellSliver(unsigned place, FindingList &findings) const
{
    const MapView::Polygon &polygon = map.polygons()[place];
    MapFinding finding;
    finding.kind = MapFinding::Kind::Sliver;
    finding.records = {polygon.record};
    finding.area = MapView::area(polygon);
    finding.extent = PlaneShape::rectangle(polygon.extent);
    finding.place = finding.extent.center();
    finding.text = BackendText::tr("record %1 is only %2 m wide")
                       .arg(polygon.record)
                       .arg(BackendText::number(widths[place], 'f', 2));
    findings.add(finding, -widths[place]);
}

NarrowCheck::Area NarrowCheck::areaAround(unsigned place)
{
    Area area;
    isTaken[place] = true;
    std::vector<unsigned> open = {place};
    while (!open.empty() && !control.isCancelled()) {
        const unsigned next = open.back();
        open.pop_back();
        join(area, next, open);
    }
    area.width = PlaneShape::width(area.size, area.perimeter);
    return area;
}

void NarrowCheck::join(Area &area, unsigned place, std::vector<unsigned> &open)
{
    const MapView::Polygon &polygon = map.polygons()[place];
    area.places.push_back(place);
    area.size += MapView::area(polygon);
    area.perimeter += MapView::perimeter(polygon);
    RingExtent reach = polygon.extent;
    reach.include(reach.minX - CoverageCheck::tolerance, reach.minY - CoverageCheck::tolerance);
    reach.include(reach.maxX + CoverageCheck::tolerance, reach.maxY + CoverageCheck::tolerance);
    for (const unsigned other : tree.meeting(reach)) {
        const MapView::Polygon &neighbour = map.polygons()[other];
        if (other == place || !map.haveSameRates(polygon, neighbour))
            continue;
        const double shared = SharedBorder::length(polygon, neighbour, CoverageCheck::tolerance);
        if (shared <= CoverageCheck::tolerance)
            continue;
        // A pair within the area is met twice, once from each of the two.
        area.perimeter -= shared;
        area.isBesideWide = area.isBesideWide || widths[other] >= leastWidth;
        if (isTaken[other] || widths[other] >= leastWidth)
            continue;
        isTaken[other] = true;
        open.push_back(other);
    }
}

QList<int> NarrowCheck::recordsOf(const Area &area) const
{
    QList<int> records;
    for (const unsigned place : area.places)
        records.append(map.polygons()[place].record);
    std::sort(records.begin(), records.end());
    records.erase(std::unique(records.begin(), records.end()), records.end());
    return records;
}

MapFinding NarrowCheck::findingOf(const Area &area) const
{
    MapFinding finding;
    finding.kind = MapFinding::Kind::Narrow;
    finding.area = area.size;
    RingExtent extent;
    for (const unsigned place : area.places) {
        const RingExtent &part = map.polygons()[place].extent;
        extent.include(part);
    }
    finding.extent = PlaneShape::rectangle(extent);
    finding.place = PlaneShape::rectangle(map.polygons()[area.places.front()].extent).center();
    const QList<int> records = recordsOf(area);
    finding.records = records.mid(0, MapFinding::mostRecords);
    const QString one = BackendText::tr("%1 is %2 m wide, narrower than the machine (%3 m)");
    const QString many =
        BackendText::tr("%1 have the same rate and are %2 m wide together, narrower than the machine (%3 m)");
    finding.text = (records.size() == 1 ? one : many)
                       .arg(FindingText::records(records), BackendText::number(area.width, 'f', 1),
                            BackendText::number(machineWidth, 'g', 6));
    return finding;
}

MapFinding NarrowCheck::findingOf(const std::vector<Area> &areas) const
{
    const Area &narrowest =
        *std::min_element(areas.begin(), areas.end(), [](const Area &a, const Area &b) { return a.width < b.width; });
    MapFinding finding = findingOf(narrowest);
    finding.text = BackendText::tr("%1 areas of one rate are narrower than the machine (%2 m), the narrowest %3 m (%4)")
                       .arg(QString::number(areas.size()), BackendText::number(machineWidth, 'g', 6),
                            BackendText::number(narrowest.width, 'f', 1), FindingText::records(finding.records));
    finding.records.clear();
    finding.area = 0.0;
    for (const Area &area : areas) {
        *finding.area += area.size;
        finding.records += recordsOf(area);
    }
    std::sort(finding.records.begin(), finding.records.end());
    finding.records.erase(std::unique(finding.records.begin(), finding.records.end()), finding.records.end());
    finding.records = finding.records.mid(0, MapFinding::mostRecords);
    return finding;
}
