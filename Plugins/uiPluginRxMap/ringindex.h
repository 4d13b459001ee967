#pragma once

#include "Framework/rxpolygon.h"

#include <QVector>

/// Answers the even-odd test of one ring as isInsideRing() does, to the last bit, but looks only at edges near the
/// point's height: the ring's height is cut into bands of equal height, each listing the edges that reach into it.
/// Takes at most 4 entries per edge. The ring is not owned and may not change.
class RingIndex {
public:
    /// The ring has at least one vertex; its heights are 0 or between 1e-180 and 1e100, so that bands neither overflow
    /// nor vanish.
    RingIndex(const OrvikTypes::RX_POLYGONVERTEX *vertices, int count);

    bool isInside(double x, double y) const;

private:
    int bandOf(double y) const;
    /// The bands that the edge ending at vertex `i` can count in; an empty range for a horizontal edge.
    void bandsOfEdge(int i, int &first, int &last) const;

    const OrvikTypes::RX_POLYGONVERTEX *vertices;
    int count;
    double bottom = 0.0;
    double top = 0.0;
    double bandsPerMetre = 0.0;
    QVector<int> bandStart; ///< Position in `edges` of each band's first edge, and the end.
    QVector<int> edges;     ///< An edge is named by the vertex that it ends at.
};
