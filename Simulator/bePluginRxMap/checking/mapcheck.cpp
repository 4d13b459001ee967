#include "mapcheck.h"

#include "coveragecheck.h"
#include "geosinterrupt.h"
#include "planeshape.h"

#include <cmath>

namespace {

void tellNarrow(const MapView::Polygon &polygon, double machineWidth, FindingList &findings)
{
    const double area = MapView::area(polygon);
    const double width = PlaneShape::width(area, MapView::perimeter(polygon));
    if (width >= machineWidth)
        return;
    const bool isSliver = width < CoverageCheck::sliverWidth;
    MapFinding finding;
    finding.kind = isSliver ? MapFinding::Kind::Sliver : MapFinding::Kind::Narrow;
    finding.records = {polygon.record};
    finding.area = area;
    finding.extent = PlaneShape::rectangle(polygon.extent);
    finding.place = finding.extent.center();
    const QString size =
        QStringLiteral("record %1 is %2 m wide").arg(polygon.record).arg(width, 0, 'f', isSliver ? 2 : 1);
    finding.text = isSliver ? size : QStringLiteral("%1, narrower than the machine (%2 m)").arg(size).arg(machineWidth);
    findings.add(finding, -width);
}

} // namespace

std::optional<QList<MapFinding>> MapCheck::run(const MapView &map, const Settings &settings, const LoadControl &control)
{
    const GeosInterrupt interrupt(control.cancelled);
    FindingList findings;
    if (!CoverageCheck(map, control).run(findings))
        return {};
    for (const MapView::Polygon &polygon : map.polygons())
        tellNarrow(polygon, settings.machineWidth, findings);
    for (size_t i = 0; i < map.mappings(); ++i)
        RateCheck(map, i, settings.columns[i]).run(findings);
    if (control.isCancelled())
        return {};
    return findings.take();
}
