#pragma once

#include <QPointF>
#include <QRectF>

#include <vector>

class DbGroupRxMap;

namespace OrvikTypes {
struct RX_POLYGON;
}

/// The first column of a published map, read in the simplest way: by counting the edges west of a place, ring after
/// ring, without the back-end's index. The map must not change meanwhile.
class CountedMap {
public:
    /// An edge with a different rate on its other side: its middle, and a vector across it, one metre long.
    struct Border {
        QPointF middle;
        QPointF across;
    };

    explicit CountedMap(const DbGroupRxMap &map);

    /// Base units; NaN when there is no rate.
    double rateAt(const QPointF &place) const;
    /// The borders among at most `mostEdges` edges, which are taken from all edges at even intervals.
    std::vector<Border> borders(int mostEdges) const;

private:
    struct Ring {
        const OrvikTypes::RX_POLYGON *record;
        QRectF box;
    };

    bool isBorder(const Border &edge) const;

    std::vector<Ring> rings;
};
