#include "fieldgeometry.h"

#include "Backend/backendtext.h"
#include "dateline.h"
#include "straypolygons.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

/// Maps that lie farther apart do not share a plane: it would be too far from level under one of them.
constexpr double maxDistanceOnOnePlane = 20000.0;

constexpr double shareOfPlacing = 1.0 / 3.0;
constexpr size_t ringsPerReport = 256;

using Kind = MapFinding::Kind;

QString tangleText(int record)
{
    return BackendText::tr("record %1 was left out, its rings cross each other or themselves more than %2 times")
        .arg(QString::number(record), QString::number(RingRepair::mostCrossings));
}

} // namespace

FieldGeometry::FieldGeometry(RawPrescription &prescription, const LoadControl &loadControl, LoadFindings &loadFindings)
    : source(prescription)
    , control(loadControl)
    , findings(loadFindings)
{
}

QString FieldGeometry::place(const std::vector<LocalPlane> &planes, LoadedMap &map)
{
    if (source.rings.empty()) {
        if (!source.otherRecords.empty())
            return BackendText::tr("holds points or lines, not polygons");
        return source.notFiniteRecords.empty() ? BackendText::tr("holds no polygon")
                                               : BackendText::tr("holds no polygon with finite coordinates");
    }
    GeographicExtent extent;
    QString reason = locate(extent);
    if (!reason.isEmpty())
        return reason;
    map.plane = planeFor(extent, planes);
    if (!map.plane.project(source, xs, ys, reason))
        return reason;
    map.report.origin = QPointF(map.plane.longitude(), map.plane.latitude());
    placeBoundary(map);
    control.report(shareOfPlacing);
    return QString();
}

/// The reason when the file's coordinates cannot be taken for places on the earth.
QString FieldGeometry::locate(GeographicExtent &extent)
{
    DateLine::join(source);
    QString reason;
    bool isLocated = LocalPlane::locate(source, extent, reason);
    if (!isLocated || StrayPolygons::mayBeWithin(extent)) {
        findings.addCounted(Kind::StrayPolygon, StrayPolygons::remove(source),
                            {BackendText::tr("polygon that lies more than 100 km from the others was left out"),
                             BackendText::tr("polygons that lie more than 100 km from the others were left out")});
        isLocated = LocalPlane::locate(source, extent, reason);
    }
    if (!isLocated)
        return reason;
    if (!source.reference && !source.lackOfReference.isEmpty())
        findings.add(Kind::ReferenceSystem, source.lackOfReference + BackendText::tr("; taken as WGS 84"));
    return QString();
}

LocalPlane FieldGeometry::planeFor(const GeographicExtent &extent, const std::vector<LocalPlane> &planes)
{
    const double longitude = 0.5 * (extent.west + extent.east);
    const double latitude = 0.5 * (extent.south + extent.north);
    const auto near = std::find_if(planes.begin(), planes.end(), [longitude, latitude](const LocalPlane &plane) {
        return plane.distanceTo(longitude, latitude) <= maxDistanceOnOnePlane;
    });
    return near != planes.end() ? *near : LocalPlane(DateLine::wrapped(longitude), latitude);
}

void FieldGeometry::placeBoundary(LoadedMap &map) const
{
    const SourceBoundary &boundary = source.boundary;
    RawPrescription outline;
    outline.xs = boundary.xs;
    outline.ys = boundary.ys;
    if (source.reference)
        outline.reference.reset(source.reference->Clone());
    std::vector<double> boundaryXs;
    std::vector<double> boundaryYs;
    QString reason;
    if (outline.xs.empty() || !map.plane.project(outline, boundaryXs, boundaryYs, reason))
        return;
    size_t next = 0;
    for (const size_t end : boundary.ends) {
        QPolygonF ring;
        for (; next < end; ++next)
            ring.append(QPointF(boundaryXs[next], boundaryYs[next]));
        if (!ring.isClosed())
            ring.append(ring.first());
        map.report.boundary.append(ring);
    }
}

double FieldGeometry::maxCoordinate() const
{
    double greatest = 1.0;
    for (size_t i = 0; i < xs.size(); ++i) {
        if (std::isfinite(xs[i]) && std::isfinite(ys[i]))
            greatest = std::max({greatest, std::fabs(xs[i]), std::fabs(ys[i])});
    }
    return greatest;
}

QString FieldGeometry::makePolygons(std::pmr::memory_resource *memory, LoadedMap &map,
                                    std::vector<PlanePolygon> &polygons)
{
    const RingRepair repair(maxCoordinate(), memory);
    RingRepair::Outcome outcome;
    outcome.polygons.reserve(source.rings.size());
    const double rings = static_cast<double>(source.rings.size());
    for (size_t ring = 0, reported = 0; ring < source.rings.size();) {
        ring = repair.append(source, xs, ys, ring, outcome);
        if (control.isCancelled())
            return BackendText::tr("loading was cancelled");
        if (ring - reported < ringsPerReport && ring < source.rings.size())
            continue;
        reported = ring;
        control.report(shareOfPlacing + (1.0 - shareOfPlacing) * static_cast<double>(ring) / rings);
    }
    polygons = std::move(outcome.polygons);
    map.report.repaired = static_cast<int>(outcome.repaired.size());
    tell(outcome, polygons);
    if (!polygons.empty())
        return QString();
    return outcome.tangled.empty() ? BackendText::tr("holds no polygon that encloses anything")
                                   : tangleText(outcome.tangled.front());
}

void FieldGeometry::tell(const RingRepair::Outcome &outcome, const std::vector<PlanePolygon> &polygons)
{
    std::vector<int> dropped = source.droppedRings;
    dropped.insert(dropped.end(), outcome.dropped.begin(), outcome.dropped.end());
    findings.addCounted(Kind::Skipped, dropped,
                        {BackendText::tr("ring that encloses nothing was left out"),
                         BackendText::tr("rings that enclose nothing were left out")});
    for (const int record : outcome.tangled)
        findings.add(Kind::Skipped, tangleText(record), record);
    findings.addCounted(Kind::LooseHole, outcome.looseHoles,
                        {BackendText::tr("hole lies in no polygon and was left out"),
                         BackendText::tr("holes lie in no polygon and were left out")});
    findings.addCounted(Kind::Repaired, outcome.repaired,
                        {BackendText::tr("polygon had to be repaired"), BackendText::tr("polygons had to be repaired")},
                        polygons);
}
