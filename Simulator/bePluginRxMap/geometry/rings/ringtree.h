#pragma once

#include "planering.h"

#include <QVarLengthArray>

#include <algorithm>
#include <cstddef>
#include <limits>
#include <memory>
#include <vector>

/// The least upright rectangle around a ring, metres; inside out for a ring without vertices.
struct RingExtent {
    double minX = std::numeric_limits<double>::max();
    double minY = std::numeric_limits<double>::max();
    double maxX = std::numeric_limits<double>::lowest();
    double maxY = std::numeric_limits<double>::lowest();

    bool isEmpty() const { return minX > maxX || minY > maxY; }
    void include(double x, double y)
    {
        minX = std::min(minX, x);
        minY = std::min(minY, y);
        maxX = std::max(maxX, x);
        maxY = std::max(maxY, y);
    }
    /// `other` is not empty.
    void include(const RingExtent &other)
    {
        include(other.minX, other.minY);
        include(other.maxX, other.maxY);
    }
    static RingExtent of(const PlaneVertex *vertices, size_t count)
    {
        RingExtent extent;
        for (size_t i = 0; i < count; ++i)
            extent.include(vertices[i].x, vertices[i].y);
        return extent;
    }
};

/// Finds rings by their extents: an R-tree (Guttman 1984), packed, since all extents are known when it is built. Its
/// entries are runs of rings, each of which keeps its extent in single precision, rounded outward: it finds every ring
/// asked for, and now and then one more whose extent misses by up to three last digits.
class RingTree {
public:
    /// Places of rings in the list that the tree was built from, in no order.
    using Places = QVarLengthArray<unsigned, 16>;

    explicit RingTree(const std::vector<RingExtent> &extents);
    ~RingTree();

    /// The rings whose extent holds the point, borders included.
    Places holding(double x, double y) const;
    /// The rings whose extent covers `extent`, which is not empty, borders included.
    Places covering(const RingExtent &extent) const;
    /// The rings whose extent shares a point with `extent`, which is not empty.
    Places meeting(const RingExtent &extent) const;

private:
    class Boxes;
    std::unique_ptr<const Boxes> boxes;
};
