#pragma once

#include "Backend/mapfinding.h"

#include <cstddef>
#include <map>
#include <vector>

/// Collects the findings of a check and keeps the gravest of each kind; the others are reported together, so that they
/// flood neither the reader nor the memory.
class FindingList {
public:
    /// This many of a kind are reported one by one.
    static constexpr size_t mostOfAKind = 100;

    /// `weight`: the greater, the graver is the finding among those of its kind.
    void add(MapFinding finding, double weight);
    /// By kind, the gravest first, then the one that stands for the rest.
    QList<MapFinding> take();

private:
    struct Weighed {
        double weight;
        size_t order; ///< Of two equally grave findings the earlier comes first.
        MapFinding finding;

        bool isGraver(const Weighed &other) const
        {
            return weight != other.weight ? weight > other.weight : order < other.order;
        }
    };
    /// The findings of one kind.
    struct Share {
        std::vector<Weighed> gravest; ///< A heap, the least grave at its front.
        size_t others = 0;
        double otherArea = 0.0;
        QList<int> otherRecords;
    };

    static void setAside(const MapFinding &finding, Share &share);
    static MapFinding summary(MapFinding::Kind kind, const Share &share);

    std::map<MapFinding::Kind, Share> shares;
    size_t count = 0;
};
