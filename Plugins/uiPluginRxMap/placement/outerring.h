#pragma once

#include "boxindex.h"

#include "Framework/rxpolygon.h"

#include <QVector>

/// One outer ring that holes are tested against. Once that has been done for some points, the ring's edges are listed
/// by rows of heights, and only those in a point's row are looked at. The ring is not owned and may not change.
class OuterRing {
public:
    explicit OuterRing(const OrvikTypes::RX_POLYGON &ring);

    /// Whether box() is known, and only holes inside it can be inside the ring.
    bool isOrdinary() const { return ordinary; }
    const Box &box() const { return outerBox; }

    /// Whether every vertex of the hole, narrowed to float, is inside; false for a hole without vertices. The hole of
    /// an ordinary ring lies in its box.
    bool contains(const OrvikTypes::RX_POLYGON &hole);

private:
    Q_DISABLE_COPY(OuterRing)

    bool isInside(double x, double y);
    void listEdges();
    int rowOf(double y) const;
    const OrvikTypes::RX_POLYGONVERTEX &startOf(int edge) const { return vertices[edge == 0 ? count - 1 : edge - 1]; }

    const OrvikTypes::RX_POLYGONVERTEX *vertices;
    int count;
    Box outerBox;
    bool ordinary;
    int testedPoints = 0;
    double rowsPerMetre = 0.0;
    QVector<int>
        rowStart; ///< Position in `rowEdges` of each row's first edge, and the end; empty where none are listed.
    QVector<int> rowEdges; ///< An edge is named by the vertex that it ends at.
};
