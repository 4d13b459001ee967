#include "countedmap.h"

#include "bePluginRxMap/dbgrouprxmap.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

/// The vertices as places; the first one is repeated at the end.
std::vector<QPointF> closedRing(const OrvikTypes::RX_POLYGON &record)
{
    std::vector<QPointF> places;
    for (quint32 i = 0; i <= record.vertexCount; ++i) {
        const auto &vertex = record.vertices[i < record.vertexCount ? i : 0];
        places.emplace_back(vertex.x, vertex.y);
    }
    return places;
}

bool isInside(const OrvikTypes::RX_POLYGON &ring, const QPointF &place)
{
    bool inside = false;
    for (quint32 i = 0; i < ring.vertexCount; ++i) {
        const auto &a = ring.vertices[i];
        const auto &b = ring.vertices[i + 1 < ring.vertexCount ? i + 1 : 0];
        if ((a.y > place.y()) != (b.y > place.y()) && place.x() > a.x + (place.y() - a.y) / (b.y - a.y) * (b.x - a.x))
            inside = !inside;
    }
    return inside;
}

QRectF boxOf(const std::vector<QPointF> &places)
{
    const auto [west, east] = std::minmax_element(places.begin(), places.end(),
                                                  [](const QPointF &a, const QPointF &b) { return a.x() < b.x(); });
    const auto [south, north] = std::minmax_element(places.begin(), places.end(),
                                                    [](const QPointF &a, const QPointF &b) { return a.y() < b.y(); });
    return {QPointF(west->x(), south->y()), QPointF(east->x(), north->y())};
}

} // namespace

CountedMap::CountedMap(const DbGroupRxMap &map)
{
    const auto *record = static_cast<const OrvikTypes::RX_POLYGON *>(map.getPolygonBuffer());
    for (; record != nullptr; record = record->next)
        rings.push_back({record, boxOf(closedRing(*record))});
}

double CountedMap::rateAt(const QPointF &place) const
{
    double rate = std::numeric_limits<double>::quiet_NaN();
    double below = rate;
    for (const Ring &ring : rings) {
        if (!ring.record->isHole)
            below = rate;
        // Holes follow their polygon.
        if (ring.box.contains(place) && isInside(*ring.record, place))
            rate = ring.record->isHole ? below : double(ring.record->rates[0]);
    }
    return rate;
}

bool CountedMap::isBorder(const Border &edge) const
{
    constexpr double aside = 0.01;
    const double before = rateAt(edge.middle - aside * edge.across);
    const double behind = rateAt(edge.middle + aside * edge.across);
    return before != behind && !(std::isnan(before) && std::isnan(behind));
}

std::vector<CountedMap::Border> CountedMap::borders(int mostEdges) const
{
    std::vector<Border> edges;
    for (const Ring &ring : rings) {
        const std::vector<QPointF> places = closedRing(*ring.record);
        for (size_t i = 1; i < places.size(); ++i) {
            const QPointF way = places[i] - places[i - 1];
            const double length = std::hypot(way.x(), way.y());
            if (length > 0.0)
                edges.push_back({0.5 * (places[i - 1] + places[i]), QPointF(way.y(), -way.x()) / length});
        }
    }
    const size_t apart = 1 + (edges.size() - 1) / size_t(mostEdges);
    std::vector<Border> found;
    for (size_t i = 0; i < edges.size(); i += apart) {
        if (isBorder(edges[i]))
            found.push_back(edges[i]);
    }
    return found;
}
