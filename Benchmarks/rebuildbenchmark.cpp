// A rebuild of the whole map, beside what GLU takes anyway and beside hole placement as it is defined.

#include "benchmarkhost.h"
#include "plainrebuild.h"
#include "rxmap3d.h"
#include "sidebyside.h"
#include "zonemaps.h"

#include <functional>

namespace {

using Maker = std::function<BenchmarkMap()>;

void rebuild(benchmark::State &state, const Maker &make)
{
    BenchmarkMap map = make();
    const Placement placement = plainPlacement(map.chain(), map.count());
    BenchmarkHost host(map);
    compareSideBySide(
        state, "over_glu", [&host] { host.drawable().updatePolygons(); },
        [&map, &placement] {
            benchmark::DoNotOptimize(bareTessellation(map.chain(), map.count(), placement, benchmarkLegend()));
        });
    state.counters["outers"] = map.outers();
    state.counters["holes"] = map.holes();
}

void plainRebuild(benchmark::State &state, const Maker &make)
{
    BenchmarkMap map = make();
    BenchmarkHost host(map);
    compareSideBySide(
        state, "over_fast",
        [&map] {
            const Placement placement = plainPlacement(map.chain(), map.count());
            benchmark::DoNotOptimize(bareTessellation(map.chain(), map.count(), placement, benchmarkLegend()));
        },
        [&host] { host.drawable().updatePolygons(); });
    state.counters["outers"] = map.outers();
    state.counters["holes"] = map.holes();
}

} // namespace

BENCHMARK_CAPTURE(rebuild, grid, [] { return gridMap("grid", 317); })
    ->Name("Rebuild/cells-100k")
    ->UseManualTime()
    ->Iterations(7);
BENCHMARK_CAPTURE(rebuild, smooth,
                  [] {
                      return zoneMap("smooth", {800, 2, 3, 0.0, 1});
                  })
    ->Name("Rebuild/zones-smooth")
    ->UseManualTime()
    ->Iterations(7);
BENCHMARK_CAPTURE(rebuild, rough,
                  [] {
                      return zoneMap("rough", {680, 40, 10, 0.1, 1});
                  })
    ->Name("Rebuild/zones-rough")
    ->UseManualTime()
    ->Iterations(7);
BENCHMARK_CAPTURE(plainRebuild, rough,
                  [] {
                      return zoneMap("rough", {680, 40, 10, 0.1, 1});
                  })
    ->Name("PlainRebuild/zones-rough")
    ->UseManualTime()
    ->Iterations(1);
