#pragma once

#include "handmadechain.h"
#include "placement/holeplacement.h"
#include "placement/ringlists.h"

#include <QVector>

inline RingLists split(HandMadeChain &chain)
{
    return RingLists(chain.first(), chain.count());
}

/// Where the class under test places the holes, as one list of hole indexes per outer ring; no lists at all when asking
/// it hole by hole gives another result.
inline QVector<QVector<int>> placed(const RingLists &rings)
{
    const HolePlacement placement(rings.outers, rings.holes);
    QVector<QVector<int>> cut;
    for (int outer = 0; outer < rings.outers.size(); ++outer) {
        QVector<int> here;
        for (int hole = placement.firstHole(outer); hole >= 0; hole = placement.nextHole(hole))
            here.append(hole);
        cut.append(here);
    }
    for (int hole = 0; hole < rings.holes.size(); ++hole) {
        bool found = false;
        for (const QVector<int> &here : qAsConst(cut))
            found = found || here.contains(hole);
        if (found != placement.isPlaced(hole))
            return {};
    }
    return cut;
}
