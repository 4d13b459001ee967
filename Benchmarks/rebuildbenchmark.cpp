// A rebuild of the whole map, beside what GLU takes anyway and beside hole placement as it is defined; and placing
// alone, beside testing every edge.

#include "awkwardmaps.h"
#include "baretessellation.h"
#include "benchmarkhost.h"
#include "realmaps.h"
#include "rxmap3d.h"
#include "sidebyside.h"

#include <algorithm>

namespace {

void describe(benchmark::State &state, const BenchmarkMap &map)
{
    state.counters["outers"] = map.outers();
    state.counters["holes"] = map.holes();
    state.counters["vertices"] = static_cast<double>(map.vertices());
}

QVector<Vertex> bareRebuild(BenchmarkMap &map, const Placement &placement, std::size_t corners)
{
    return bareTessellation(map.chain(), map.count(), placement, benchmarkLegend(), corners);
}

void rebuild(benchmark::State &state, const NamedMap &kind)
{
    BenchmarkMap map = kind.make();
    BenchmarkHost host(map);
    const Placement placement = fastPlacement(map.chain(), map.count());
    // Small maps more than once, so that what is timed is some milliseconds at least.
    const std::size_t times = 1 + 50000 / std::max<std::size_t>(1, map.vertices());
    const auto corners = static_cast<std::size_t>(host.bankVertices());
    compareSideBySide(
        state, "over_glu",
        [&host, times] {
            for (std::size_t i = 0; i < times; ++i)
                host.drawable().updatePolygons();
        },
        [&map, &placement, times, corners] {
            for (std::size_t i = 0; i < times; ++i)
                benchmark::DoNotOptimize(bareRebuild(map, placement, corners));
        });
    describe(state, map);
}

void overReference(benchmark::State &state, const NamedMap &kind)
{
    BenchmarkMap map = kind.make();
    BenchmarkHost host(map);
    const auto corners = static_cast<std::size_t>(host.bankVertices());
    compareSideBySide(
        state, "over_fast",
        [&map, corners] {
            const Placement placement = referencePlacement(map.chain(), map.count());
            benchmark::DoNotOptimize(bareRebuild(map, placement, corners));
        },
        [&host] { host.drawable().updatePolygons(); });
    describe(state, map);
}

void awkwardPlacement(benchmark::State &state, const MapKind &kind, int rings)
{
    BenchmarkMap map = kind.make(rings);
    if (fastPlacement(map.chain(), map.count()) != edgePlacement(map.chain(), map.count()))
        state.SkipWithError("the two ways place holes differently");
    compareSideBySide(
        state, "over_edges", [&map] { benchmark::DoNotOptimize(fastPlacement(map.chain(), map.count())); },
        [&map] { benchmark::DoNotOptimize(edgePlacement(map.chain(), map.count())); });
    describe(state, map);
}

const bool areMapsAdded = [] {
    for (const NamedMap &map : allMaps()) {
        benchmark::RegisterBenchmark(("Rebuild/" + map.name).c_str(), rebuild, map)->UseManualTime()->Iterations(21);
    }
    for (const NamedMap &map : manyHolesMaps()) {
        benchmark::RegisterBenchmark(("PlainRebuild/" + map.name).c_str(), overReference, map)
            ->UseManualTime()
            ->Iterations(3);
    }
    for (const MapKind &kind : awkwardKinds()) {
        for (const int rings : {500, 2000}) {
            const std::string name = kind.name + "/" + std::to_string(rings);
            benchmark::RegisterBenchmark(name.c_str(), awkwardPlacement, kind, rings)->UseManualTime()->Iterations(11);
        }
    }
    return true;
}();

} // namespace
