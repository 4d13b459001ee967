// Each step of a load that takes a shortcut, compared with the plain way on whole maps.

#include "columnpolicy.h"
#include "duplicatepolygons.h"
#include "fixture.h"
#include "gdalsession.h"
#include "geoscontext.h"
#include "localplane.h"
#include "prescriptionreader.h"
#include "ringrepair.h"
#include "testbase.h"

#include <algorithm>
#include <cmath>
#include <ogrsf_frmts.h>

namespace {

/// A map, loaded up to the point where its vertices are in the plane.
struct PlacedMap {
    RawPrescription source;
    LocalPlane plane;
    std::vector<double> xs;
    std::vector<double> ys;
    double farthest = 1.0;
};

bool place(const QString &path, PlacedMap &map, QString &error)
{
    const LoadControl control;
    PrescriptionReader reader({path}, ColumnPolicy::chanceOf, control);
    GeographicExtent extent;
    if (!reader.read(map.source)) {
        error = reader.error();
        return false;
    }
    if (!LocalPlane::locate(map.source, extent, error))
        return false;
    map.plane = LocalPlane(0.5 * (extent.west + extent.east), 0.5 * (extent.south + extent.north));
    if (!map.plane.project(map.source, map.xs, map.ys, error))
        return false;
    for (size_t i = 0; i < map.xs.size(); ++i)
        map.farthest = std::max({map.farthest, std::fabs(map.xs[i]), std::fabs(map.ys[i])});
    return true;
}

RingRepair::Outcome repaired(const PlacedMap &map)
{
    const RingRepair repair(map.farthest);
    RingRepair::Outcome outcome;
    for (size_t ring = 0; ring < map.source.rings.size();)
        ring = repair.append(map.source, map.xs, map.ys, ring, outcome);
    return outcome;
}

/// The ring on the grid, rounded by the library.
PlaneRing plainRing(const PlacedMap &map, const SourceRing &ring, double grid)
{
    PlaneRing result;
    for (size_t i = ring.first; i < ring.first + ring.count; ++i)
        result.push_back({std::nearbyint(map.xs[i] / grid) * grid, std::nearbyint(map.ys[i] / grid) * grid});
    dropRepeatedVertices(result);
    return result;
}

bool isSameRing(const PlaneRing &a, const PlaneRing &b)
{
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), samePlace);
}

/// Whether the rings are the same except for their start and direction.
bool isSameOutline(const PlaneRing &a, PlaneRing b)
{
    if (a.size() != b.size() || ringArea(a) != ringArea(b))
        return false;
    for (int direction = 0; direction < 2; ++direction) {
        const auto start = std::find_if(b.begin(), b.end(), [&a](const auto &v) { return samePlace(v, a.front()); });
        std::rotate(b.begin(), start, b.end());
        if (isSameRing(a, b))
            return true;
        std::reverse(b.begin(), b.end());
    }
    return false;
}

} // namespace

class PrescriptionLoaderPlainTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void readsWhatEveryFeatureHolds_data() { addMaps(); }
    void readsWhatEveryFeatureHolds();
    void placesVerticesWhereTheProjectionDoes_data() { addMaps(); }
    void placesVerticesWhereTheProjectionDoes();
    void keepsThePolygonsThatAreValid_data() { addMaps(); }
    void keepsThePolygonsThatAreValid();
    void dropsThePolygonsThatComparingEachPairFinds_data() { addMaps(); }
    void dropsThePolygonsThatComparingEachPairFinds();

private:
    static void addMaps();
};

void PrescriptionLoaderPlainTest::addMaps()
{
    QTest::addColumn<QString>("path");
    for (const char *name :
         {"three-zones.geojson", "pond-and-island.geojson", "overlap.geojson", "bow-tie.geojson", "two-parts.geojson",
          "touching-holes.geojson", "partly-without-rate.geojson", "text-rates.geojson"})
        QTest::newRow(name) << fixture(name);
    QTest::newRow("sample") << sourcePath("Simulator/Resources/sample/sample-field.shp");
    if (realData(QString()).isEmpty())
        return;
    for (const char *name :
         {"grid-clipped/grid-clipped.shp", "cells-three-products/cells.shp", "cells-three-products/zones_8c.shp",
          "cells-17k/cells.shp", "cells-17k/zones_4c.shp", "cells-17k/zones_8c.shp", "blocks-utm/treatment_blocks.gpkg",
          "blocks-utm/treatment_blocks.shp", "zones-geojson/app_map_vector.geojson", "zones-geojson/*_test.geojson",
          "parcels-holes/parcels.shp"})
        QTest::newRow(name) << realData(QLatin1String(name));
}

void PrescriptionLoaderPlainTest::readsWhatEveryFeatureHolds()
{
    QFETCH(QString, path);
    PlacedMap map;
    QString error;
    QVERIFY2(place(path, map, error), qPrintable(error));
    const GdalSession session;
    const GDALDatasetUniquePtr file(GDALDataset::Open(path.toUtf8().constData(), GDAL_OF_VECTOR));
    size_t record = 0;
    size_t vertices = 0;
    for (const OGRFeatureUniquePtr &feature : file->GetLayer(0)) {
        for (const SourceColumn &column : map.source.columns) {
            const double value =
                feature->IsFieldSetAndNotNull(column.field) ? feature->GetFieldAsDouble(column.field) : std::nan("");
            const double read = column.values[record];
            QVERIFY(read == value || (std::isnan(read) && (column.isText || !(value >= 0.0))));
        }
        if (const OGRGeometry *geometry = feature->GetGeometryRef()) {
            const std::unique_ptr<OGRGeometry> parts(OGRGeometryFactory::forceToMultiPolygon(geometry->clone()));
            for (const OGRPolygon *polygon : *parts->toMultiPolygon()) {
                for (const OGRLinearRing *ring : *polygon)
                    vertices += static_cast<size_t>(ring->getNumPoints()) - 1; // Without the closing vertex.
            }
        }
        ++record;
    }
    QCOMPARE(record, static_cast<size_t>(map.source.records));
    QVERIFY(map.source.droppedRings.empty() && map.source.otherRecords.empty() && map.source.notFiniteRecords.empty());
    QCOMPARE(vertices, map.source.xs.size());
}

void PrescriptionLoaderPlainTest::placesVerticesWhereTheProjectionDoes()
{
    QFETCH(QString, path);
    PlacedMap map;
    QString error;
    QVERIFY2(place(path, map, error), qPrintable(error));
    const GdalSession session;
    // With this few vertices they are projected exactly; of a big map only some such parts are compared.
    constexpr size_t few = 400;
    for (size_t first = 0; first < map.xs.size(); first += std::max(few, map.xs.size() / 20)) {
        const size_t count = std::min(few, map.xs.size() - first);
        const auto from = static_cast<std::ptrdiff_t>(first);
        const auto to = static_cast<std::ptrdiff_t>(first + count);
        RawPrescription part;
        if (map.source.reference)
            part.reference.reset(map.source.reference->Clone());
        part.xs.assign(map.source.xs.begin() + from, map.source.xs.begin() + to);
        part.ys.assign(map.source.ys.begin() + from, map.source.ys.begin() + to);
        std::vector<double> xs, ys;
        QVERIFY(map.plane.project(part, xs, ys, error));
        for (size_t i = 0; i < count; ++i)
            QVERIFY(std::hypot(xs[i] - map.xs[first + i], ys[i] - map.ys[first + i]) < 2e-5);
    }
}

void PrescriptionLoaderPlainTest::keepsThePolygonsThatAreValid()
{
    QFETCH(QString, path);
    PlacedMap map;
    QString error;
    QVERIFY2(place(path, map, error), qPrintable(error));
    const double grid = RingRepair(map.farthest).grid();
    const RingRepair repair(map.farthest);
    const GeosContext geos;
    for (size_t ring = 0; ring < map.source.rings.size();) {
        RingRepair::Outcome outcome;
        const size_t first = ring;
        ring = repair.append(map.source, map.xs, map.ys, ring, outcome);
        const PlaneRing outer = plainRing(map, map.source.rings[first], grid);
        std::vector<PlaneRing> holes;
        for (size_t i = first + 1; i < ring; ++i)
            holes.push_back(plainRing(map, map.source.rings[i], grid));
        if (!geos.isValid(geos.polygon(outer, holes)))
            continue;
        QCOMPARE(outcome.polygons.size(), size_t(1));
        QVERIFY(outcome.repaired.empty());
        QVERIFY(isSameRing(outcome.polygons[0].outer, outer));
        QVERIFY(std::equal(holes.begin(), holes.end(), outcome.polygons[0].holes.begin(),
                           outcome.polygons[0].holes.end(), isSameRing));
    }
    for (const PlanePolygon &polygon : repaired(map).polygons)
        QVERIFY(geos.isValid(geos.polygon(polygon.outer, polygon.holes)));
}

void PrescriptionLoaderPlainTest::dropsThePolygonsThatComparingEachPairFinds()
{
    QFETCH(QString, path);
    PlacedMap map;
    QString error;
    QVERIFY2(place(path, map, error), qPrintable(error));
    std::vector<PlanePolygon> polygons = repaired(map).polygons;
    // Comparing every pair of a big map would take minutes.
    constexpr size_t most = 2000;
    if (polygons.size() > most)
        polygons.resize(most);
    // Every third ring again, with another start and in the other direction.
    const size_t once = polygons.size();
    for (size_t i = 0; i < once; i += 3) {
        PlanePolygon again = polygons[i];
        std::reverse(again.outer.begin(), again.outer.end());
        polygons.push_back(again);
    }
    int expected = 0;
    for (size_t i = 0; i < polygons.size(); ++i) {
        expected += std::any_of(
            polygons.begin() + static_cast<std::ptrdiff_t>(i) + 1, polygons.end(), [&](const PlanePolygon &later) {
                return polygons[i].holes.size() == later.holes.size()
                    && std::equal(later.holes.begin(), later.holes.end(), polygons[i].holes.begin(), isSameOutline)
                    && isSameOutline(polygons[i].outer, later.outer);
            });
    }
    QVERIFY(expected >= static_cast<int>(once + 2) / 3);
    QCOMPARE(int(DuplicatePolygons::drop(polygons, [](int, int) { return true; }).size()), expected);
}

RXMAP_TEST(PrescriptionLoaderPlainTest, Core)
#include "tst_prescriptionloader_plain.moc"
