#pragma once

#include "boxindex.h"
#include "ringraster.h"

#include "Framework/rxpolygon.h"

#include <QScopedPointer>

/// One outer ring that holes are tested against, by a raster where they are many.
/// The ring is not owned and may not change.
class OuterRing {
public:
    explicit OuterRing(const OrvikTypes::RX_POLYGON &ring);

    /// Whether box() is known, and only holes inside it can be inside the ring.
    bool isOrdinary() const { return ordinary; }
    const Box &box() const { return outerBox; }

    /// Says that so many vertices of holes are about to be tested.
    void prepareFor(qint64 points);
    /// Whether every vertex of the hole, narrowed to float, is inside; false for a hole without vertices. `holeBox` is
    /// their box; it is not looked at unless prepareFor() was called.
    bool contains(const OrvikTypes::RX_POLYGON &hole, const Box &holeBox);

private:
    Q_DISABLE_COPY(OuterRing)

    bool isInside(double x, double y);

    const OrvikTypes::RX_POLYGONVERTEX *vertices;
    int count;
    Box outerBox;
    bool ordinary;
    QScopedPointer<RingRaster> raster;
};
