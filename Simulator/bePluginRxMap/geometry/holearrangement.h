#pragma once

#include "planering.h"
#include "rendererholerule.h"

#include <utility>
#include <vector>

/// Puts polygons into an order of drawing in which the renderer cuts every hole from the polygon that it belongs to.
/// The order of the records is kept where polygons overlap: the later one is drawn last. An island goes before the
/// polygon in whose hole it lies. A hole that no order puts right becomes part of its outer ring.
class HoleArrangement {
public:
    /// Arranges `polygons`; returns the number of holes that stay in the wrong place.
    static int arrange(std::vector<PlanePolygon> &polygons);

private:
    explicit HoleArrangement(std::vector<PlanePolygon> &toArrange);

    /// False when something was changed so that another round is needed.
    bool round();
    void judge(size_t owner, size_t hole, const std::vector<int> &takers);
    bool isInHoleOf(size_t inner, size_t outer) const;
    /// Whether any of the holes in `toJoin` could be joined to its outer ring.
    bool joinHoles();
    bool sort();
    std::vector<int> sortedAsFarAsPossible() const;
    std::vector<RingView> outers() const;
    int misplaced() const;

    std::vector<PlanePolygon> &polygons;
    /// Who must be drawn before whom.
    std::vector<std::pair<int, int>> order;
    /// Polygon and hole, ascending.
    std::vector<std::pair<size_t, size_t>> toJoin;
};
