#include "ringtree.h"

#include <algorithm>
#include <boost/geometry/algorithms/covered_by.hpp>
#include <boost/geometry/algorithms/intersects.hpp>
#include <boost/geometry/geometries/box.hpp>
#include <boost/geometry/geometries/point_xy.hpp>
#include <boost/geometry/index/rtree.hpp>
#include <boost/iterator/function_output_iterator.hpp>
#include <utility>

namespace {

namespace index = boost::geometry::index;
using Point = boost::geometry::model::d2::point_xy<double>;
using Box = boost::geometry::model::box<Point>;
using Entry = std::pair<Box, unsigned>;

Box boxOf(const RingExtent &extent)
{
    return {{extent.minX, extent.minY}, {extent.maxX, extent.maxY}};
}

std::vector<Entry> entriesOf(const std::vector<RingExtent> &extents)
{
    std::vector<Entry> entries;
    entries.reserve(extents.size());
    for (size_t i = 0; i < extents.size(); ++i) {
        // The library takes no box that is inside out.
        if (!extents[i].isEmpty())
            entries.emplace_back(boxOf(extents[i]), static_cast<unsigned>(i));
    }
    return entries;
}

} // namespace

class RingTree::Boxes {
public:
    explicit Boxes(const std::vector<RingExtent> &extents)
        : tree(entriesOf(extents))
    {
    }

    template <typename Predicate> Places that(const Predicate &predicate) const
    {
        Places places;
        const auto keep = [&places](const Entry &entry) { places.append(entry.second); };
        tree.query(predicate, boost::make_function_output_iterator(keep));
        return places;
    }

private:
    index::rtree<Entry, index::rstar<16>> tree;
};

void RingExtent::include(double x, double y)
{
    minX = std::min(minX, x);
    minY = std::min(minY, y);
    maxX = std::max(maxX, x);
    maxY = std::max(maxY, y);
}

RingExtent RingExtent::of(const PlaneVertex *vertices, size_t count)
{
    RingExtent extent;
    for (size_t i = 0; i < count; ++i)
        extent.include(vertices[i].x, vertices[i].y);
    return extent;
}

RingTree::RingTree(const std::vector<RingExtent> &extents)
    : boxes(std::make_unique<Boxes>(extents))
{
}

RingTree::~RingTree() = default;

RingTree::Places RingTree::holding(double x, double y) const
{
    return boxes->that(index::intersects(Point(x, y)));
}

RingTree::Places RingTree::covering(const RingExtent &extent) const
{
    return boxes->that(index::covers(boxOf(extent)));
}

RingTree::Places RingTree::meeting(const RingExtent &extent) const
{
    return boxes->that(index::intersects(boxOf(extent)));
}
