#include "fixture.h"
#include "gdalsession.h"
#include "layerwriter.h"
#include "prescriptionloader.h"
#include "testbase.h"

#include <QTemporaryDir>

#include <cmath>
#include <memory>
#include <ogrsf_frmts.h>

using OrvikTypes::RX_POLYGON;

namespace {

std::unique_ptr<LoadedMap> load(const LoadRequest &request, const std::vector<LocalPlane> &planes = {})
{
    const LoadControl control;
    return PrescriptionLoader(request, planes, control).load();
}

std::unique_ptr<LoadedMap> load(const QString &path, const QStringList &columns = {})
{
    return load(requestFor(path, columns));
}

double areaOf(const LoadedMap &map)
{
    double area = 0.0;
    for (const RX_POLYGON *record = map.chain->first(); record != nullptr; record = record->next)
        area += record->isHole ? -record->area : record->area;
    return area;
}

/// What GDAL alone finds in a file.
struct Census {
    int records = 0;
    int polygons = 0;
    int holes = 0;
    int invalid = 0;
    int withoutRate = 0;
};

void count(const OGRPolygon &polygon, Census &census)
{
    ++census.polygons;
    census.holes += polygon.getNumInteriorRings();
}

Census censusOf(const QString &path, const QStringList &columns)
{
    const GdalSession session;
    Census census;
    const GDALDatasetUniquePtr file(GDALDataset::Open(qPrintable(path), GDAL_OF_VECTOR));
    for (const OGRFeatureUniquePtr &feature : file->GetLayer(0)) {
        ++census.records;
        bool hasRate = false;
        for (const QString &column : columns)
            hasRate = hasRate || feature->IsFieldSetAndNotNull(feature->GetFieldIndex(qPrintable(column)));
        const OGRGeometry *geometry = feature->GetGeometryRef();
        if (!hasRate || geometry == nullptr) {
            ++census.withoutRate;
            continue;
        }
        census.invalid += geometry->IsValid() ? 0 : 1;
        if (wkbFlatten(geometry->getGeometryType()) == wkbPolygon)
            count(*geometry->toPolygon(), census);
        else
            for (const OGRPolygon *part : *geometry->toMultiPolygon())
                count(*part, census);
    }
    return census;
}

} // namespace

class PrescriptionLoaderTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void loadsTheFixtures_data();
    void loadsTheFixtures();
    void measuresAreaInSquareMetres();
    void showsTheSamePlaceWhateverTheCoordinateSystem();
    void takesAMapWithoutACoordinateSystemAsDegrees();
    void repairsAndCountsABrokenRing();
    void skipsAndCountsRecordsWithoutRate();
    void keepsAPolygonThatHasARateInOneColumn();
    void skipsRatesTooLargeForThePublishedNumbers();
    void dropsAPolygonThatALaterOneRepeats();
    void saysWhyItCannotLoad_data();
    void saysWhyItCannotLoad();
    void refusesARequestThatMakesNoSense_data();
    void refusesARequestThatMakesNoSense();
    void refusesATruncatedShapefile();
    void refusesShapefilesWhosePartsDoNotFit();
    void countsWhatItSkipsButRefusesWhenNothingIsLeft();
    void joinsAPlaneThatIsNear();
    void endsWhenItIsCancelled();
    void loadsRealMaps_data();
    void loadsRealMaps();
    void refusesParcelsForWantOfARate();

private:
    QString write(const LayerSketch &sketch, const char *name);

    QTemporaryDir folder;
};

QString PrescriptionLoaderTest::write(const LayerSketch &sketch, const char *name)
{
    const QString path = folder.filePath(QLatin1String(name));
    for (const char *extension : {"shp", "shx", "dbf", "prj", "cpg"})
        QFile::remove(path.left(path.size() - 3) + QLatin1String(extension));
    QFile::remove(path);
    return sketch.write(path) ? path : QString();
}

void PrescriptionLoaderTest::loadsTheFixtures_data()
{
    QTest::addColumn<int>("polygons");
    QTest::addColumn<int>("outers");
    QTest::addColumn<int>("holes");
    QTest::addColumn<int>("repaired");
    QTest::addColumn<int>("skipped");
    QTest::addColumn<double>("area");
    QTest::newRow("three-zones") << 3 << 3 << 0 << 0 << 0 << 30000.0;
    QTest::newRow("pond-and-island") << 5 << 3 << 2 << 0 << 0 << 40000.0 - 14400.0 + 6400.0 - 1600.0 + 400.0;
    QTest::newRow("overlap") << 2 << 2 << 0 << 0 << 0 << 20000.0;
    QTest::newRow("partly-without-rate") << 3 << 3 << 0 << 0 << 1 << 7500.0;
    QTest::newRow("bow-tie") << 3 << 3 << 0 << 1 << 0 << 15000.0;
    QTest::newRow("two-parts") << 4 << 3 << 1 << 0 << 0 << 6600.0;
    QTest::newRow("text-rates") << 2 << 2 << 0 << 0 << 2 << 5000.0;
    QTest::newRow("touching-holes") << 3 << 3 << 3 << 0 << 0 << 10000.0 - 1200.0 + 10000.0 - 1500.0 + 100.0 - 9.8 * 9.8;
}

void PrescriptionLoaderTest::loadsTheFixtures()
{
    QFETCH(int, polygons);
    QFETCH(int, outers);
    QFETCH(int, holes);
    QFETCH(int, repaired);
    QFETCH(int, skipped);
    QFETCH(double, area);
    const auto map = load(fixture(QTest::currentDataTag()) + QStringLiteral(".geojson"));
    QVERIFY2(map->report.isOk(), qPrintable(map->report.error));
    QCOMPARE(map->report.polygons, polygons);
    QCOMPARE(map->report.outers, outers);
    QCOMPARE(map->report.holes, holes);
    QCOMPARE(map->report.repaired, repaired);
    QCOMPARE(map->report.skipped, skipped);
    // The grid of the files shrinks lengths by 0.0004 on the zone's middle meridian.
    QVERIFY2(std::fabs(areaOf(*map) * 0.9996 * 0.9996 / area - 1.0) < 2e-4, qPrintable(QString::number(areaOf(*map))));
}

void PrescriptionLoaderTest::measuresAreaInSquareMetres()
{
    // One second of a degree on the equator: 30.715 m by 30.922 m.
    LayerSketch sketch;
    sketch.fields = {{"rate", 1.0}};
    sketch.rows = {{squareText(20.0, 0.0, 1.0 / 3600.0), {1.0}}};
    const auto map = load(write(sketch, "a.shp"));
    QVERIFY2(std::fabs(map->chain->first()->area - 949.8) < 0.1,
             qPrintable(QString::number(map->chain->first()->area)));
    QVERIFY(std::fabs(map->report.bounds.width() - 30.922) < 0.002);
    QVERIFY(std::fabs(map->report.bounds.height() - 30.715) < 0.002);
}

void PrescriptionLoaderTest::showsTheSamePlaceWhateverTheCoordinateSystem()
{
    // The corners of one field in degrees and in two grids.
    QList<QRectF> bounds;
    for (const int epsg : {4326, 32632, 3857, 4258, 2154}) {
        OGRSpatialReference world;
        OGRSpatialReference grid;
        world.importFromEPSG(4326);
        grid.importFromEPSG(epsg);
        world.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
        grid.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
        std::unique_ptr<OGRCoordinateTransformation> toGrid(OGRCreateCoordinateTransformation(&world, &grid));
        double x[] = {6.0, 6.004, 6.004, 6.0};
        double y[] = {48.0, 48.0, 48.002, 48.002};
        QVERIFY(toGrid->Transform(4, x, y));
        QStringList corners;
        for (const int i : {0, 1, 2, 3, 0})
            corners.append(QStringLiteral("%1 %2").arg(x[i], 0, 'f', 10).arg(y[i], 0, 'f', 10));
        LayerSketch sketch;
        sketch.driver = "GPKG";
        sketch.epsg = epsg;
        sketch.fields = {{"rate", 1.0}};
        sketch.rows = {{QStringLiteral("POLYGON ((%1))").arg(corners.join(QStringLiteral(", "))), {1.0}}};
        LoadRequest request = requestFor(write(sketch, "a.gpkg"));
        const auto map = load(request, {LocalPlane(6.002, 48.001)});
        QVERIFY2(map->report.isOk(), qPrintable(map->report.error));
        bounds.append(map->report.bounds);
    }
    for (const QRectF &other : bounds) {
        QVERIFY(std::fabs(other.left() - bounds.first().left()) < 0.01);
        QVERIFY(std::fabs(other.top() - bounds.first().top()) < 0.01);
        QVERIFY(std::fabs(other.width() - bounds.first().width()) < 0.01);
        QVERIFY(std::fabs(other.height() - bounds.first().height()) < 0.01);
    }
}

void PrescriptionLoaderTest::takesAMapWithoutACoordinateSystemAsDegrees()
{
    LayerSketch sketch;
    sketch.epsg = 0;
    sketch.fields = {{"rate", 1.0}};
    sketch.rows = {{squareText(11.0, 48.0, 0.001), {1.0}}};
    const auto map = load(write(sketch, "a.shp"));
    QVERIFY2(map->report.isOk(), qPrintable(map->report.error));
    QVERIFY(std::fabs(map->report.bounds.height() - 111.2) < 0.1);
    QCOMPARE(map->report.warnings.size(), 1);
    QVERIFY(map->report.warnings.first().contains(QStringLiteral("WGS 84")));
    sketch.rows = {{squareText(700000.0, 5300000.0, 100.0), {1.0}}};
    QVERIFY(load(write(sketch, "a.shp"))->report.error.contains(QStringLiteral("names no coordinate system")));
}

void PrescriptionLoaderTest::repairsAndCountsABrokenRing()
{
    const auto map = load(fixture("bow-tie.geojson"));
    QCOMPARE(map->report.repaired, 1);
    QCOMPARE(map->report.warnings.size(), 1);
    QVERIFY(map->report.warnings.first().startsWith(fixture("bow-tie.geojson") + QStringLiteral(": 1 polygon had")));
}

void PrescriptionLoaderTest::skipsAndCountsRecordsWithoutRate()
{
    const auto map = load(fixture("text-rates.geojson"));
    QCOMPARE(map->report.skipped, 2);
    const QString warnings = map->report.warnings.join(QLatin1Char('\n'));
    QVERIFY2(warnings.contains(QStringLiteral("2 records without a rate were skipped")), qPrintable(warnings));
    QVERIFY2(warnings.contains(QStringLiteral("1 entry of column \"Rate\" is no rate")), qPrintable(warnings));
}

void PrescriptionLoaderTest::keepsAPolygonThatHasARateInOneColumn()
{
    const auto map = load(fixture("partly-without-rate.geojson"));
    QCOMPARE(map->report.outers, 3);
    const RX_POLYGON *first = map->chain->first();
    QCOMPARE(first->rates[0], 10.0F);
    QVERIFY(std::isnan(first->rates[1]));
    for (const auto &legend : map->report.legends) {
        QCOMPARE(legend.size(), 3);
        QCOMPARE(legend.last().color.alpha(), 0);
        QVERIFY(std::isfinite(legend.last().rate));
    }
}

void PrescriptionLoaderTest::skipsRatesTooLargeForThePublishedNumbers()
{
    LayerSketch sketch;
    sketch.driver = "GPKG";
    sketch.fields = {{"rate", 1.0}};
    sketch.rows = {{squareText(11.0, 48.0, 0.001), {1e39}}, {squareText(11.001, 48.0, 0.001), {5.0}}};
    const auto map = load(write(sketch, "a.gpkg"));
    QCOMPARE(map->report.outers, 1);
    QCOMPARE(map->report.skipped, 1);
    QCOMPARE(map->report.legends.first().size(), 1);
}

void PrescriptionLoaderTest::dropsAPolygonThatALaterOneRepeats()
{
    LayerSketch sketch;
    sketch.driver = "GPKG";
    sketch.fields = {{"rate_a", 1.0}, {"rate_b", 1.0}};
    sketch.rows = {{squareText(11.0, 48.0, 0.001), {1.0, 10.0}},
                   {squareText(11.0, 48.0, 0.001), {2.0, 20.0}},
                   {squareText(11.0, 48.0, 0.001), {3.0, QVariant()}}};
    const auto map = load(write(sketch, "a.gpkg"));
    QCOMPARE(map->report.outers, 3);
    QCOMPARE(map->report.polygons, 2);
    QCOMPARE(map->report.skipped, 0);
    QVERIFY(map->report.warnings.first().contains(QStringLiteral("1 polygon is hidden")));
    QCOMPARE(map->lookup->ratesAt(0.0, 0.0).rates, QList<float>({3.0F, 20.0F}));
}

void PrescriptionLoaderTest::saysWhyItCannotLoad_data()
{
    QTest::addColumn<QString>("geometry");
    QTest::addColumn<QByteArray>("kind");
    QTest::addColumn<QVariant>("rate");
    QTest::addColumn<QString>("reason");
    const QString square = squareText(11.0, 48.0, 0.001);
    QTest::newRow("points") << "POINT (11 48)" << QByteArray("POINT") << QVariant(1.0) << "holds no polygons";
    QTest::newRow("points in a layer of any kind")
        << "POINT (11 48)" << QByteArray("GEOMETRY") << QVariant(1.0) << "points or lines";
    QTest::newRow("no geometry") << "" << QByteArray("POLYGON") << QVariant(1.0) << "holds no polygon";
    QTest::newRow("a ring of two points")
        << "POLYGON ((11 48, 12 48, 11 48))" << QByteArray("POLYGON") << QVariant(1.0) << "holds no polygon";
    QTest::newRow("a ring on one line") << "POLYGON ((11 48, 11.001 48, 11.002 48, 11 48))" << QByteArray("POLYGON")
                                        << QVariant(1.0) << "encloses anything";
    QTest::newRow("nothing but null rates")
        << square << QByteArray("POLYGON") << QVariant() << "no column that looks like a rate";
    QTest::newRow("half the globe") << squareText(-90.0, -80.0, 150.0) << QByteArray("POLYGON") << QVariant(1.0)
                                    << "extends over";
    QTest::newRow("beyond the globe") << squareText(5000.0, 48.0, 1.0) << QByteArray("POLYGON") << QVariant(1.0)
                                      << "no longitudes and latitudes";
}

void PrescriptionLoaderTest::saysWhyItCannotLoad()
{
    QFETCH(QString, geometry);
    QFETCH(QByteArray, kind);
    QFETCH(QVariant, rate);
    QFETCH(QString, reason);
    LayerSketch sketch;
    sketch.driver = "GPKG";
    sketch.kind = kind.constData();
    sketch.fields = {{"rate", 1.0}};
    sketch.rows = {{geometry, {rate}}};
    const QString path = write(sketch, "a.gpkg");
    const auto map = load(path);
    QVERIFY(!map->report.isOk());
    QVERIFY(map->chain == nullptr && map->lookup == nullptr);
    QVERIFY2(map->report.error.startsWith(path + QStringLiteral(": ")), qPrintable(map->report.error));
    QVERIFY2(map->report.error.contains(reason), qPrintable(map->report.error));
    QVERIFY(!map->report.error.contains(QLatin1Char('\n')));
}

void PrescriptionLoaderTest::refusesARequestThatMakesNoSense_data()
{
    QTest::addColumn<QStringList>("columns");
    QTest::addColumn<QStringList>("products");
    QTest::addColumn<QString>("reason");
    const QStringList products = requestFor({}).rateCalNames;
    QTest::newRow("no product") << QStringList() << QStringList() << "no product";
    QTest::newRow("more columns than products")
        << QStringList({"SEED_K_HA", "FERT_KG_HA", "HERB_L_HA", "area_ha"}) << products << "\"area_ha\" has no product";
    QTest::newRow("empty columns only") << QStringList({"", ""}) << products << "no column is named";
    QTest::newRow("a column that is not there") << QStringList({"SEED_K_HA", "LIME"}) << products << "\"LIME\"";
}

void PrescriptionLoaderTest::refusesARequestThatMakesNoSense()
{
    QFETCH(QStringList, columns);
    QFETCH(QStringList, products);
    QFETCH(QString, reason);
    LoadRequest request = requestFor(fixture("three-zones.geojson"), columns);
    request.rateCalNames = products;
    QVERIFY2(load(request)->report.error.contains(reason), qPrintable(load(request)->report.error));
}

void PrescriptionLoaderTest::refusesATruncatedShapefile()
{
    LayerSketch sketch;
    sketch.fields = {{"rate", 1.0}};
    for (int i = 0; i < 5; ++i)
        sketch.rows.append({squareText(11.0 + 0.001 * i, 48.0, 0.001), {1.0 + i}});
    const QString path = write(sketch, "a.shp");
    QFile shapes(path);
    QVERIFY(shapes.resize(shapes.size() - 50));
    QVERIFY2(load(path)->report.error.contains(QStringLiteral("is cut short")), qPrintable(load(path)->report.error));
    // The same with a header that does not give it away.
    QVERIFY(shapes.open(QIODevice::ReadWrite));
    const qint64 words = shapes.size() / 2;
    shapes.seek(24);
    const char length[] = {static_cast<char>(words >> 24), static_cast<char>(words >> 16),
                           static_cast<char>(words >> 8), static_cast<char>(words)};
    shapes.write(length, 4);
    shapes.close();
    QVERIFY(!load(path)->report.isOk());
    QVERIFY(!load(path)->report.error.contains(QLatin1Char('\n')));
}

void PrescriptionLoaderTest::refusesShapefilesWhosePartsDoNotFit()
{
    LayerSketch sketch;
    sketch.fields = {{"rate", 1.0}};
    for (int i = 0; i < 5; ++i)
        sketch.rows.append({squareText(11.0 + 0.001 * i, 48.0, 0.001), {1.0 + i}});
    const QString path = write(sketch, "a.shp");
    LayerSketch fewer = sketch;
    fewer.rows = sketch.rows.mid(0, 2);
    const QString other = write(fewer, "b.shp");
    const QString table = path.left(path.size() - 3) + QStringLiteral("dbf");
    QVERIFY(QFile::remove(table));
    QVERIFY2(load(path)->report.error.contains(QStringLiteral("no .dbf")), qPrintable(load(path)->report.error));
    QVERIFY(QFile::copy(other.left(other.size() - 3) + QStringLiteral("dbf"), table));
    QVERIFY2(load(path)->report.error.contains(QStringLiteral("2 rows for 5 shapes")),
             qPrintable(load(path)->report.error));
}

void PrescriptionLoaderTest::countsWhatItSkipsButRefusesWhenNothingIsLeft()
{
    LayerSketch sketch;
    sketch.driver = "GeoJSON";
    sketch.kind = "GEOMETRY";
    sketch.fields = {{"rate", 1.0}};
    sketch.rows = {{squareText(11.0, 48.0, 0.001), {1.0}},
                   {QString(), {2.0}},
                   {QStringLiteral("POINT (11 48)"), {3.0}},
                   {QStringLiteral("POLYGON ((11 48, 12 48, 11 48))"), {4.0}},
                   {squareText(11.001, 48.0, 0.001), {QVariant()}}};
    const auto map = load(write(sketch, "a.geojson"));
    QVERIFY2(map->report.isOk(), qPrintable(map->report.error));
    QCOMPARE(map->report.outers, 1);
    QCOMPARE(map->report.skipped, 4);
    const QString warnings = map->report.warnings.join(QLatin1Char('\n'));
    for (const char *text : {"2 records without geometry were skipped", "1 record that is no polygon was skipped",
                             "1 record without a rate was skipped", "1 ring that encloses nothing was left out"})
        QVERIFY2(warnings.contains(QLatin1String(text)), qPrintable(warnings));
    sketch.rows.removeFirst();
    QVERIFY(!load(write(sketch, "a.geojson"))->report.isOk());
}

void PrescriptionLoaderTest::joinsAPlaneThatIsNear()
{
    const LoadRequest request = requestFor(fixture("overlap.geojson"));
    const auto alone = load(request);
    const LocalPlane near(alone->plane.longitude() + 0.1, alone->plane.latitude());
    const LocalPlane far(alone->plane.longitude() + 1.0, alone->plane.latitude());
    const auto joined = load(request, {far, near});
    QCOMPARE(joined->plane.longitude(), near.longitude());
    QVERIFY(joined->report.warnings.isEmpty());
    const double away = near.distanceTo(alone->plane.longitude(), alone->plane.latitude());
    QVERIFY(away > 7000.0);
    QVERIFY(std::fabs(joined->report.bounds.center().x() + away) < 0.005 * away);
    const auto apart = load(request, {far});
    QCOMPARE(apart->plane.longitude(), alone->plane.longitude());
    QCOMPARE(apart->report.warnings.size(), 1);
}

void PrescriptionLoaderTest::endsWhenItIsCancelled()
{
    // At every step of the load.
    for (const double at : {0.0, 0.5, 0.7, 0.85}) {
        LayerSketch sketch;
        sketch.fields = {{"rate", 1.0}};
        for (int i = 0; i < 600; ++i)
            sketch.rows.append({squareText(11.0 + 0.001 * i, 48.0, 0.001), {1.0}});
        std::atomic<bool> cancelled(at == 0.0);
        LoadControl control;
        control.cancelled = &cancelled;
        control.progress = [&cancelled, at](double fraction) { cancelled = cancelled || fraction >= at; };
        const LoadRequest request = requestFor(write(sketch, "a.shp"));
        const auto map = PrescriptionLoader(request, {}, control).load();
        QVERIFY2(map->report.error.endsWith(QStringLiteral("a.shp: loading was cancelled")),
                 qPrintable(QStringLiteral("%1: %2").arg(at).arg(map->report.error)));
        QVERIFY(map->chain == nullptr);
    }
}

void PrescriptionLoaderTest::loadsRealMaps_data()
{
    QTest::addColumn<QStringList>("named");
    QTest::addColumn<QStringList>("columns");
    const QStringList none;
    QTest::newRow("grid-clipped/grid-clipped.shp") << none << QStringList("RATE_kg_");
    QTest::newRow("cells-three-products/cells.shp") << none << QStringList({"SEED_kg_ha", "HERB_l_ha", "FERT_kg_ha"});
    QTest::newRow("cells-three-products/zones_8c.shp") << none << QStringList("RATE_KG_HA");
    QTest::newRow("cells-17k/cells.shp") << none << QStringList("RATE_l_ha");
    QTest::newRow("cells-17k/zones_4c.shp") << none << QStringList("RATE_l_ha");
    QTest::newRow("cells-17k/zones_8c.shp") << none << QStringList("RATE_l_ha");
    QTest::newRow("blocks-utm/treatment_blocks.shp") << none << QStringList("target_rat");
    QTest::newRow("blocks-utm/treatment_blocks.gpkg") << none << QStringList("target_rate");
    QTest::newRow("zones-geojson/app_map_vector.geojson") << none << QStringList("dose");
    QTest::newRow("zones-geojson/isoxmljs_test.geojson") << none << QStringList("DOSE");
    QTest::newRow("parcels-holes/parcels.shp") << QStringList("AREA_HA") << QStringList("AREA_HA");
}

void PrescriptionLoaderTest::loadsRealMaps()
{
    RXMAP_NEED_REAL_DATA();
    QFETCH(QStringList, named);
    QFETCH(QStringList, columns);
    const QString path = realData(QLatin1String(QTest::currentDataTag()));
    const Census census = censusOf(path, columns);
    const auto map = load(path, named);
    QVERIFY2(map->report.isOk(), qPrintable(map->report.error));
    QCOMPARE(map->report.columns, columns);
    QCOMPARE(map->report.skipped, census.withoutRate);
    QCOMPARE(map->report.repaired, census.invalid);
    if (census.invalid == 0) {
        QCOMPARE(map->report.outers, census.polygons);
        QCOMPARE(map->report.holes, census.holes);
    } else {
        QVERIFY(map->report.outers > census.polygons);
    }
    QVERIFY(census.polygons > 0);
}

void PrescriptionLoaderTest::refusesParcelsForWantOfARate()
{
    RXMAP_NEED_REAL_DATA();
    const QString path = realData(QStringLiteral("parcels-holes/parcels.shp"));
    const auto map = load(path);
    QVERIFY2(map->report.error.startsWith(path + QStringLiteral(": has no column that looks like a rate")),
             qPrintable(map->report.error));
}

QTEST_GUILESS_MAIN(PrescriptionLoaderTest)
#include "tst_prescriptionloader.moc"
