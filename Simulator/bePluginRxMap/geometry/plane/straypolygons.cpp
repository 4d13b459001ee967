#include "straypolygons.h"

#include "localplane.h"

#include <algorithm>
#include <cmath>

namespace {

/// Metres. No field is that large, and no two fields that one map prescribes for are that far apart.
constexpr double farAway = 100000.0;

/// An outer ring with its holes.
struct Part {
    size_t firstRing;
    size_t rings;
    double minX;
    double minY;
    double maxX;
    double maxY;

    bool touchesOrigin() const { return minX <= 0.0 && maxX >= 0.0 && minY <= 0.0 && maxY >= 0.0; }
};

std::vector<Part> partsOf(const RawPrescription &map)
{
    std::vector<Part> parts;
    for (size_t i = 0; i < map.rings.size(); ++i) {
        const SourceRing &ring = map.rings[i];
        if (ring.isHole) {
            ++parts.back().rings;
            continue;
        }
        const auto range = [&ring](const std::vector<double> &values) {
            const auto first = values.begin() + static_cast<std::ptrdiff_t>(ring.first);
            return std::minmax_element(first, first + static_cast<std::ptrdiff_t>(ring.count));
        };
        const auto [minX, maxX] = range(map.xs);
        const auto [minY, maxY] = range(map.ys);
        parts.push_back({i, 1, *minX, *minY, *maxX, *maxY});
    }
    return parts;
}

double median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// Whether each part lies far from the middle of them; empty where that cannot be told.
std::vector<bool> areFar(const RawPrescription &map, const std::vector<Part> &parts)
{
    std::vector<double> centreXs;
    std::vector<double> centreYs;
    for (const Part &part : parts) {
        if (part.touchesOrigin())
            continue;
        centreXs.push_back(0.5 * (part.minX + part.maxX));
        centreYs.push_back(0.5 * (part.minY + part.maxY));
    }
    if (centreXs.empty())
        return {};
    std::vector<double> xs{median(std::move(centreXs))};
    std::vector<double> ys{median(std::move(centreYs))};
    for (const Part &part : parts) {
        xs.insert(xs.end(), {part.minX, part.maxX, part.minX, part.maxX});
        ys.insert(ys.end(), {part.minY, part.minY, part.maxY, part.maxY});
    }
    if (!LocalPlane::toDegrees(map, xs, ys) || !std::isfinite(xs[0]) || !std::isfinite(ys[0]))
        return {};
    const LocalPlane middle(xs[0], ys[0]);
    std::vector<bool> far;
    for (size_t i = 1; i < xs.size(); i += 4) {
        bool isFar = false;
        for (size_t corner = i; corner < i + 4; ++corner)
            isFar = isFar || !(middle.distanceTo(xs[corner], ys[corner]) <= farAway);
        far.push_back(isFar);
    }
    return far;
}

/// Whether the far polygons may be left out, rather than being a part of the map in their own right.
bool areFew(const std::vector<Part> &parts, const std::vector<bool> &far)
{
    size_t others = 0;
    size_t near = 0;
    for (size_t i = 0; i < far.size(); ++i) {
        others += far[i] && !parts[i].touchesOrigin() ? 1 : 0;
        near += far[i] ? 0 : 1;
    }
    return near > 0 && (others == 0 || (others == 1 && near >= 2) || others <= parts.size() / 10);
}

void removeParts(RawPrescription &map, const std::vector<Part> &parts, const std::vector<bool> &far)
{
    RawPrescription kept;
    for (size_t i = 0; i < parts.size(); ++i) {
        for (size_t k = parts[i].firstRing; !far[i] && k < parts[i].firstRing + parts[i].rings; ++k) {
            SourceRing ring = map.rings[k];
            const auto first = static_cast<std::ptrdiff_t>(ring.first);
            const auto end = static_cast<std::ptrdiff_t>(ring.first + ring.count);
            ring.first = kept.xs.size();
            kept.xs.insert(kept.xs.end(), map.xs.begin() + first, map.xs.begin() + end);
            kept.ys.insert(kept.ys.end(), map.ys.begin() + first, map.ys.begin() + end);
            kept.rings.push_back(ring);
        }
    }
    map.xs.swap(kept.xs);
    map.ys.swap(kept.ys);
    map.rings.swap(kept.rings);
}

} // namespace

bool StrayPolygons::mayBeWithin(const GeographicExtent &extent)
{
    return !(LocalPlane(extent.west, extent.south).distanceTo(extent.east, extent.north) <= farAway);
}

std::vector<int> StrayPolygons::remove(RawPrescription &map)
{
    if (map.rings.size() < 2)
        return {};
    const std::vector<Part> parts = partsOf(map);
    const std::vector<bool> far = areFar(map, parts);
    std::vector<int> records;
    for (size_t i = 0; i < far.size(); ++i) {
        if (far[i])
            records.push_back(map.rings[parts[i].firstRing].record);
    }
    if (records.empty() || !areFew(parts, far))
        return {};
    removeParts(map, parts, far);
    return records;
}
