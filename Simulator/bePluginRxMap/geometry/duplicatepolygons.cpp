#include "duplicatepolygons.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <tuple>

namespace {

std::uint64_t bitsOf(double value)
{
    // The sum turns a negative zero into the plain one.
    const double plain = value + 0.0;
    std::uint64_t bits = 0;
    std::memcpy(&bits, &plain, sizeof bits);
    return bits;
}

/// Spreads the bits of a number over all of it (multiplications by odd constants, each followed by a fold).
std::uint64_t mixed(std::uint64_t value)
{
    value = (value ^ (value >> 32U)) * 0xd6e8feb86659fd93U;
    value = (value ^ (value >> 29U)) * 0x9e3779b97f4a7c15U;
    return value ^ (value >> 32U);
}

/// Equal for equal polygons, and seldom for others. A sum over the vertices, so that neither the start nor the
/// direction of a ring, nor the order of the holes, matters.
std::uint64_t likenessOf(const PlanePolygon &polygon)
{
    const auto likenessOfRing = [](const PlaneRing &ring) {
        std::uint64_t sum = ring.size();
        for (const PlaneVertex &vertex : ring)
            sum += mixed(bitsOf(vertex.x) + 3 * mixed(bitsOf(vertex.y)));
        return sum;
    };
    std::uint64_t sum = likenessOfRing(polygon.outer);
    for (const PlaneRing &hole : polygon.holes)
        sum += mixed(likenessOfRing(hole));
    return mixed(sum);
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
    result.reserve(rings.size());
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

/// Polygons by their likeness: a hash table of lists, each with the polygon added last in front.
class LikenessTable {
public:
    explicit LikenessTable(size_t polygons)
        : next(polygons, none)
        , likenesses(polygons, 0)
    {
        size_t lists = 1;
        while (lists < 2 * polygons)
            lists *= 2;
        first.assign(lists, none);
    }

    /// Adds the polygon in that place of the list of polygons.
    void add(size_t place, std::uint64_t likeness)
    {
        unsigned &head = first[likeness & (first.size() - 1)];
        likenesses[place] = likeness;
        next[place] = head;
        head = static_cast<unsigned>(place);
    }

    /// Whether `test` is true for the place of any polygon of that likeness.
    template <typename Test> bool anyOf(std::uint64_t likeness, Test test) const
    {
        for (unsigned place = first[likeness & (first.size() - 1)]; place != none; place = next[place]) {
            if (likenesses[place] == likeness && test(place))
                return true;
        }
        return false;
    }

private:
    static constexpr unsigned none = ~0U;

    std::vector<unsigned> first;
    std::vector<unsigned> next;
    std::vector<std::uint64_t> likenesses;
};

} // namespace

int DuplicatePolygons::drop(std::vector<PlanePolygon> &polygons, const std::function<bool(int, int)> &hides)
{
    LikenessTable later(polygons.size());
    std::vector<size_t> hidden;
    for (size_t i = polygons.size(); i-- > 0;) {
        const PlanePolygon &earlier = polygons[i];
        const std::uint64_t likeness = likenessOf(earlier);
        const bool isHidden = later.anyOf(likeness, [&](unsigned place) {
            return hides(polygons[place].record, earlier.record) && isSamePolygon(earlier, polygons[place]);
        });
        if (isHidden)
            hidden.push_back(i);
        later.add(i, likeness);
    }
    for (const size_t place : hidden)
        polygons[place].outer.clear();
    if (!hidden.empty())
        polygons.erase(std::remove_if(polygons.begin(), polygons.end(),
                                      [](const PlanePolygon &polygon) { return polygon.outer.empty(); }),
                       polygons.end());
    return static_cast<int>(hidden.size());
}
