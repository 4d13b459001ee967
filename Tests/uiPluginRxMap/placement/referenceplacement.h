#pragma once

#include "Framework/rxpolygon.h"

#include <QVector>

#include <limits>

// Hole placement as it is defined. It shares nothing with the code under test, so that a mistake in one is not repeated
// in the other.

/// Number of a ring's vertices; 0 without a vertex array, or when the count does not fit an int.
inline int referenceVertexCount(const OrvikTypes::RX_POLYGON &ring)
{
    const bool isUsable =
        ring.vertices != nullptr && ring.vertexCount <= static_cast<quint32>(std::numeric_limits<int>::max());
    return isUsable ? static_cast<int>(ring.vertexCount) : 0;
}

/// A coordinate as it is tested, narrowed to float and widened again. Volatile: compilers have been seen to drop the
/// two conversions (g++ 12, where it puts two coordinates into one vector), and would do so here as well as in the code
/// under test.
inline double referenceNarrowed(double value)
{
    const volatile float narrow = static_cast<float>(value);
    return static_cast<double>(narrow);
}

/// Even-odd test from the definition: counts the edges that span the point's height and cross it right of the point.
inline bool referenceIsInside(const OrvikTypes::RX_POLYGONVERTEX *ring, int count, double x, double y)
{
    int crossings = 0;
    for (int i = 0; i < count; ++i) {
        const double xi = ring[i].x;
        const double yi = ring[i].y;
        const double xj = ring[(i + count - 1) % count].x;
        const double yj = ring[(i + count - 1) % count].y;
        const bool rises = yj <= y && y < yi;
        const bool falls = yi <= y && y < yj;
        if (!rises && !falls)
            continue;
        const double crossing = (xj - xi) * (y - yi) / (yj - yi) + xi;
        if (crossing > x)
            ++crossings;
    }
    return crossings % 2 == 1;
}

/// Compares each hole with each outer ring: any faster way must give the same. One list of hole indexes per outer ring,
/// in contour order. `asTested` turns a hole's coordinates into those that are tested.
inline QVector<QVector<int>> referencePlacement(const QVector<OrvikTypes::RX_POLYGON *> &outers,
                                                const QVector<OrvikTypes::RX_POLYGON *> &holes,
                                                double (*asTested)(double) = referenceNarrowed)
{
    QVector<int> live;
    for (int i = 0; i < holes.size(); ++i)
        live.append(i);
    QVector<QVector<int>> cut;
    for (const OrvikTypes::RX_POLYGON *outer : outers) {
        QVector<int> here;
        const QVector<int> snapshot = live;
        for (int hole : snapshot) {
            const OrvikTypes::RX_POLYGON &ring = *holes.at(hole);
            const int count = referenceVertexCount(ring);
            bool isInside = outer->area - 10.0 > ring.area && count > 0;
            for (int i = 0; isInside && i < count; ++i) {
                isInside = referenceIsInside(outer->vertices, referenceVertexCount(*outer),
                                             asTested(ring.vertices[i].x), asTested(ring.vertices[i].y));
            }
            if (isInside) {
                here.append(hole);
                live.removeOne(hole);
            }
        }
        cut.append(here);
    }
    return cut;
}
