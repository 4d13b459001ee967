// The plug-in's own share of a rebuild, with GLU stubbed: how its time grows, and the most memory that it takes.

#include "allocationmeter.h"
#include "benchmarkhost.h"
#include "glustub.h"
#include "mapkinds.h"
#include "realmaps.h"
#include "rxmap3d.h"
#include "sidebyside.h"
#include "tesscallbacks.h"

#include "bePluginRxMap/dbgrouprxmap.h"

#include <algorithm>
#include <cmath>
#include <malloc.h>

namespace {

constexpr int fewRings = 4000;
constexpr int manyRings = 64000;

double shareOf(BenchmarkHost &host)
{
    return timed([&host] { host.drawable().updatePolygons(); });
}

/// The exponent with which the time, or another quantity, grows from `few` to `many`.
double growth(double few, double many, double fewRingsMade, double manyRingsMade)
{
    return std::log(many / few) / std::log(manyRingsMade / fewRingsMade);
}

/// While one of these lives, the allocator keeps what is freed, so that no page has to be fetched from the kernel
/// again: when that happens depends on the allocator's thresholds, not on the program.
struct KeptPages {
    KeptPages()
    {
        mallopt(M_MMAP_THRESHOLD, 1 << 30);
        mallopt(M_TRIM_THRESHOLD, 1 << 30);
    }
    ~KeptPages()
    {
        mallopt(M_MMAP_THRESHOLD, 1 << 17);
        mallopt(M_TRIM_THRESHOLD, 1 << 17);
    }
};

void growthOfShare(benchmark::State &state, const MapKind &kind)
{
    const KeptPages keptPages;
    BenchmarkMap few = kind.make(fewRings);
    BenchmarkMap many = kind.make(manyRings);
    BenchmarkHost fewHost(few);
    BenchmarkHost manyHost(many);
    const GluStub stub;
    std::vector<double> fewTimes;
    std::vector<double> manyTimes;
    for (auto _ : state) {
        for (int i = 0; i < 16; ++i)
            fewTimes.push_back(shareOf(fewHost));
        manyTimes.push_back(shareOf(manyHost));
        state.SetIterationTime(manyTimes.back());
    }
    const double n = few.count();
    const double m = many.count();
    state.counters["exponent"] = growth(median(fewTimes), median(manyTimes), n, m);
    state.counters["n_log_n"] = growth(n * std::log(n), m * std::log(m), n, m);
    state.counters["few_rings"] = n;
    state.counters["many_rings"] = m;
}

void peakMemory(benchmark::State &state, const NamedMap &kind)
{
    BenchmarkMap map = kind.make();
    BenchmarkHost host(map);
    const double bank = static_cast<double>(host.bankVertices() * sizeof(Vertex));
    const GluStub stub;
    std::size_t peak = 0;
    for (auto _ : state) {
        host.drawable().setDbGroup(nullptr);
        coordList = QVector<RXVERT *>();
        vList = QVector<Vertex>();
        const AllocationMeter meter;
        host.drawable().setDbGroup(&host.group());
        peak = meter.peak();
    }
    const auto largest = static_cast<double>(stub.largestPolygonVertices() * sizeof(RXVERT)
                                             + 3 * stub.largestPolygonTriangles() * sizeof(Vertex));
    state.counters["over_bank"] = static_cast<double>(peak) / (bank + largest);
    state.counters["peak_bytes"] = static_cast<double>(peak);
    state.counters["bank_bytes"] = bank;
}

const bool areKindsAdded = [] {
    for (const MapKind &kind : mapKinds()) {
        benchmark::RegisterBenchmark(("Growth/" + kind.name).c_str(), growthOfShare, kind)
            ->UseManualTime()
            ->Iterations(9);
    }
    for (const NamedMap &map : allMaps())
        benchmark::RegisterBenchmark(("PeakMemory/" + map.name).c_str(), peakMemory, map)->Iterations(1);
    return true;
}();

} // namespace
