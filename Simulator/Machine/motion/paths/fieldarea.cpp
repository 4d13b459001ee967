#include "fieldarea.h"

#include "pose.h"

#include "bePluginRxMap/dbgrouprxmap.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>
#include <ogr_geometry.h>

namespace {

using Span = FieldArea::Span;

double cross(const QPointF &origin, const QPointF &a, const QPointF &b)
{
    return (a.x() - origin.x()) * (b.y() - origin.y()) - (a.y() - origin.y()) * (b.x() - origin.x());
}

/// Monotone chain (Andrew 1979); counterclockwise, without the closing point.
std::vector<QPointF> convexHull(std::vector<QPointF> points)
{
    const auto isLess = [](const QPointF &a, const QPointF &b) {
        return a.x() < b.x() || (a.x() == b.x() && a.y() < b.y());
    };
    std::sort(points.begin(), points.end(), isLess);
    std::vector<QPointF> hull;
    for (const int half : {0, 1}) {
        const size_t base = hull.size();
        for (const QPointF &point : points) {
            while (hull.size() >= base + 2 && cross(hull[hull.size() - 2], hull.back(), point) <= 0.0)
                hull.pop_back();
            hull.push_back(point);
        }
        hull.pop_back();
        if (half == 0)
            std::reverse(points.begin(), points.end());
    }
    return hull;
}

Span extent(const std::vector<QPointF> &points, const QPointF &axis)
{
    Span span{std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity()};
    for (const QPointF &point : points) {
        const double along = QPointF::dotProduct(point, axis);
        span = {std::min(span.from, along), std::max(span.to, along)};
    }
    return span;
}

std::vector<QPointF> allPoints(const std::vector<QPolygonF> &rings)
{
    std::vector<QPointF> points;
    for (const QPolygonF &ring : rings)
        points.insert(points.end(), ring.begin(), ring.end());
    return points;
}

void widen(std::optional<Span> &span, double value)
{
    span = span ? Span{std::min(span->from, value), std::max(span->to, value)} : Span{value, value};
}

/// Lets every strip know how far an edge reaches along it; the edge's ends are (across, along), in strips and metres.
void addEdge(std::vector<std::optional<Span>> &strips, QPointF a, QPointF b)
{
    if (a.x() > b.x())
        std::swap(a, b);
    const auto last = static_cast<double>(strips.size()) - 1.0;
    const double firstStrip = std::max(0.0, std::floor(a.x()));
    for (double strip = firstStrip; strip <= std::min(last, std::floor(b.x())); strip += 1.0) {
        const auto alongAt = [&a, &b](double across) {
            const double part = b.x() > a.x() ? (across - a.x()) / (b.x() - a.x()) : 0.0;
            return a.y() + std::clamp(part, 0.0, 1.0) * (b.y() - a.y());
        };
        std::optional<Span> &span = strips[static_cast<size_t>(strip)];
        widen(span, alongAt(strip));
        widen(span, b.x() <= strip + 1.0 ? b.y() : alongAt(strip + 1.0));
    }
}

using Geometry = std::unique_ptr<OGRGeometry>;

Geometry toGeometry(const std::vector<QPolygonF> &rings)
{
    auto area = std::make_unique<OGRMultiPolygon>();
    for (const QPolygonF &ring : rings) {
        OGRLinearRing line;
        for (const QPointF &point : ring)
            line.addPoint(point.x(), point.y());
        line.closeRings();
        OGRPolygon polygon;
        polygon.addRing(&line);
        area->addGeometry(&polygon);
    }
    return area;
}

std::vector<QPolygonF> outerRings(const OGRGeometry &geometry)
{
    std::vector<QPolygonF> rings;
    const auto take = [&rings](const OGRPolygon &polygon) {
        const OGRLinearRing *line = polygon.getExteriorRing();
        QPolygonF ring;
        for (int i = 0; line != nullptr && i + 1 < line->getNumPoints(); ++i)
            ring.append(QPointF(line->getX(i), line->getY(i)));
        if (ring.size() >= 3)
            rings.push_back(ring);
    };
    const OGRwkbGeometryType type = wkbFlatten(geometry.getGeometryType());
    if (type == wkbPolygon)
        take(*geometry.toPolygon());
    else if (type == wkbMultiPolygon)
        for (const OGRPolygon *polygon : *geometry.toMultiPolygon())
            take(*polygon);
    return rings;
}

} // namespace

FieldArea FieldArea::ofMap(const DbGroupRxMap &map)
{
    std::vector<QPolygonF> rings;
    const auto *record = static_cast<const OrvikTypes::RX_POLYGON *>(map.getPolygonBuffer());
    for (unsigned left = map.getPolygonCount(); left > 0 && record != nullptr; record = record->next, --left) {
        if (record->isHole)
            continue;
        QPolygonF ring;
        for (quint32 i = 0; i < record->vertexCount; ++i)
            ring.append(QPointF(record->vertices[i].x, record->vertices[i].y));
        rings.push_back(ring);
    }
    return FieldArea(std::move(rings));
}

double FieldArea::longestSide() const
{
    const std::vector<QPointF> hull = convexHull(allPoints(allRings));
    double least = std::numeric_limits<double>::infinity();
    double heading = 0.0;
    for (size_t i = 0; i < hull.size(); ++i) {
        const QPointF edge = hull[(i + 1) % hull.size()] - hull[i];
        const Pose side{{}, headingOf(edge)};
        const double along = extent(hull, side.forward()).length();
        const double across = extent(hull, side.rightward()).length();
        if (along * across >= least)
            continue;
        least = along * across;
        heading = along >= across ? side.heading : headingOf(side.rightward());
    }
    const double halfTurn = std::acos(-1.0);
    const double turned = std::fmod(heading + 2.0 * halfTurn, halfTurn);
    return halfTurn - turned < 1e-9 ? 0.0 : turned;
}

Span FieldArea::acrossExtent(double heading) const
{
    return extent(allPoints(allRings), Pose{{}, heading}.rightward());
}

std::vector<std::optional<Span>> FieldArea::strips(double heading, double from, double width, int count) const
{
    const Pose frame{{}, heading};
    std::vector<std::optional<Span>> spans(static_cast<size_t>(std::max(0, count)));
    for (const QPolygonF &ring : allRings) {
        for (int i = 0; i < ring.size(); ++i) {
            const auto inStrips = [&](const QPointF &point) {
                return QPointF((QPointF::dotProduct(point, frame.rightward()) - from) / width,
                               QPointF::dotProduct(point, frame.forward()));
            };
            addEdge(spans, inStrips(ring.at(i)), inStrips(ring.at((i + 1) % ring.size())));
        }
    }
    return spans;
}

Result<FieldArea> FieldArea::inset(double distance) const
{
    const auto failure = [] {
        return Result<FieldArea>::failure(QStringLiteral("the field's outline cannot be made out"));
    };
    // Cells that almost touch are one area.
    constexpr double seam = 0.05;
    const Geometry together(toGeometry(allRings)->Buffer(seam, 2));
    if (!together)
        return failure();
    const Geometry whole = toGeometry(outerRings(*together));
    const Geometry inner(whole->Buffer(-distance - seam, 16));
    const Geometry plain(inner ? inner->SimplifyPreserveTopology(0.2) : nullptr);
    return plain ? Result<FieldArea>{FieldArea(outerRings(*plain)), {}} : failure();
}
