#include "ringbox.h"

#include "ringtest.h"

#include <QtGlobal>

#include <cmath>
#include <limits>

using OrvikTypes::RX_POLYGON;
using OrvikTypes::RX_POLYGONVERTEX;

namespace {

Box emptyBox()
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    return {infinity, infinity, -infinity, -infinity};
}

// Volatile, since a compiler may drop the two conversions: g++ 12 does where it puts x and y into one vector.
double narrowed(double coordinate)
{
    const volatile float narrow = static_cast<float>(coordinate);
    return static_cast<double>(narrow);
}

void include(Box &box, const RX_POLYGONVERTEX &vertex)
{
    box.minX = qMin(box.minX, vertex.x);
    box.minY = qMin(box.minY, vertex.y);
    box.maxX = qMax(box.maxX, vertex.x);
    box.maxY = qMax(box.maxY, vertex.y);
}

} // namespace

RX_POLYGONVERTEX narrowed(const RX_POLYGONVERTEX &vertex)
{
    return {narrowed(vertex.x), narrowed(vertex.y)};
}

bool boxOfOuter(const RX_POLYGON &ring, Box &box)
{
    box = emptyBox();
    const int count = vertexCount(ring);
    for (int i = 0; i < count; ++i) {
        if (!isOrdinary(ring.vertices[i]))
            return false;
        include(box, ring.vertices[i]);
    }
    const double margin = crossingMargin(box.minX, box.maxX);
    box.minX -= margin;
    box.maxX += margin;
    return true;
}

bool boxOfHole(const RX_POLYGON &ring, Box &box)
{
    box = emptyBox();
    const int count = vertexCount(ring);
    for (int i = 0; i < count; ++i) {
        const RX_POLYGONVERTEX point = narrowed(ring.vertices[i]);
        if (!std::isfinite(point.x) || !std::isfinite(point.y))
            return false;
        include(box, point);
    }
    return true;
}
