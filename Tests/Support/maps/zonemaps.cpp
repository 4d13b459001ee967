#include "zonemaps.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <random>
#include <set>
#include <utility>

using OrvikTypes::RX_POLYGONVERTEX;

namespace {

constexpr double sampleDistance = 5.0;
constexpr double fullTurn = 6.28318530717958648;

/// A square raster of integers; outside of it everything is -1.
class Raster {
public:
    explicit Raster(int givenSide)
        : side(givenSide)
        , values(static_cast<std::size_t>(givenSide) * static_cast<std::size_t>(givenSide), -1)
    {
    }

    int at(int x, int y) const { return x < 0 || y < 0 || x >= side || y >= side ? -1 : values[index(x, y)]; }
    void set(int x, int y, int value) { values[index(x, y)] = value; }

    const int side;

private:
    std::size_t index(int x, int y) const
    {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(side) + static_cast<std::size_t>(x);
    }

    std::vector<int> values;
};

/// Averages each line of `values` over 2 * radius + 1 neighbours, with the line closed to a circle.
void smoothLines(std::vector<double> &values, int side, int radius, bool columns)
{
    const auto position = [&](int line, int i) {
        const int wrapped = (i % side + side) % side;
        return static_cast<std::size_t>(columns ? wrapped * side + line : line * side + wrapped);
    };
    std::vector<double> smooth(static_cast<std::size_t>(side));
    for (int line = 0; line < side; ++line) {
        double sum = 0.0;
        for (int i = -radius; i <= radius; ++i)
            sum += values[position(line, i)];
        for (int i = 0; i < side; ++i) {
            smooth[static_cast<std::size_t>(i)] = sum;
            sum += values[position(line, i + radius + 1)] - values[position(line, i - radius)];
        }
        for (int i = 0; i < side; ++i)
            values[position(line, i)] = smooth[static_cast<std::size_t>(i)];
    }
}

/// A raster of classes cut from smoothed noise at its quantiles.
Raster classRaster(const ZoneKind &kind)
{
    const int side = kind.side;
    std::mt19937 random(kind.seed);
    std::vector<double> noise(static_cast<std::size_t>(side) * static_cast<std::size_t>(side));
    for (double &value : noise)
        value = static_cast<double>(random()) / 4294967296.0;
    for (int pass = 0; pass < 2 && kind.smoothing > 0; ++pass) {
        smoothLines(noise, side, kind.smoothing, false);
        smoothLines(noise, side, kind.smoothing, true);
    }
    std::vector<double> sorted = noise;
    std::sort(sorted.begin(), sorted.end());
    Raster raster(side);
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            const double value = noise[static_cast<std::size_t>(y * side + x)];
            const auto rank = std::lower_bound(sorted.begin(), sorted.end(), value) - sorted.begin();
            const bool isSpeckle = static_cast<double>(random()) / 4294967296.0 < kind.speckles;
            const auto zone = static_cast<int>(rank * kind.classes / static_cast<std::ptrdiff_t>(sorted.size()));
            raster.set(x, y, isSpeckle ? static_cast<int>(random() % 2) : 2 + zone);
        }
    }
    return raster;
}

/// Numbers the zones: cells of one class that touch along an edge.
Raster zonesOf(const Raster &classes, std::vector<std::pair<int, int>> &firstCells)
{
    Raster zones(classes.side);
    std::vector<std::pair<int, int>> open;
    for (int y = 0; y < classes.side; ++y) {
        for (int x = 0; x < classes.side; ++x) {
            if (zones.at(x, y) >= 0)
                continue;
            const int zone = static_cast<int>(firstCells.size());
            firstCells.emplace_back(x, y);
            zones.set(x, y, zone);
            open.emplace_back(x, y);
            while (!open.empty()) {
                const auto [cx, cy] = open.back();
                open.pop_back();
                for (const auto &[nx, ny] : {std::pair(cx + 1, cy), {cx - 1, cy}, {cx, cy + 1}, {cx, cy - 1}}) {
                    if (classes.at(nx, ny) == classes.at(x, y) && zones.at(nx, ny) < 0) {
                        zones.set(nx, ny, zone);
                        open.emplace_back(nx, ny);
                    }
                }
            }
        }
    }
    return zones;
}

/// Walks along the border of a zone, with the zone to its left, from one edge until it comes back to it. Corners are
/// cut at the middle of the cells' edges, so that rings that meet at a corner do not touch.
class BorderWalk {
public:
    BorderWalk(const Raster &givenZones, std::vector<bool> &givenWalked)
        : zones(givenZones)
        , walked(givenWalked)
    {
    }

    /// The ring that starts below the cell (x, y), going east.
    BenchmarkMap::Ring ringFrom(int x, int y)
    {
        BenchmarkMap::Ring ring;
        const int zone = zones.at(x, y);
        int cornerX = x;
        int cornerY = y;
        int dx = 1;
        int dy = 0;
        do {
            if (dx == 1)
                walked[static_cast<std::size_t>(cornerY * zones.side + cornerX)] = true;
            ring.push_back({sampleDistance * (cornerX + dx / 2.0), sampleDistance * (cornerY + dy / 2.0)});
            cornerX += dx;
            cornerY += dy;
            turn(zone, cornerX, cornerY, dx, dy);
        } while (cornerX != x || cornerY != y || dx != 1 || dy != 0);
        return ring;
    }

private:
    bool isZone(int zone, int cornerX, int cornerY, int rightX, int rightY) const
    {
        return zones.at(cornerX + std::min(rightX, 0), cornerY + std::min(rightY, 0)) == zone;
    }

    void turn(int zone, int cornerX, int cornerY, int &dx, int &dy) const
    {
        // The cells ahead, left and right of the direction, seen from the corner.
        const int leftX = dx - dy;
        const int leftY = dx + dy;
        const int rightX = dx + dy;
        const int rightY = dy - dx;
        const bool left = isZone(zone, cornerX, cornerY, leftX, leftY);
        const bool right = isZone(zone, cornerX, cornerY, rightX, rightY);
        if (!left)
            std::swap(dx, dy), dx = -dx; // Left turn.
        else if (right)
            std::swap(dx, dy), dy = -dy; // Right turn.
    }

    const Raster &zones;
    std::vector<bool> &walked;
};

double signedArea(const BenchmarkMap::Ring &ring)
{
    double doubled = 0.0;
    for (std::size_t i = 0, j = ring.size() - 1; i < ring.size(); j = i++)
        doubled += ring[j].x * ring[i].y - ring[i].x * ring[j].y;
    return doubled;
}

} // namespace

BenchmarkMap gridMap(const std::string &name, int side)
{
    BenchmarkMap map(name);
    std::mt19937 random(11);
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            const double left = 10.0 * x;
            const double bottom = 10.0 * y;
            map.add({{left, bottom}, {left + 10.0, bottom}, {left + 10.0, bottom + 10.0}, {left, bottom + 10.0}},
                    static_cast<float>(random() % 200), false);
        }
    }
    map.finish();
    return map;
}

BenchmarkMap zoneMap(const std::string &name, const ZoneKind &kind)
{
    const int side = kind.side;
    const Raster classes = classRaster(kind);
    std::vector<std::pair<int, int>> firstCells;
    const Raster zones = zonesOf(classes, firstCells);
    std::vector<std::vector<BenchmarkMap::Ring>> holes(firstCells.size());
    std::vector<BenchmarkMap::Ring> outers(firstCells.size());
    std::vector<bool> walked(static_cast<std::size_t>(side) * static_cast<std::size_t>(side), false);
    BorderWalk walk(zones, walked);
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            const int zone = zones.at(x, y);
            if (zones.at(x, y - 1) == zone || walked[static_cast<std::size_t>(y * side + x)])
                continue;
            BenchmarkMap::Ring ring = walk.ringFrom(x, y);
            if (signedArea(ring) > 0.0)
                outers[static_cast<std::size_t>(zone)] = std::move(ring);
            else
                holes[static_cast<std::size_t>(zone)].push_back(std::move(ring));
        }
    }
    BenchmarkMap map(name);
    for (int noiseClass = 0; noiseClass < 2 + kind.classes; ++noiseClass) {
        for (std::size_t zone = 0; zone < outers.size(); ++zone) {
            if (classes.at(firstCells[zone].first, firstCells[zone].second) != noiseClass)
                continue;
            map.add(std::move(outers[zone]), static_cast<float>(noiseClass * 30), false);
            for (BenchmarkMap::Ring &hole : holes[zone])
                map.add(std::move(hole), static_cast<float>(noiseClass * 30), true);
        }
    }
    map.finish();
    return map;
}

BenchmarkMap ringMap(const std::string &name, int vertices, int holes)
{
    BenchmarkMap map(name);
    BenchmarkMap::Ring outer;
    for (int i = 0; i < vertices; ++i) {
        const double angle = fullTurn * i / vertices;
        const double radius = 1000.0 + 20.0 * std::sin(97.0 * angle) + (i % 2 == 0 ? 0.01 : 0.0);
        outer.push_back({radius * std::cos(angle), radius * std::sin(angle)});
    }
    map.add(std::move(outer), 1.0F, false);
    const int side = static_cast<int>(std::ceil(std::sqrt(holes)));
    const double distance = 1300.0 / side;
    for (int hole = 0; hole < holes; ++hole) {
        const double x = (hole % side - side / 2.0 + 0.5) * distance;
        const double y = (hole / side - side / 2.0 + 0.5) * distance;
        BenchmarkMap::Ring ring;
        for (int i = 0; i < 20; ++i) {
            const double angle = fullTurn * i / 20.0;
            ring.push_back({x + distance / 3.0 * std::cos(angle), y + distance / 3.0 * std::sin(angle)});
        }
        map.add(std::move(ring), 1.0F, true);
    }
    map.finish();
    return map;
}
