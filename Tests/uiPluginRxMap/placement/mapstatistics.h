#pragma once

#include "handmadechain.h"

#include <QMap>
#include <QString>
#include <QVector>

/// Counts, in maps, the cases that make it hard to place holes; each is found by comparing every ring with every other.
class MapStatistics {
public:
    enum Case {
        CutHole,     ///< Holes cut from an outer ring.
        PointOnLine, ///< Narrowed vertices of holes exactly on a line of an outer ring that might take the hole.
        PointNarrowedOntoLine, ///< Those that lie beside the line before narrowing.
        OddHole,               ///< Holes in an ordinary ring with a vertex that is not finite but all others inside.
        HoleInOddRing,         ///< Holes cut from an outer ring that is not ordinary.
        EdgeShared,            ///< Edges that an outer ring and one of its holes share.
        HolesThatTouch,        ///< Pairs of holes of one outer ring that share a vertex.
        PlacedByNarrowing,     ///< Maps whose holes would be placed differently if they were not narrowed.
    };
    using Counts = QMap<Case, int>;

    void add(HandMadeChain &chain);
    /// Each case found less often than `least` says, with both numbers; empty when there is none.
    QString shortOf(const Counts &least) const;

private:
    void addOuter(const OrvikTypes::RX_POLYGON &outer, const QVector<OrvikTypes::RX_POLYGON *> &candidates);
    void addCut(const OrvikTypes::RX_POLYGON &outer, const QVector<OrvikTypes::RX_POLYGON *> &cut);

    Counts found;
};

Q_DECLARE_METATYPE(MapStatistics::Counts)
