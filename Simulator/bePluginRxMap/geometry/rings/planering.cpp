#include "planering.h"

#include <algorithm>
#include <cmath>

namespace {

bool isBetween(double value, double a, double b)
{
    return std::min(a, b) <= value && value <= std::max(a, b);
}

int sign(double value)
{
    return (value > 0.0) - (value < 0.0);
}

/// Whether the path from `a` over `b` to `c` turns back on itself.
bool foldsBack(const PlaneVertex &a, const PlaneVertex &b, const PlaneVertex &c)
{
    return turn(a, b, c) == 0.0 && (a.x - b.x) * (c.x - b.x) + (a.y - b.y) * (c.y - b.y) > 0.0;
}

} // namespace

double signedArea(const PlaneRing &ring)
{
    if (ring.size() < 3)
        return 0.0;
    double doubled = 0.0;
    for (size_t i = 1; i + 1 < ring.size(); ++i)
        doubled += turn(ring[0], ring[i], ring[i + 1]);
    return 0.5 * doubled;
}

double ringArea(const PlaneRing &ring)
{
    return std::fabs(signedArea(ring));
}

double polygonArea(const PlanePolygon &polygon)
{
    double area = ringArea(polygon.outer);
    for (const PlaneRing &hole : polygon.holes)
        area -= ringArea(hole);
    return area;
}

void dropRepeatedVertices(PlaneRing &ring)
{
    ring.erase(std::unique(ring.begin(), ring.end(), samePlace), ring.end());
    while (ring.size() > 1 && samePlace(ring.front(), ring.back()))
        ring.pop_back();
}

bool liesOnSegment(const PlaneVertex &point, const PlaneVertex &a, const PlaneVertex &b)
{
    return isBetween(point.x, a.x, b.x) && isBetween(point.y, a.y, b.y) && turn(a, b, point) == 0.0;
}

bool segmentsMeet(const PlaneVertex &a, const PlaneVertex &b, const PlaneVertex &c, const PlaneVertex &d)
{
    if (std::max(a.x, b.x) < std::min(c.x, d.x) || std::max(c.x, d.x) < std::min(a.x, b.x)
        || std::max(a.y, b.y) < std::min(c.y, d.y) || std::max(c.y, d.y) < std::min(a.y, b.y))
        return false;
    const int first = sign(turn(a, b, c)) * sign(turn(a, b, d));
    const int second = sign(turn(c, d, a)) * sign(turn(c, d, b));
    return first <= 0 && second <= 0;
}

bool isConvexRing(const PlaneRing &ring)
{
    const size_t count = ring.size();
    if (count < 3)
        return false;
    int direction = 0;
    int reversals = 0;
    // Starts at the last edge, so that every turn and every pair of neighbouring edges is seen.
    const PlaneVertex *a = &ring[count - 2];
    const PlaneVertex *b = &ring[count - 1];
    bool wasEastward = b->x > a->x;
    for (const PlaneVertex &c : ring) {
        const int turned = sign(turn(*a, *b, c));
        if (turned == 0 || turned == -direction)
            return false;
        direction = turned;
        const bool isEastward = c.x > b->x;
        reversals += isEastward == wasEastward ? 0 : 1;
        wasEastward = isEastward;
        a = b;
        b = &c;
    }
    // A ring that goes around more than once goes east and back more than once.
    return reversals == 2;
}

bool isSimpleRing(const PlaneRing &ring)
{
    const size_t count = ring.size();
    if (count < 3)
        return false;
    if (isConvexRing(ring))
        return true;
    for (size_t i = 0; i < count; ++i) {
        const PlaneVertex &a = ring[i];
        const PlaneVertex &b = ring[(i + 1) % count];
        if (foldsBack(a, b, ring[(i + 2) % count]))
            return false;
        const size_t end = i == 0 ? count - 1 : count;
        for (size_t k = i + 2; k < end; ++k) {
            if (segmentsMeet(a, b, ring[k], ring[(k + 1) % count]))
                return false;
        }
    }
    return true;
}
