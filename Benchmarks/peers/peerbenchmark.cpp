// The same polygons cut into triangles by another library, for the record.

#include "baretessellation.h"
#include "benchmarkhost.h"
#include "geospeer.h"
#include "realmaps.h"
#include "rxmap3d.h"
#include "sidebyside.h"

namespace {

void peers(benchmark::State &state, const NamedMap &kind)
{
    BenchmarkMap map = kind.make();
    BenchmarkHost host(map);
    const Placement placement = fastPlacement(map.chain(), map.count());
    std::vector<double> rebuildTimes;
    std::vector<double> geosTimes;
    PeerResult byGeos;
    for (auto _ : state) {
        rebuildTimes.push_back(timed([&host] { host.drawable().updatePolygons(); }));
        geosTimes.push_back(timed([&] { byGeos = triangulateWithGeos(map, placement); }));
        state.SetIterationTime(rebuildTimes.back());
    }
    const double rebuild = median(rebuildTimes);
    state.counters["geos_over_rebuild"] = median(geosTimes) / rebuild;
    state.counters["triangles"] = host.bankVertices() / 3;
    state.counters["geos_triangles"] = byGeos.triangles;
    state.counters["geos_refused"] = byGeos.refused;
}

const bool areMapsAdded = [] {
    for (const NamedMap &map : allMaps())
        benchmark::RegisterBenchmark(("Peers/" + map.name).c_str(), peers, map)->UseManualTime()->Iterations(3);
    return true;
}();

} // namespace
