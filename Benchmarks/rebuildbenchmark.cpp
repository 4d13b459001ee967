// A rebuild of the whole map, beside what GLU takes anyway and beside hole placement as it is defined.

#include "baretessellation.h"
#include "benchmarkhost.h"
#include "realmaps.h"
#include "rxmap3d.h"
#include "sidebyside.h"

namespace {

void describe(benchmark::State &state, const BenchmarkMap &map)
{
    state.counters["outers"] = map.outers();
    state.counters["holes"] = map.holes();
    state.counters["vertices"] = static_cast<double>(map.vertices());
}

void rebuild(benchmark::State &state, const NamedMap &kind)
{
    BenchmarkMap map = kind.make();
    BenchmarkHost host(map);
    const Placement placement = fastPlacement(map.chain(), map.count());
    // Small maps more than once, so that what is timed is some milliseconds at least.
    const std::size_t times = 1 + 50000 / map.vertices();
    compareSideBySide(
        state, "over_glu",
        [&host, times] {
            for (std::size_t i = 0; i < times; ++i)
                host.drawable().updatePolygons();
        },
        [&map, &placement, times] {
            for (std::size_t i = 0; i < times; ++i)
                benchmark::DoNotOptimize(bareTessellation(map.chain(), map.count(), placement, benchmarkLegend()));
        });
    describe(state, map);
}

void plainRebuild(benchmark::State &state, const NamedMap &kind)
{
    BenchmarkMap map = kind.make();
    BenchmarkHost host(map);
    compareSideBySide(
        state, "over_fast",
        [&map] {
            const Placement placement = plainPlacement(map.chain(), map.count());
            benchmark::DoNotOptimize(bareTessellation(map.chain(), map.count(), placement, benchmarkLegend()));
        },
        [&host] { host.drawable().updatePolygons(); });
    describe(state, map);
}

const bool areMapsAdded = [] {
    for (const NamedMap &map : allMaps()) {
        benchmark::RegisterBenchmark(("Rebuild/" + map.name).c_str(), rebuild, map)->UseManualTime()->Iterations(21);
    }
    const NamedMap manyHoles = manyHolesMap();
    benchmark::RegisterBenchmark(("PlainRebuild/" + manyHoles.name).c_str(), plainRebuild, manyHoles)
        ->UseManualTime()
        ->Iterations(2);
    return true;
}();

} // namespace
