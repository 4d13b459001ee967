#pragma once

#include "ringtest.h"

#include "Framework/rxpolygon.h"

#include <QVector>

/// Hole placement as it is defined, each hole compared with each outer ring: what any faster way must equal.
/// One list of hole indexes per outer ring, in contour order.
inline QVector<QVector<int>> plainPlacement(const QVector<OrvikTypes::RX_POLYGON *> &outers,
                                            const QVector<OrvikTypes::RX_POLYGON *> &holes)
{
    QVector<int> live;
    for (int i = 0; i < holes.size(); ++i)
        live.append(i);
    QVector<QVector<int>> cut;
    for (const OrvikTypes::RX_POLYGON *outer : outers) {
        QVector<int> here;
        const QVector<int> snapshot = live;
        int position = 0;
        for (int hole : snapshot) {
            const OrvikTypes::RX_POLYGON &ring = *holes.at(hole);
            bool isInside = outer->area - 10.0 > ring.area && vertexCount(ring) > 0;
            for (int i = 0; isInside && i < vertexCount(ring); ++i) {
                const auto x = static_cast<float>(ring.vertices[i].x);
                const auto y = static_cast<float>(ring.vertices[i].y);
                isInside =
                    isInsideRing(outer->vertices, vertexCount(*outer), static_cast<double>(x), static_cast<double>(y));
            }
            if (!isInside) {
                ++position;
                continue;
            }
            here.append(hole);
            if (position < live.size())
                live.remove(position);
        }
        cut.append(here);
    }
    return cut;
}
