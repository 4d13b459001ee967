#include "mapkinds.h"

#include "zonemaps.h"

#include <cmath>

namespace {

/// Side of a square map with about `rings` rings, where one ring takes `samples` samples.
int sideFor(int rings, double samples)
{
    return static_cast<int>(std::lround(std::sqrt(rings * samples)));
}

/// A side of 720 samples gives 33,110 outer rings and 21,011 holes.
ZoneKind roughZones(int side)
{
    return {side, 30, 7, 0.068, 1};
}

NamedMap roughMap(int side)
{
    const std::string name = "zones-rough-" + std::to_string(side);
    return {name, [name, side] { return zoneMap(name, roughZones(side)); }};
}

} // namespace

std::vector<MapKind> mapKinds()
{
    return {
        {"cells", [](int rings) { return gridMap("cells", sideFor(rings, 1.0)); }},
        {"zones-smooth",
         [](int rings) {
             return zoneMap("zones-smooth", {sideFor(rings, 12.2), 1, 3, 0.0, 1});
         }},
        {"zones-rough", [](int rings) { return zoneMap("zones-rough", roughZones(sideFor(rings, 9.6))); }},
        {"specks",
         [](int rings) {
             return zoneMap("specks", {sideFor(rings, 8.0), 1, 1, 0.1, 1});
         }},
    };
}

std::vector<NamedMap> rebuildMaps()
{
    std::vector<NamedMap> maps{{"cells-100k", [] { return gridMap("cells-100k", 317); }}};
    for (const int side : {200, 400, 800}) {
        const std::string name = "zones-smooth-" + std::to_string(side);
        maps.push_back({name, [name, side] { return zoneMap(name, {side, 2, 3, 0.0, 1}); }});
    }
    for (const int side : {180, 360, 720})
        maps.push_back(roughMap(side));
    maps.push_back({"ring-100k", [] { return ringMap("ring-100k", 100000, 1000); }});
    return maps;
}

std::vector<NamedMap> manyHolesMaps()
{
    return {roughMap(720), roughMap(1000)};
}
