#pragma once

#include "handmadechain.h"

#include <QMap>
#include <QString>
#include <QVector>

/// Counts in maps the cases that make placing holes hard, each found by comparing each with each.
class MapStatistics {
public:
    enum Case {
        CutHole,     ///< Holes cut from an outer ring.
        PointOnLine, ///< Narrowed vertices of holes exactly on a line of an outer ring that might take the hole.
        PointNarrowedOntoLine, ///< Those of them that lie beside the line before narrowing.
        OddHole,           ///< Holes with a vertex that is not finite in an ordinary ring, and all others inside it.
        HoleInOddRing,     ///< Holes cut from an outer ring that is not ordinary.
        EdgeShared,        ///< Edges that an outer ring and a hole of it have in common.
        HolesThatTouch,    ///< Pairs of holes of one outer ring that have a vertex in common.
        PlacedByNarrowing, ///< Maps whose holes would be placed otherwise if they were not narrowed.
    };
    using Counts = QMap<Case, int>;

    void add(HandMadeChain &chain);
    /// Each case found more seldom than `least` says, with both numbers; empty where there is none.
    QString shortOf(const Counts &least) const;

private:
    void addOuter(const OrvikTypes::RX_POLYGON &outer, const QVector<OrvikTypes::RX_POLYGON *> &candidates);
    void addCut(const OrvikTypes::RX_POLYGON &outer, const QVector<OrvikTypes::RX_POLYGON *> &cut);

    Counts found;
};

Q_DECLARE_METATYPE(MapStatistics::Counts)
