#pragma once

#include "planering.h"

#include <cstddef>
#include <memory>
#include <vector>

/// Whether the ray from (x, y) towards greater x crosses the edge from `from` to `to`, computed step by step as the
/// renderer does when it decides whether a hole's vertex lies in an outer ring. Edges are half-open: the lower end
/// belongs to the edge, the upper one does not, and level edges never count.
struct RendererCrossing {
    bool operator()(const PlaneVertex &from, const PlaneVertex &to, double x, double y) const
    {
        const bool spans = (to.y <= y && y < from.y) || (from.y <= y && y < to.y);
        return spans && (from.x - to.x) * (y - to.y) / (from.y - to.y) + to.x > x;
    }
};

/// The same rule, always computed from the edge's lower end: two neighbours that run through a shared edge in opposite
/// directions come to the same result, so a point on the edge belongs to exactly one of them.
struct SharedEdgeCrossing {
    bool operator()(const PlaneVertex &from, const PlaneVertex &to, double x, double y) const
    {
        return from.y <= to.y ? RendererCrossing()(to, from, x, y) : RendererCrossing()(from, to, x, y);
    }
};

/// Tests points against one ring by the even-odd rule (ray casting). Long rings are cut into level slabs, so that a
/// test looks at the edges of one slab only. The vertices are not copied and must outlive the index.
class SlabIndex {
public:
    /// Whether a ring is long enough for the index to be worth keeping; a shorter one is tested edge by edge.
    static constexpr bool pays(size_t count) { return count >= 48; }

    SlabIndex(const PlaneVertex *vertices, size_t count);

    /// False for a ring without vertices, and for a point that is not a number.
    template <typename Crossing> bool contains(double x, double y, Crossing crosses) const
    {
        if (!(y >= minY && y <= maxY))
            return false;
        bool inside = false;
        if (!slabs) {
            for (size_t i = 0, j = count - 1; i < count; j = i++)
                inside ^= crosses(vertices[j], vertices[i], x, y);
            return inside;
        }
        const size_t slab = slabOf(y);
        for (size_t k = slabs->starts[slab]; k < slabs->starts[slab + 1]; ++k) {
            const size_t i = slabs->edges[k];
            inside ^= crosses(vertices[i == 0 ? count - 1 : i - 1], vertices[i], x, y);
        }
        return inside;
    }

private:
    /// Slab s holds the edges edges[starts[s] ... starts[s + 1]); an edge is named by its end's index.
    struct Slabs {
        double perMetre = 0.0;
        std::vector<size_t> starts;
        std::vector<unsigned> edges;
    };

    size_t slabOf(double y) const;
    void buildSlabs();

    const PlaneVertex *vertices;
    size_t count;
    double minY;
    double maxY;
    /// Null for short rings, of which a map may have very many.
    std::unique_ptr<Slabs> slabs;
};
