#include "holeplacement.h"

#include "boxindex.h"
#include "ringindex.h"
#include "ringtest.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>
#include <vector>

using OrvikTypes::RX_POLYGON;
using OrvikTypes::RX_POLYGONVERTEX;

namespace {

/// Coordinates up to the one cannot overflow in the edge arithmetic; heights from the other on lose less to underflow
/// than the boxes' margin allows for. Rings beyond them, or with NaN, are tested plainly.
constexpr double largestOrdinary = 1e100;
constexpr double smallestOrdinary = 1e-180;
/// Rings with fewer vertices are tested faster edge by edge.
constexpr int smallestIndexed = 48;

struct FloatPoint {
    double x;
    double y;
};

FloatPoint narrowed(const RX_POLYGONVERTEX &vertex)
{
    return {static_cast<double>(static_cast<float>(vertex.x)), static_cast<double>(static_cast<float>(vertex.y))};
}

Box emptyBox()
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    return {infinity, infinity, -infinity, -infinity};
}

void include(Box &box, double x, double y)
{
    box.minX = std::min(box.minX, x);
    box.minY = std::min(box.minY, y);
    box.maxX = std::max(box.maxX, x);
    box.maxY = std::max(box.maxY, y);
}

bool isOrdinary(double x, double y)
{
    const double height = std::fabs(y);
    return std::fabs(x) <= largestOrdinary
        && (height == 0.0 || (height >= smallestOrdinary && height <= largestOrdinary));
}

/// The box outside of which no point is inside the ring; false when the ring is not ordinary.
bool boxOfOuter(const RX_POLYGON &ring, Box &box)
{
    box = emptyBox();
    for (int i = 0; i < vertexCount(ring); ++i) {
        const RX_POLYGONVERTEX &vertex = ring.vertices[i];
        if (!isOrdinary(vertex.x, vertex.y))
            return false;
        include(box, vertex.x, vertex.y);
    }
    // A computed crossing can lie beyond the ring by the rounding of its three operations.
    const double margin = 16.0 * std::numeric_limits<double>::epsilon() * (std::fabs(box.minX) + std::fabs(box.maxX))
        + 1.0 / largestOrdinary;
    box.minX -= margin;
    box.maxX += margin;
    return true;
}

/// The box of the hole's narrowed vertices; false when one of them is not finite, and so inside no ordinary ring.
bool boxOfHole(const RX_POLYGON &ring, Box &box)
{
    box = emptyBox();
    for (int i = 0; i < vertexCount(ring); ++i) {
        const FloatPoint point = narrowed(ring.vertices[i]);
        if (!std::isfinite(point.x) || !std::isfinite(point.y))
            return false;
        include(box, point.x, point.y);
    }
    return true;
}

/// The outer rings with what finds them quickly; lives for one placement.
class Outers {
public:
    explicit Outers(const QVector<RX_POLYGON *> &rings)
        : rings(rings)
        , ringIndexes(static_cast<std::size_t>(rings.size()))
    {
        QVector<Box> boxes;
        QVector<int> ids;
        for (int i = 0; i < rings.size(); ++i) {
            Box box;
            if (vertexCount(*rings.at(i)) == 0)
                continue;
            if (boxOfOuter(*rings.at(i), box)) {
                boxes.append(box);
                ids.append(i);
            } else {
                plain.append(i);
            }
        }
        boxIndex.reset(new BoxIndex(boxes, ids));
    }

    /// The first outer ring that the hole is cut from; -1 when there is none.
    int placeOf(const RX_POLYGON &hole)
    {
        if (vertexCount(hole) == 0)
            return -1;
        candidates = plain;
        Box box;
        if (boxOfHole(hole, box))
            boxIndex->find(box, candidates);
        std::sort(candidates.begin(), candidates.end());
        for (int outer : qAsConst(candidates)) {
            if (rings.at(outer)->area - 10.0 > hole.area && containsAll(outer, hole))
                return outer;
        }
        return -1;
    }

private:
    bool containsAll(int outer, const RX_POLYGON &hole)
    {
        const RX_POLYGON &ring = *rings.at(outer);
        std::unique_ptr<RingIndex> &index = ringIndexes[static_cast<std::size_t>(outer)];
        const bool indexed =
            vertexCount(ring) >= smallestIndexed && !std::binary_search(plain.cbegin(), plain.cend(), outer);
        if (indexed && !index)
            index.reset(new RingIndex(ring.vertices, vertexCount(ring)));
        for (int i = 0; i < vertexCount(hole); ++i) {
            const FloatPoint point = narrowed(hole.vertices[i]);
            const bool inside = indexed ? index->isInside(point.x, point.y)
                                        : isInsideRing(ring.vertices, vertexCount(ring), point.x, point.y);
            if (!inside)
                return false;
        }
        return true;
    }

    const QVector<RX_POLYGON *> &rings;
    QVector<int> plain;
    std::unique_ptr<BoxIndex> boxIndex;
    std::vector<std::unique_ptr<RingIndex>> ringIndexes;
    QVector<int> candidates;
};

} // namespace

HolePlacement::HolePlacement(const QVector<RX_POLYGON *> &outers, const QVector<RX_POLYGON *> &holes)
    : next(holes.size(), -1)
    , placed(holes.size(), false)
{
    if (holes.isEmpty() || outers.isEmpty())
        return;
    first.fill(-1, outers.size());
    Outers places(outers);
    // From the last hole to the first, so that putting each in front leaves the lists in the order given.
    for (int hole = holes.size() - 1; hole >= 0; --hole) {
        const int outer = places.placeOf(*holes.at(hole));
        if (outer < 0)
            continue;
        placed[hole] = true;
        next[hole] = first.at(outer);
        first[outer] = hole;
    }
}
