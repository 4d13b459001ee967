// The map check beside GEOS's own: whether the interiors of any two polygons meet, among pairs from its packed tree.

#include "geospeer.h"
#include "mapcheck.h"
#include "realmaps.h"
#include "sidebyside.h"

#include <numeric>

namespace {

void check(benchmark::State &state, const NamedMap &kind)
{
    BenchmarkMap map = kind.make();
    std::vector<int> records(map.outers());
    std::iota(records.begin(), records.end(), 0);
    MapCheck::Settings settings;
    settings.columns = {{QStringLiteral("rate"), QStringLiteral("kg/ha"), 1.0}};
    int findings = 0;
    int overlaps = 0;
    compareSideBySide(
        state, "over_geos",
        [&] { findings = MapCheck::run(MapView(map.chain(), records, 1), settings, LoadControl())->size(); },
        [&] { overlaps = overlapsByGeos(map); });
    state.counters["findings"] = findings;
    state.counters["geos_overlaps"] = overlaps;
}

const bool areMapsAdded = [] {
    for (const NamedMap &map : allMaps())
        benchmark::RegisterBenchmark(("Check/" + map.name).c_str(), check, map)->UseManualTime()->Iterations(1);
    return true;
}();

} // namespace
