#include "repeatedpolygons.h"

#include <algorithm>
#include <tuple>

namespace {

/// Equal for equal polygons, and seldom for others.
struct Likeness {
    double area;
    double leastX;
    double leastY;
    size_t vertices;
    size_t holes;
    size_t place; ///< In the list of polygons.

    auto traits() const { return std::tie(area, leastX, leastY, vertices, holes); }
};

Likeness likenessOf(const PlanePolygon &polygon, size_t place)
{
    Likeness likeness = {ringArea(polygon.outer), polygon.outer.front().x, polygon.outer.front().y,
                         polygon.outer.size(),    polygon.holes.size(),    place};
    for (const PlaneVertex &vertex : polygon.outer) {
        likeness.leastX = std::min(likeness.leastX, vertex.x);
        likeness.leastY = std::min(likeness.leastY, vertex.y);
    }
    return likeness;
}

bool isBefore(const PlaneVertex &a, const PlaneVertex &b)
{
    return std::tie(a.x, a.y) < std::tie(b.x, b.y);
}

bool isRingBefore(const PlaneRing &a, const PlaneRing &b)
{
    return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), isBefore);
}

bool isSameRing(const PlaneRing &a, const PlaneRing &b)
{
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), samePlace);
}

/// The same ring for all rings that differ in start and direction only.
PlaneRing standardised(PlaneRing ring)
{
    if (signedArea(ring) < 0.0)
        std::reverse(ring.begin(), ring.end());
    std::rotate(ring.begin(), std::min_element(ring.begin(), ring.end(), isBefore), ring.end());
    return ring;
}

std::vector<PlaneRing> standardised(const std::vector<PlaneRing> &rings)
{
    std::vector<PlaneRing> result;
    for (const PlaneRing &ring : rings)
        result.push_back(standardised(ring));
    std::sort(result.begin(), result.end(), isRingBefore);
    return result;
}

bool isSamePolygon(const PlanePolygon &a, const PlanePolygon &b)
{
    if (!isSameRing(standardised(a.outer), standardised(b.outer)))
        return false;
    const std::vector<PlaneRing> holesOfA = standardised(a.holes);
    const std::vector<PlaneRing> holesOfB = standardised(b.holes);
    return std::equal(holesOfA.begin(), holesOfA.end(), holesOfB.begin(), holesOfB.end(), isSameRing);
}

} // namespace

int RepeatedPolygons::drop(std::vector<PlanePolygon> &polygons, const std::function<bool(int, int)> &hides)
{
    std::vector<Likeness> all;
    all.reserve(polygons.size());
    for (size_t i = 0; i < polygons.size(); ++i)
        all.push_back(likenessOf(polygons[i], i));
    std::sort(all.begin(), all.end(), [](const Likeness &a, const Likeness &b) {
        return a.traits() != b.traits() ? a.traits() < b.traits() : a.place < b.place;
    });
    int dropped = 0;
    for (size_t i = 0; i < all.size(); ++i) {
        PlanePolygon &earlier = polygons[all[i].place];
        for (size_t k = i + 1; k < all.size() && all[k].traits() == all[i].traits(); ++k) {
            const PlanePolygon &later = polygons[all[k].place];
            if (!hides(later.record, earlier.record) || !isSamePolygon(earlier, later))
                continue;
            earlier.outer.clear();
            ++dropped;
            break;
        }
    }
    if (dropped > 0)
        polygons.erase(std::remove_if(polygons.begin(), polygons.end(),
                                      [](const PlanePolygon &polygon) { return polygon.outer.empty(); }),
                       polygons.end());
    return dropped;
}
