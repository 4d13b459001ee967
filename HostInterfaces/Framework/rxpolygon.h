#pragma once

#include "Framework/sharedmetatype.h"

#include <QColor>
#include <QList>

namespace OrvikTypes {

/// One ring vertex in the field's local plane, metres: x east, y north.
struct RX_POLYGONVERTEX {
    double x;
    double y;
};

/// One prescription ring. The records form a singly linked chain in the back-end's memory: readers never allocate or
/// free them, and write `drawIndex` only.
struct RX_POLYGON {
    double area;                ///< Size of the ring, square metres.
    qint32 drawIndex;           ///< Outer rings: place in drawing order from 1; a hole placed nowhere: -1.
    RX_POLYGONVERTEX *vertices; ///< The ring, closed implicitly from the last vertex to the first.
    quint32 vertexCount;        ///< Entries in `vertices`.
    float *rates;               ///< Target rates, base units; one per entry of the group's "rateCalMappings".
    bool isHole;                ///< True: an inner ring. False: an outer ring.
    RX_POLYGON *next;           ///< The next record of the chain, null after the last.
};

/// One class of a colour legend.
struct RX_RATECOLOR {
    double rate; ///< Upper limit of the class, inclusive, base units.
    QColor color;
};

inline bool operator==(const RX_RATECOLOR &a, const RX_RATECOLOR &b)
{
    return a.rate == b.rate && a.color == b.color;
}

} // namespace OrvikTypes

ORVIK_DECLARE_SHARED_METATYPE(OrvikTypes::RX_RATECOLOR)
ORVIK_DECLARE_SHARED_METATYPE(QList<OrvikTypes::RX_RATECOLOR>)
ORVIK_DECLARE_SHARED_METATYPE(QList<QList<OrvikTypes::RX_RATECOLOR>>)
