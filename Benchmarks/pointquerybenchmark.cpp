// A point query on a map of 100,000 cells, beside the ways that one would otherwise take.

#include "ratelookup.h"
#include "sidebyside.h"
#include "zonemaps.h"

#include <boost/geometry.hpp>
#include <boost/geometry/geometries/box.hpp>
#include <boost/geometry/geometries/point_xy.hpp>
#include <boost/geometry/index/rtree.hpp>
#include <gdal.h>
#include <memory>
#include <ogrsf_frmts.h>
#include <random>

namespace {

namespace bg = boost::geometry;
using Point = bg::model::d2::point_xy<double>;
using Entry = std::pair<bg::model::box<Point>, const OrvikTypes::RX_POLYGON *>;
using Tree = bg::index::rtree<Entry, bg::index::quadratic<16>>;

/// Even-odd test with half-open edges that looks at every edge.
bool contains(const OrvikTypes::RX_POLYGON &ring, double x, double y)
{
    bool inside = false;
    for (quint32 i = 0, j = ring.vertexCount - 1; i < ring.vertexCount; j = i++) {
        const OrvikTypes::RX_POLYGONVERTEX &a = ring.vertices[j];
        const OrvikTypes::RX_POLYGONVERTEX &b = ring.vertices[i];
        if ((b.y <= y) != (a.y <= y) && (a.x - b.x) * (y - b.y) / (a.y - b.y) + b.x > x)
            inside = !inside;
    }
    return inside;
}

/// The cells in every form that is compared.
class Cells {
public:
    Cells()
        : map(gridMap("cells-100k", 317))
        , lookup(map.chain(), map.count(), 1, {})
    {
        std::vector<Entry> entries;
        for (const OrvikTypes::RX_POLYGON *cell = map.chain(); cell != nullptr; cell = cell->next) {
            entries.emplace_back(bg::model::box<Point>({cell->vertices[0].x, cell->vertices[0].y},
                                                       {cell->vertices[2].x, cell->vertices[2].y}),
                                 cell);
        }
        tree = Tree(entries);
        std::mt19937 random(5);
        for (int i = 0; i < 1000; ++i)
            points.push_back(
                {static_cast<double>(random() % 316900) / 100.0, static_cast<double>(random() % 316900) / 100.0});
    }

    double byLookup() const
    {
        double sum = 0.0;
        for (const OrvikTypes::RX_POLYGONVERTEX &point : points)
            sum += static_cast<double>(lookup.ratesAt(point.x, point.y).rates.value(0));
        return sum;
    }

    double byTree() const
    {
        double sum = 0.0;
        std::vector<Entry> found;
        for (const OrvikTypes::RX_POLYGONVERTEX &point : points) {
            found.clear();
            tree.query(bg::index::intersects(Point(point.x, point.y)), std::back_inserter(found));
            for (const Entry &entry : found) {
                if (contains(*entry.second, point.x, point.y))
                    sum += static_cast<double>(entry.second->rates[0]);
            }
        }
        return sum;
    }

    double byScan(int count)
    {
        double sum = 0.0;
        for (int i = 0; i < count; ++i) {
            for (const OrvikTypes::RX_POLYGON *cell = map.chain(); cell != nullptr; cell = cell->next) {
                if (contains(*cell, points[static_cast<std::size_t>(i)].x, points[static_cast<std::size_t>(i)].y))
                    sum += static_cast<double>(cell->rates[0]);
            }
        }
        return sum;
    }

    double byOgr(int count)
    {
        OGRLayer &layer = ogrLayer();
        double sum = 0.0;
        for (int i = 0; i < count; ++i) {
            const OrvikTypes::RX_POLYGONVERTEX &point = points[static_cast<std::size_t>(i)];
            OGRPoint geometry(point.x, point.y);
            layer.SetSpatialFilter(&geometry);
            while (std::unique_ptr<OGRFeature> feature{layer.GetNextFeature()})
                sum += feature->GetFieldAsDouble(0);
        }
        return sum;
    }

    std::size_t pointCount() const { return points.size(); }

private:
    OGRLayer &ogrLayer()
    {
        if (dataset != nullptr)
            return *dataset->GetLayer(0);
        GDALAllRegister();
        dataset.reset(GetGDALDriverManager()->GetDriverByName("Memory")->Create("", 0, 0, 0, GDT_Unknown, nullptr));
        OGRLayer *layer = dataset->CreateLayer("cells", nullptr, wkbPolygon, nullptr);
        OGRFieldDefn field("RATE", OFTReal);
        layer->CreateField(&field);
        for (const OrvikTypes::RX_POLYGON *cell = map.chain(); cell != nullptr; cell = cell->next) {
            OGRLinearRing ring;
            for (quint32 i = 0; i < cell->vertexCount; ++i)
                ring.addPoint(cell->vertices[i].x, cell->vertices[i].y);
            ring.closeRings();
            OGRPolygon polygon;
            polygon.addRing(&ring);
            const std::unique_ptr<OGRFeature> feature(OGRFeature::CreateFeature(layer->GetLayerDefn()));
            feature->SetField(0, static_cast<double>(cell->rates[0]));
            feature->SetGeometry(&polygon);
            if (layer->CreateFeature(feature.get()) != OGRERR_NONE)
                break;
        }
        return *layer;
    }

    BenchmarkMap map;
    RateLookup lookup;
    Tree tree;
    std::vector<OrvikTypes::RX_POLYGONVERTEX> points;
    std::unique_ptr<GDALDataset> dataset;
};

void pointQuery(benchmark::State &state)
{
    Cells cells;
    compareSideBySide(
        state, "over_rtree", [&cells] { benchmark::DoNotOptimize(cells.byLookup()); },
        [&cells] { benchmark::DoNotOptimize(cells.byTree()); });
    constexpr int slowQueries = 10;
    const double query =
        timed([&cells] { benchmark::DoNotOptimize(cells.byLookup()); }) / static_cast<double>(cells.pointCount());
    const double scan = timed([&cells] { benchmark::DoNotOptimize(cells.byScan(slowQueries)); }) / slowQueries;
    cells.byOgr(1);
    const double ogr = timed([&cells] { benchmark::DoNotOptimize(cells.byOgr(slowQueries)); }) / slowQueries;
    state.counters["query_seconds"] = query;
    state.counters["scan_over_query"] = scan / query;
    state.counters["ogr_filter_over_query"] = ogr / query;
}

} // namespace

BENCHMARK(pointQuery)->Name("PointQuery/cells-100k")->UseManualTime()->Iterations(30);
