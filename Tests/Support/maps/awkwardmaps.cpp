#include "awkwardmaps.h"

#include <cmath>
#include <random>
#include <utility>

namespace {

constexpr double fullTurn = 6.28318530717958648;

BenchmarkMap::Ring box(double left, double bottom, double width, double height)
{
    return {{left, bottom}, {left + width, bottom}, {left + width, bottom + height}, {left, bottom + height}};
}

/// A comb of `teeth` teeth, 10 m apart and 500 m high.
BenchmarkMap combMap(int teeth)
{
    BenchmarkMap map("comb");
    BenchmarkMap::Ring comb{{10.0 * teeth, 0.0}, {0.0, 0.0}};
    for (int tooth = 0; tooth < teeth; ++tooth) {
        const double left = 10.0 * tooth;
        for (const auto &[x, y] : {std::pair(0.0, 500.0), {6.0, 500.0}, {6.0, 5.0}, {10.0, 5.0}})
            comb.push_back({left + x, y});
    }
    map.add(std::move(comb), 1.0F, false);
    for (int tooth = 0; tooth < teeth; ++tooth)
        map.add(box(10.0 * tooth + 2.0, 10.0 + 400.0 * tooth / teeth, 2.0, 50.0), 1.0F, true);
    map.finish();
    return map;
}

/// A strip 100 times as wide as it is high, with low notches along its upper and lower side.
BenchmarkMap stripMap(int holes)
{
    BenchmarkMap map("strip");
    const double width = 10.0 * holes;
    const double height = width / 100.0;
    BenchmarkMap::Ring strip;
    for (int i = 0; i < 4 * holes; ++i)
        strip.push_back({2.5 * i, i % 2 == 0 ? 0.0 : 0.01 * height});
    for (int i = 4 * holes; i > 0; --i)
        strip.push_back({2.5 * i, height - (i % 2 == 0 ? 0.0 : 0.01 * height)});
    map.add(std::move(strip), 1.0F, false);
    for (int hole = 0; hole < holes; ++hole)
        map.add(box(10.0 * hole + 2.0, height * (0.1 + 0.7 * hole / holes), 4.0, 0.05 * height), 1.0F, true);
    map.finish();
    return map;
}

/// A spiky ring around the middle: each of its 200 vertices lies at another distance.
BenchmarkMap::Ring spikyRing(double x, double y, double radius, std::mt19937 &random)
{
    BenchmarkMap::Ring ring;
    for (int i = 0; i < 200; ++i) {
        const double reach = radius * (0.05 + 0.95 * static_cast<double>(random()) / 4294967296.0);
        ring.push_back({x + reach * std::cos(fullTurn * i / 200), y + reach * std::sin(fullTurn * i / 200)});
    }
    return ring;
}

/// One spiky ring to about 67 holes, which are too large for most of its spikes.
BenchmarkMap overlappingMap(int holes)
{
    BenchmarkMap map("overlapping");
    std::mt19937 random(3);
    const auto position = [&random] { return static_cast<double>(random() % 100000) / 100.0; };
    for (int outer = 0; outer < 1 + holes * 3 / 200; ++outer) {
        const double x = position();
        map.add(spikyRing(x, position(), 600.0, random), 1.0F, false);
    }
    for (int hole = 0; hole < holes; ++hole) {
        const double x = position();
        map.add(box(x, position(), 25.0, 25.0), 1.0F, true);
    }
    map.finish();
    return map;
}

} // namespace

std::vector<MapKind> awkwardKinds()
{
    return {{"Comb", combMap}, {"Strip", stripMap}, {"Overlapping", overlappingMap}};
}
