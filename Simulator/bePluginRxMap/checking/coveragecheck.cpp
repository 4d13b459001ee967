#include "coveragecheck.h"

#include "Backend/backendtext.h"
#include "findingtext.h"
#include "planeshape.h"
#include "ringcrossings.h"
#include "slitbridges.h"

#include <algorithm>
#include <cmath>

namespace {

/// Grid of the faces: the power of two of a metre below the tolerance.
constexpr double faceGrid = 1.0 / 64.0;
/// Polygons whose common area is this share of either are of the same shape.
constexpr double sameShape = 0.999;
/// What lies beyond a gap is looked for at this many of its edges at most.
constexpr size_t mostAsked = 64;

PlaneVertex pointInside(const GeosContext &geos, const PlanePolygon &face)
{
    if (!face.holes.empty() || !isConvexRing(face.outer))
        return geos.pointInside(face);
    PlaneVertex middle = {0.0, 0.0};
    for (const PlaneVertex &vertex : face.outer) {
        middle.x += vertex.x / static_cast<double>(face.outer.size());
        middle.y += vertex.y / static_cast<double>(face.outer.size());
    }
    return middle;
}

bool isArtefact(double area, double perimeter)
{
    return PlaneShape::width(area, perimeter) < CoverageCheck::tolerance;
}

} // namespace

CoverageCheck::CoverageCheck(const MapView &view, const LoadControl &loadControl)
    : map(view)
    , control(loadControl)
    , cover(view)
    , isSuspect(view.polygons().size(), false)
{
}

bool CoverageCheck::run(FindingList &findings)
{
    UnsharedEdges::List unshared = UnsharedEdges::of(map);
    std::vector<PlaneEdge> &edges = unshared.edges;
    if (control.isCancelled())
        return false;
    if (RingCrossings::count(edges, mostCrossings) > mostCrossings) {
        MapFinding finding;
        finding.text =
            BackendText::tr("the polygons' edges cross each other more than %1 times; overlaps and gaps are not "
                            "told one by one")
                .arg(mostCrossings);
        findings.add(finding, HUGE_VAL);
        return !control.isCancelled();
    }
    const std::vector<PlaneEdge> across = bridges(unshared);
    edges.insert(edges.end(), across.begin(), across.end());
    std::vector<PlanePolygon> gaps;
    for (const PlanePolygon &face : geos.facesOf(edges, faceGrid)) {
        if (control.isCancelled())
            return false;
        lookAt(face, gaps);
    }
    // Lines across a slit cut it into pieces.
    for (const PlanePolygon &gap : across.empty() ? gaps : geos.joined(gaps))
        tellGap(gap, findings);
    return comparePairs(findings);
}

std::vector<PlaneEdge> CoverageCheck::bridges(const UnsharedEdges::List &edges)
{
    std::vector<PlaneEdge> all = SlitBridges::across(edges, tolerance, sliverWidth, leastOpenLength);
    const auto isCovered = [this](const PlaneEdge &bridge) {
        const PlaneVertex middle = {0.5 * (bridge.from.x + bridge.to.x), 0.5 * (bridge.from.y + bridge.to.y)};
        return !cover.at(middle).polygons.empty();
    };
    all.erase(std::remove_if(all.begin(), all.end(), isCovered), all.end());
    return all;
}

void CoverageCheck::lookAt(const PlanePolygon &face, std::vector<PlanePolygon> &gaps)
{
    if (isArtefact(polygonArea(face), PlaneShape::perimeter(face)))
        return;
    const CoverIndex::Cover over = cover.at(pointInside(geos, face));
    if (over.polygons.empty() && !over.isHole)
        gaps.push_back(face);
    if (over.polygons.size() < 2)
        return;
    for (const unsigned place : cover.near(PlaneShape::extent(face)))
        isSuspect[place] = true;
}

void CoverageCheck::tellGap(const PlanePolygon &gap, FindingList &findings)
{
    const double area = polygonArea(gap);
    const double width = PlaneShape::width(area, PlaneShape::perimeter(gap));
    const bool isSliver = width < sliverWidth;
    const Surroundings surroundings = around(gap);
    if (surroundings.isOpen && (!isSliver || area < leastOpenLength * width))
        return;
    const PlaneVertex point = pointInside(geos, gap);
    MapFinding finding;
    finding.kind = isSliver ? MapFinding::Kind::Sliver : MapFinding::Kind::Gap;
    finding.area = area;
    finding.place = QPointF(point.x, point.y);
    finding.extent = PlaneShape::rectangle(PlaneShape::extent(gap));
    finding.records = surroundings.records;
    finding.text = BackendText::tr("no polygon covers %1 inside the field (%2 m wide)")
                       .arg(FindingText::squareMetres(area), BackendText::number(width, 'f', isSliver ? 2 : 1));
    if (!finding.records.isEmpty())
        finding.text += BackendText::tr(", beside %1").arg(FindingText::records(finding.records));
    findings.add(finding, area);
}

CoverageCheck::Surroundings CoverageCheck::around(const PlanePolygon &gap)
{
    // Far enough beyond an edge for its rounding not to matter.
    constexpr double step = 2.0 * tolerance;
    Surroundings surroundings;
    QList<int> &records = surroundings.records;
    const double side = signedArea(gap.outer) > 0.0 ? 1.0 : -1.0;
    const size_t count = gap.outer.size();
    const size_t stride = 1 + count / mostAsked;
    for (size_t i = 0; i < count; i += stride) {
        const PlaneVertex &from = gap.outer[i];
        const PlaneVertex &to = gap.outer[(i + 1) % count];
        const double length = std::hypot(to.x - from.x, to.y - from.y);
        const PlaneVertex beyond = {0.5 * (from.x + to.x) + side * step * (to.y - from.y) / length,
                                    0.5 * (from.y + to.y) - side * step * (to.x - from.x) / length};
        const CoverIndex::Cover over = cover.at(beyond);
        for (const unsigned place : over.polygons)
            records.append(map.polygons()[place].record);
        surroundings.isOpen = surroundings.isOpen || (over.polygons.empty() && !over.isHole && length > tolerance);
    }
    std::sort(records.begin(), records.end());
    records.erase(std::unique(records.begin(), records.end()), records.end());
    return surroundings;
}

bool CoverageCheck::comparePairs(FindingList &findings)
{
    shapes.clear();
    for (size_t i = 0; i < isSuspect.size(); ++i)
        shapes.push_back(geos.owned(nullptr));
    for (unsigned a = 0; a < isSuspect.size(); ++a) {
        if (!isSuspect[a])
            continue;
        for (const unsigned b : cover.near(map.polygons()[a].extent)) {
            if (control.isCancelled())
                return false;
            if (b > a && isSuspect[b] && map.contend(map.polygons()[a], map.polygons()[b]))
                compare(a, b, findings);
        }
        shapes[a].reset();
    }
    return true;
}

const GeosContext::Geometry &CoverageCheck::shapeOf(unsigned polygon)
{
    if (!shapes[polygon]) {
        const PlanePolygon rings = MapView::copy(map.polygons()[polygon]);
        shapes[polygon] = geos.polygon(rings.outer, rings.holes);
    }
    return shapes[polygon];
}

void CoverageCheck::compare(unsigned a, unsigned b, FindingList &findings)
{
    const MapView::Polygon &one = map.polygons()[a];
    const MapView::Polygon &other = map.polygons()[b];
    double area = 0.0;
    RingExtent extent;
    PlanePolygon largest;
    for (PlanePolygon &part : geos.polygons(geos.common(shapeOf(a), shapeOf(b)), one.record)) {
        const double partArea = polygonArea(part);
        if (isArtefact(partArea, PlaneShape::perimeter(part)))
            continue;
        area += partArea;
        const RingExtent partExtent = PlaneShape::extent(part);
        extent.include(partExtent);
        if (largest.outer.empty() || partArea > polygonArea(largest))
            largest = std::move(part);
    }
    if (largest.outer.empty())
        return;
    const bool isSame = area > sameShape * std::max(MapView::area(one), MapView::area(other));
    const PlaneVertex point = pointInside(geos, largest);
    MapFinding finding;
    finding.kind = isSame ? MapFinding::Kind::Duplicate : MapFinding::Kind::Overlap;
    finding.records = {std::min(one.record, other.record)};
    if (one.record != other.record)
        finding.records.append(std::max(one.record, other.record));
    finding.area = area;
    finding.place = QPointF(point.x, point.y);
    finding.extent = PlaneShape::rectangle(extent);
    const QString who = FindingText::records(finding.records);
    if (one.record == other.record)
        finding.text = BackendText::tr("parts of %1 overlap on %2").arg(who, FindingText::squareMetres(area));
    else if (isSame)
        finding.text = BackendText::tr("%1 have the same shape, %2").arg(who, FindingText::squareMetres(area));
    else
        finding.text = BackendText::tr("%1 overlap on %2").arg(who, FindingText::squareMetres(area));
    findings.add(finding, area);
}
