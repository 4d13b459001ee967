#include "slabindex.h"

#include <algorithm>
#include <limits>
#include <numeric>

namespace {

constexpr size_t edgesPerSlab = 4;

} // namespace

SlabIndex::SlabIndex(const PlaneVertex *ringVertices, size_t vertexCount)
    : vertices(ringVertices)
    , count(vertexCount)
    , minY(std::numeric_limits<double>::infinity())
    , maxY(-std::numeric_limits<double>::infinity())
{
    for (size_t i = 0; i < count; ++i) {
        minY = std::min(minY, vertices[i].y);
        maxY = std::max(maxY, vertices[i].y);
    }
    if (pays(count) && maxY > minY)
        buildSlabs();
}

size_t SlabIndex::slabOf(double y) const
{
    const size_t last = slabs->starts.size() - 2;
    return std::min(last, static_cast<size_t>((y - minY) * slabs->perMetre));
}

void SlabIndex::buildSlabs()
{
    const size_t slabCount = count / edgesPerSlab;
    slabs = std::make_unique<Slabs>();
    slabs->perMetre = static_cast<double>(slabCount) / (maxY - minY);
    std::vector<size_t> &starts = slabs->starts;
    starts.assign(slabCount + 1, 0);
    const auto forEachSlab = [this](size_t i, auto visit) {
        const PlaneVertex &from = vertices[i == 0 ? count - 1 : i - 1];
        const PlaneVertex &to = vertices[i];
        if (from.y == to.y)
            return;
        const size_t last = slabOf(std::max(from.y, to.y));
        for (size_t slab = slabOf(std::min(from.y, to.y)); slab <= last; ++slab)
            visit(slab);
    };
    for (size_t i = 0; i < count; ++i)
        forEachSlab(i, [&starts](size_t slab) { ++starts[slab + 1]; });
    std::partial_sum(starts.begin(), starts.end(), starts.begin());
    slabs->edges.resize(starts.back());
    std::vector<size_t> next(starts.begin(), starts.end() - 1);
    for (size_t i = 0; i < count; ++i)
        forEachSlab(i, [this, &next, i](size_t slab) { slabs->edges[next[slab]++] = static_cast<unsigned>(i); });
}
