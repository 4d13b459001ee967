#pragma once

#include "Framework/rxpolygon.h"

#include <QVector>

/// Decides which outer ring each hole is cut from: the first one, in the order given, that is more than 10 m² larger
/// and has every vertex of the hole inside (the hole's coordinates narrowed to float). A hole without vertices, or
/// inside no outer ring, is placed nowhere. The rings are not owned and may not change meanwhile.
/// By design: the order decides, not which ring lies closest around; a hole of an island goes to the ring around the
/// island where that comes first.
///
/// Comparing each hole with each outer ring would cost seconds on maps with tens of thousands of rings; a tree of
/// boxes and rows of edges leave out only comparisons whose result is known.
class HolePlacement {
public:
    HolePlacement(const QVector<OrvikTypes::RX_POLYGON *> &outers, const QVector<OrvikTypes::RX_POLYGON *> &holes);

    /// The holes of an outer ring, in the order given: the first one, the one that follows; -1 ends the list.
    int firstHole(int outer) const { return first.isEmpty() ? -1 : first.at(outer); }
    int nextHole(int hole) const { return next.at(hole); }
    bool isPlaced(int hole) const { return placed.at(hole); }

private:
    QVector<int> first;
    QVector<int> next;
    QVector<bool> placed;
};
