#pragma once

#include "result.h"

#include <QPolygonF>

#include <optional>
#include <vector>

class DbGroupRxMap;

/// The ground that a map covers, as rings in metres of the local plane; rings may overlap and touch.
class FieldArea {
public:
    struct Span {
        double from = 0.0;
        double to = 0.0;
        double length() const { return to - from; }
    };

    FieldArea() = default;
    explicit FieldArea(std::vector<QPolygonF> rings)
        : allRings(std::move(rings))
    {
    }
    /// The outer rings of a published map: what lies in their holes has to be driven over as well.
    static FieldArea ofMap(const DbGroupRxMap &map);

    const std::vector<QPolygonF> &rings() const { return allRings; }
    /// The heading of the longer sides of the smallest rectangle around the area (Freeman and Shapira 1975), radians
    /// from 0 up to half a turn.
    double longestSide() const;
    /// How far the area reaches to the right of the origin for somebody with that heading, metres.
    Span acrossExtent(double heading) const;
    /// Cuts the area into strips of that heading, each `width` metres wide, the first beginning `from` metres to the
    /// right of the origin. Returns how far the area reaches along each; nothing for a strip that misses it.
    std::vector<std::optional<Span>> strips(double heading, double from, double width, int count) const;
    /// What lies more than `distance` metres inside the area as a whole, its holes filled.
    Result<FieldArea> inset(double distance) const;

private:
    std::vector<QPolygonF> allRings;
};
