#pragma once

#include <QPointF>
#include <QRectF>

#include <vector>

class DbGroupRxMap;

namespace OrvikTypes {
struct RX_POLYGON;
}

/// A published map's first column as anybody would read it off: by counting the edges west of a place, ring after ring,
/// without the back-end's index. The map must stay as it is.
class CountedMap {
public:
    /// An edge with another rate on its other side: its middle, and the way across it, one metre long.
    struct Border {
        QPointF middle;
        QPointF across;
    };

    explicit CountedMap(const DbGroupRxMap &map);

    /// Base units; not a number where there is none.
    double rateAt(const QPointF &place) const;
    /// The borders among at most so many edges, which are taken from all of them at even distances.
    std::vector<Border> borders(int mostEdges) const;

private:
    struct Ring {
        const OrvikTypes::RX_POLYGON *record;
        QRectF box;
    };

    bool isBorder(const Border &edge) const;

    std::vector<Ring> rings;
};
