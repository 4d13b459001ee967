#pragma once

#include "ringtree.h"
#include "ringview.h"
#include "slabindex.h"

#include <vector>

/// Says which outer ring the renderer cuts a hole from. The renderer is not told which hole belongs to which polygon:
/// it cuts a hole from the first outer ring, in the order of drawing, that is larger by more than ten square metres and
/// holds all of its vertices (taken as single-precision numbers).
class RendererHoleRule {
public:
    static constexpr int nowhere = -1;

    /// `outers` in the order of drawing; their vertices are not copied and must outlive this.
    explicit RendererHoleRule(std::vector<RingView> outers);

    /// Places of all outer rings that fulfil the conditions, ascending.
    std::vector<int> takers(const PlaneVertex *hole, size_t count, double area) const;
    /// Place of the outer ring that the hole is cut from, or `nowhere`.
    int taker(const PlaneVertex *hole, size_t count, double area) const;

private:
    RingTree::Places candidates(const PlaneVertex *hole, size_t count) const;
    bool takes(unsigned outer, const PlaneVertex *hole, size_t count, double area) const;

    std::vector<RingView> outers;
    std::vector<SlabIndex> indexes;
    RingTree tree;
};
