#pragma once

#include "planering.h"

#include <boost/geometry/algorithms/assign.hpp>
#include <boost/geometry/algorithms/covered_by.hpp>
#include <boost/geometry/algorithms/expand.hpp>
#include <boost/geometry/algorithms/intersects.hpp>
#include <boost/geometry/geometries/box.hpp>
#include <boost/geometry/geometries/point_xy.hpp>
#include <boost/geometry/index/rtree.hpp>
#include <cstddef>
#include <utility>

using TreePoint = boost::geometry::model::d2::point_xy<double>;
using TreeBox = boost::geometry::model::box<TreePoint>;
/// The extent of a ring, and its place in some list.
using TreeEntry = std::pair<TreeBox, unsigned>;
/// Built from all entries at once, which packs them.
using RingTree = boost::geometry::index::rtree<TreeEntry, boost::geometry::index::rstar<16>>;

/// Extent of a ring; an inside-out box for a ring without vertices.
inline TreeBox extentOf(const PlaneVertex *vertices, size_t count)
{
    TreeBox box;
    boost::geometry::assign_inverse(box);
    for (size_t i = 0; i < count; ++i)
        boost::geometry::expand(box, TreePoint(vertices[i].x, vertices[i].y));
    return box;
}
