#include "duplicatepolygons.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <tuple>
#include <utility>

namespace {

std::uint64_t bitsOf(double value)
{
    // The sum turns a negative zero into a positive one.
    const double plain = value + 0.0;
    std::uint64_t bits = 0;
    std::memcpy(&bits, &plain, sizeof bits);
    return bits;
}

/// Multiplicative hash of a number: odd factors (the second is 2^64 over the golden ratio), each after a shift that
/// folds the upper bits into the lower.
std::uint64_t mixed(std::uint64_t value)
{
    value = (value ^ (value >> 32U)) * 0xd6e8feb86659fd93U;
    value = (value ^ (value >> 29U)) * 0x9e3779b97f4a7c15U;
    return value ^ (value >> 32U);
}

/// A sum over the vertices, so that neither the start nor the direction of a ring, nor the order of the holes, matters.
std::uint64_t hashOf(const PlanePolygon &polygon)
{
    const auto hashOfRing = [](const PlaneRing &ring) {
        std::uint64_t sum = ring.size();
        for (const PlaneVertex &vertex : ring)
            sum += mixed(bitsOf(vertex.x) + 0x9e3779b97f4a7c15U * bitsOf(vertex.y));
        return sum;
    };
    std::uint64_t sum = hashOfRing(polygon.outer);
    for (const PlaneRing &hole : polygon.holes)
        sum += mixed(hashOfRing(hole));
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

/// Canonical form: the same for all rings that differ in start and direction only.
PlaneRing canonical(PlaneRing ring)
{
    if (signedArea(ring) < 0.0)
        std::reverse(ring.begin(), ring.end());
    std::rotate(ring.begin(), std::min_element(ring.begin(), ring.end(), isBefore), ring.end());
    return ring;
}

/// Canonical form of all holes of a polygon, whatever their order.
std::vector<PlaneRing> canonical(const std::vector<PlaneRing> &rings)
{
    std::vector<PlaneRing> result;
    result.reserve(rings.size());
    for (const PlaneRing &ring : rings)
        result.push_back(canonical(ring));
    std::sort(result.begin(), result.end(), isRingBefore);
    return result;
}

bool isSamePolygon(const PlanePolygon &a, const PlanePolygon &b)
{
    if (!isSameRing(canonical(a.outer), canonical(b.outer)))
        return false;
    const std::vector<PlaneRing> holesOfA = canonical(a.holes);
    const std::vector<PlaneRing> holesOfB = canonical(b.holes);
    return std::equal(holesOfA.begin(), holesOfA.end(), holesOfB.begin(), holesOfB.end(), isSameRing);
}

/// Hash and place of each polygon whose hash another one may have, too; equal hashes stand together, in the order of
/// their places. In most maps that is one polygon in twenty, which leaves little to sort: each hash marks a bit (Bloom
/// 1970, with one function), and a hash that is alone at its bit is unique.
std::vector<std::pair<std::uint64_t, size_t>> repeatedHashes(const std::vector<PlanePolygon> &polygons)
{
    size_t bits = 1024;
    while (bits < 16 * polygons.size())
        bits *= 2;
    std::vector<bool> isMarked(bits, false);
    std::vector<bool> isShared(bits, false);
    std::vector<std::uint64_t> hashes;
    hashes.reserve(polygons.size());
    for (const PlanePolygon &polygon : polygons) {
        hashes.push_back(hashOf(polygon));
        const size_t bit = hashes.back() & (bits - 1);
        if (isMarked[bit])
            isShared[bit] = true;
        isMarked[bit] = true;
    }
    std::vector<std::pair<std::uint64_t, size_t>> repeated;
    for (size_t i = 0; i < hashes.size(); ++i) {
        if (isShared[hashes[i] & (bits - 1)])
            repeated.emplace_back(hashes[i], i);
    }
    std::sort(repeated.begin(), repeated.end());
    return repeated;
}

} // namespace

std::vector<PlanePolygon> DuplicatePolygons::drop(std::vector<PlanePolygon> &polygons,
                                                  const std::function<bool(int, int)> &hides)
{
    const std::vector<std::pair<std::uint64_t, size_t>> hashes = repeatedHashes(polygons);
    std::vector<size_t> hidden;
    for (auto earlier = hashes.begin(); earlier != hashes.end(); ++earlier) {
        const PlanePolygon &polygon = polygons[earlier->second];
        for (auto later = earlier + 1; later != hashes.end() && later->first == earlier->first; ++later) {
            const PlanePolygon &other = polygons[later->second];
            if (hides(other.record, polygon.record) && isSamePolygon(polygon, other)) {
                hidden.push_back(earlier->second);
                break;
            }
        }
    }
    std::sort(hidden.begin(), hidden.end());
    std::vector<PlanePolygon> dropped;
    dropped.reserve(hidden.size());
    for (const size_t place : hidden) {
        dropped.push_back(std::move(polygons[place]));
        polygons[place].outer.clear();
    }
    if (!hidden.empty())
        polygons.erase(std::remove_if(polygons.begin(), polygons.end(),
                                      [](const PlanePolygon &polygon) { return polygon.outer.empty(); }),
                       polygons.end());
    return dropped;
}
