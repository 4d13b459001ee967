#include "ringtree.h"

#include <algorithm>
#include <boost/geometry/algorithms/covered_by.hpp>
#include <boost/geometry/algorithms/intersects.hpp>
#include <boost/geometry/geometries/box.hpp>
#include <boost/geometry/geometries/point_xy.hpp>
#include <boost/geometry/index/rtree.hpp>
#include <boost/iterator/function_output_iterator.hpp>
#include <cmath>
#include <utility>

namespace {

namespace index = boost::geometry::index;
using Point = boost::geometry::model::d2::point_xy<double>;
using Box = boost::geometry::model::box<Point>;

/// Rings first ... end - 1 of the list.
struct Run {
    unsigned first;
    unsigned end;
};
using Entry = std::pair<Box, Run>;

/// At most this many rings share an entry of the tree.
constexpr unsigned longestRun = 8;
/// Entries per node.
constexpr size_t nodeSize = 8;

/// An extent in single precision, which takes half the room; larger than the one it stands for by up to three of its
/// last digits. Metres, below 10^38.
struct NarrowExtent {
    float minX = std::numeric_limits<float>::max();
    float minY = std::numeric_limits<float>::max();
    float maxX = std::numeric_limits<float>::lowest();
    float maxY = std::numeric_limits<float>::lowest();

    static NarrowExtent around(const RingExtent &extent)
    {
        if (extent.isEmpty())
            return {};
        return {below(extent.minX), below(extent.minY), above(extent.maxX), above(extent.maxY)};
    }
    bool covers(const RingExtent &other) const
    {
        return double(minX) <= other.minX && double(minY) <= other.minY && double(maxX) >= other.maxX
            && double(maxY) >= other.maxY;
    }
    bool meets(const RingExtent &other) const
    {
        return double(minX) <= other.maxX && double(minY) <= other.maxY && double(maxX) >= other.minX
            && double(maxY) >= other.minY;
    }

private:
    /// A conversion is off by half of the last digit, 2^-24 of the number, or for the least numbers by less than the
    /// least normal one. More than that is taken off, or added, beforehand.
    static double slack(double value) { return std::fabs(value) * 0x1p-23 + std::numeric_limits<float>::min(); }
    static float below(double value) { return static_cast<float>(value - slack(value)); }
    static float above(double value) { return static_cast<float>(value + slack(value)); }
};

Box boxOf(const RingExtent &extent)
{
    return {{extent.minX, extent.minY}, {extent.maxX, extent.maxY}};
}

double halfPerimeter(const RingExtent &extent)
{
    return extent.maxX - extent.minX + extent.maxY - extent.minY;
}

/// Entries for runs of neighbours in the list whose common extent is no longer around than theirs put together; most
/// lists are sorted by place. The library accepts no inside-out box, so such extents are in no run.
std::vector<Entry> entriesOf(const std::vector<RingExtent> &extents)
{
    std::vector<Entry> entries;
    entries.reserve(extents.size() / longestRun);
    for (unsigned first = 0, end = 0; first < extents.size(); first = end) {
        RingExtent common = extents[first];
        double perimeters = halfPerimeter(common);
        for (end = first + 1; end < extents.size() && end - first < longestRun && !extents[end].isEmpty(); ++end) {
            RingExtent larger = common;
            larger.include(extents[end]);
            perimeters += halfPerimeter(extents[end]);
            if (!(halfPerimeter(larger) <= perimeters))
                break;
            common = larger;
        }
        if (!common.isEmpty())
            entries.emplace_back(boxOf(common), Run{first, end});
    }
    return entries;
}

std::vector<NarrowExtent> narrowed(const std::vector<RingExtent> &extents)
{
    std::vector<NarrowExtent> result;
    result.reserve(extents.size());
    for (const RingExtent &extent : extents)
        result.push_back(NarrowExtent::around(extent));
    return result;
}

} // namespace

class RingTree::Boxes {
public:
    explicit Boxes(const std::vector<RingExtent> &rings)
        : extents(narrowed(rings))
        , tree(entriesOf(rings))
    {
    }

    /// Those rings of the entries picked by the predicate that are themselves wanted.
    template <typename Predicate, typename IsWanted> Places that(const Predicate &predicate, IsWanted isWanted) const
    {
        Places places;
        const auto keep = [this, &places, isWanted](const Entry &entry) {
            for (unsigned ring = entry.second.first; ring < entry.second.end; ++ring) {
                if (isWanted(extents[ring]))
                    places.append(ring);
            }
        };
        tree.query(predicate, boost::make_function_output_iterator(keep));
        return places;
    }

private:
    std::vector<NarrowExtent> extents;
    index::rtree<Entry, index::rstar<nodeSize>> tree;
};

RingTree::RingTree(const std::vector<RingExtent> &extents)
    : boxes(std::make_unique<Boxes>(extents))
{
}

RingTree::~RingTree() = default;

RingTree::Places RingTree::holding(double x, double y) const
{
    const RingExtent point = {x, y, x, y};
    return boxes->that(index::intersects(Point(x, y)),
                       [&point](const NarrowExtent &ring) { return ring.covers(point); });
}

RingTree::Places RingTree::covering(const RingExtent &extent) const
{
    return boxes->that(index::covers(boxOf(extent)),
                       [&extent](const NarrowExtent &ring) { return ring.covers(extent); });
}

RingTree::Places RingTree::meeting(const RingExtent &extent) const
{
    return boxes->that(index::intersects(boxOf(extent)),
                       [&extent](const NarrowExtent &ring) { return ring.meets(extent); });
}
