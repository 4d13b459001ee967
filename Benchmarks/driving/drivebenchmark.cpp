// A step of simulated driving with three products beside the three point queries that it needs, and how it grows.

#include "cellfile.h"
#include "drivingbench.h"
#include "paths.h"
#include "sidebyside.h"

#include "bePluginRxMap/dbgrouprxmap.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <cmath>
#include <memory>

namespace {

// Fast, so that it sees much of the field.
constexpr double speed = 20.0;
constexpr int mostSteps = 2000;

/// As many steps as leave the machine short of the end of its way, where it would stand still.
int stepsOn(const DrivingBench &bench)
{
    return std::min(mostSteps, int(0.9 * bench.wayLength() / (speed * Simulation::stepMs / 1000.0)));
}

void step(Simulation &simulation, int steps)
{
    for (int i = 0; i < steps; ++i)
        simulation.step();
}

/// Asks as a touch does.
float query(DbGroupRxMap &map, const std::vector<QPointF> &places)
{
    float sum = 0.0F;
    for (const QPointF &place : places) {
        map.setQueryRatesAtXYZ(OrvikTypes::XYZ(place.x(), place.y(), 0.0));
        sum += map.getRatesAtXYZ().value(0);
    }
    return sum;
}

void drive(benchmark::State &state, const QString &path)
{
    DrivingBench bench(path);
    const int steps = stepsOn(bench);
    bench.begin(speed);
    const std::vector<QPointF> places = bench.askedPlaces(steps);
    compareSideBySide(
        state, "over_queries", [&bench, steps] { step(bench.simulated(), steps); },
        [&] { benchmark::DoNotOptimize(query(bench.map(), places)); }, [&bench] { bench.begin(speed); });
    state.counters["polygons"] = bench.polygons();
    state.counters["step_seconds"] = state.counters["seconds"] / steps;
}

void driveCells(benchmark::State &state)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("cells.shp"));
    writeCellFile(path, 317);
    drive(state, path);
}

void growth(benchmark::State &state)
{
    const QTemporaryDir folder;
    std::vector<std::unique_ptr<DrivingBench>> benches;
    for (const int side : {63, 253}) {
        const QString path = folder.filePath(QStringLiteral("cells-%1.shp").arg(side));
        writeCellFile(path, side);
        benches.push_back(std::make_unique<DrivingBench>(path));
    }
    DrivingBench &few = *benches.front();
    DrivingBench &many = *benches.back();
    const auto begin = [&few, &many] {
        few.begin(speed);
        many.begin(speed);
    };
    compareSideBySide(
        state, "many_over_few", [&many] { step(many.simulated(), mostSteps); },
        [&few] { step(few.simulated(), mostSteps); }, begin);
    state.counters["exponent"] = std::log(state.counters["many_over_few"].value)
        / std::log(static_cast<double>(many.polygons()) / static_cast<double>(few.polygons()));
    state.counters["few_polygons"] = few.polygons();
    state.counters["many_polygons"] = many.polygons();
}

/// Real prescriptions with rates, where they are present.
bool registerRealMaps()
{
    for (const char *name : {"cells-17k/cells", "cells-three-products/cells", "grid-clipped/grid-clipped"}) {
        const QString path = QDir(realDataFolder()).filePath(QLatin1String(name) + QStringLiteral(".shp"));
        if (!realDataFolder().isEmpty() && QFile::exists(path))
            benchmark::RegisterBenchmark((std::string("Drive/") + name).c_str(), drive, path)
                ->UseManualTime()
                ->Iterations(30);
    }
    return true;
}

const bool isRegistered = registerRealMaps();

} // namespace

BENCHMARK(driveCells)->Name("Drive/cells-100k")->UseManualTime()->Iterations(30);
BENCHMARK(growth)->Name("DriveGrowth")->UseManualTime()->Iterations(30);
