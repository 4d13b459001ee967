#include "randommap.h"

#include <QtTest>

#include <cmath>
#include <limits>

RandomMap::RandomMap(const RandomKind &kind, unsigned int seed)
    : kind(kind)
    , random(seed)
{
    const int rings = 2 + below(14);
    for (int i = 0; i < rings; ++i) {
        const Ring ring = kind.nested ? star() : tangle();
        OrvikTypes::RX_POLYGON &polygon = below(2) == 0 ? chain.addOuter(ring) : chain.addHole(ring);
        if (below(4) == 0)
            polygon.area = 100.0 * below(4);
    }
}

double RandomMap::coordinate(double value)
{
    if (kind.oddValues && below(12) == 0) {
        static const double odd[] = {std::numeric_limits<double>::quiet_NaN(),
                                     std::numeric_limits<double>::infinity(),
                                     -std::numeric_limits<double>::infinity(),
                                     1e300,
                                     -1e200,
                                     1e-300,
                                     5e-324,
                                     1e39};
        return odd[below(8)];
    }
    return kind.scale * ((kind.grid > 0.0 ? std::round(value / kind.grid) * kind.grid : value) + kind.offset);
}

Ring RandomMap::tangle()
{
    std::uniform_real_distribution<double> position(-20.0, 20.0);
    Ring ring(static_cast<std::size_t>(below(9)));
    for (auto &vertex : ring)
        vertex = {coordinate(position(random)), coordinate(position(random))};
    return ring;
}

Ring RandomMap::star()
{
    std::uniform_real_distribution<double> position(-12.0, 12.0);
    const double x = position(random);
    const double y = position(random);
    const double radius = 1.0 + below(30);
    const int vertices = 3 + below(80);
    Ring ring;
    for (int i = 0; i < vertices; ++i) {
        const double angle = 6.28318530717958648 * i / vertices;
        const double reach = radius * (0.8 + 0.02 * below(10));
        ring.push_back({coordinate(x + reach * std::cos(angle)), coordinate(y + reach * std::sin(angle))});
    }
    return ring;
}

void addRandomKinds()
{
    QTest::addColumn<RandomKind>("kind");
    const auto add = [](const char *name, const RandomKind &kind) { QTest::newRow(name) << kind; };
    add("tangles", {});
    add("tangles on a grid", {2.0, 0.0, false, false, 1.0});
    add("tangles with odd values", {1.0, 0.0, true, false, 1.0});
    add("nested", {0.0, 0.0, false, true, 1.0});
    add("nested on a grid", {1.0, 0.0, false, true, 1.0});
    add("nested far away", {0.0, 3.3e8, false, true, 1.0});
    add("nested with odd values", {0.0, 0.0, true, true, 1.0});
    add("nested and minute", {0.0, 0.0, false, true, 1e-170});
    add("nested and all but nothing", {0.0, 0.0, false, true, 1e-200});
    add("nested and next to nothing", {0.0, 0.0, false, true, 1e-300});
}
