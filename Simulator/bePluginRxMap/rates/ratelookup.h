#pragma once

#include "ringtree.h"
#include "slabindex.h"

#include "Framework/rxpolygon.h"

#include <QList>

#include <limits>
#include <memory>
#include <vector>

/// The rates at points of a published map; every rate query ends here.
///
/// A polygon covers what the renderer fills for it: its outer ring less the holes that the renderer cuts from it. A
/// point on an edge that two polygons share belongs to exactly one of them. Where polygons overlap, the one drawn last
/// counts; one without a rate in a column draws nothing for that column and so leaves it to the one below.
class RateLookup {
public:
    struct Answer {
        /// One per mapping, base units; not a number where no polygon gives a rate. Empty when no polygon gives any.
        QList<float> rates;
        bool hasRate(int mapping) const;
    };

    /// `first` heads a chain of `count` records, which must outlive the look-up and stay as they are (except for
    /// "drawIndex"); each has `mappings` rates. `takers` names for each hole the outer ring of the chain, from 0, that
    /// it is cut from; RendererHoleRule::nowhere for none.
    RateLookup(const OrvikTypes::RX_POLYGON *first, unsigned count, size_t mappings, const std::vector<int> &takers);

    /// The answer has no rates for a point that no polygon covers, or with a coordinate that is not finite.
    Answer ratesAt(double x, double y) const;

private:
    bool covers(unsigned outer, double x, double y) const;

    static constexpr unsigned none = std::numeric_limits<unsigned>::max();

    /// A map may have very many short outer rings without holes; this and their extents are all that is kept of them.
    struct Outer {
        const OrvikTypes::RX_POLYGON *record = nullptr;
        unsigned detail = none; ///< Place among the details.
    };
    struct Detail {
        std::unique_ptr<SlabIndex> ring; ///< Null for a short ring.
        std::vector<SlabIndex> holes;    ///< Those that are cut from it.
    };

    /// Takes the outer rings of the chain, about `expected`; returns their extents.
    std::vector<RingExtent> takeOuters(const OrvikTypes::RX_POLYGON *first, unsigned count, size_t expected);
    Detail &detailOf(Outer &outer);

    size_t mappings;
    std::vector<Outer> outers; ///< In the order of drawing.
    std::vector<Detail> details;
    RingTree tree;
};
