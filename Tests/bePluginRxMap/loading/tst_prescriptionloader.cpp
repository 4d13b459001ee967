#include "files.h"
#include "gdalsession.h"
#include "loadertest.h"

#include <cmath>
#include <ogrsf_frmts.h>

using OrvikTypes::RX_POLYGON;

/// What becomes of a file that can be loaded.
class PrescriptionLoaderTest : public LoaderTest {
    Q_OBJECT

private Q_SLOTS:
    void loadsTheFixtures_data();
    void loadsTheFixtures();
    void measuresAreaInSquareMetres();
    void showsTheSamePlaceWhateverTheCoordinateSystem();
    void takesAMapWithoutACoordinateSystemAsDegrees_data();
    void takesAMapWithoutACoordinateSystemAsDegrees();
    void saysThatACoordinateSystemCannotBeRead_data();
    void saysThatACoordinateSystemCannotBeRead();
    void repairsAndCountsABrokenRing();
    void saysWhereARepairIs();
    void skipsAndCountsRecordsWithoutRate();
    void keepsAPolygonThatHasARateInOneColumn();
    void skipsRatesTooLargeForThePublishedNumbers();
    void dropsAPolygonThatALaterOneRepeats();
    void joinsAPlaneThatIsNear();
    void endsWhenItIsCancelled();
};

void PrescriptionLoaderTest::loadsTheFixtures_data()
{
    QTest::addColumn<int>("polygons");
    QTest::addColumn<int>("outers");
    QTest::addColumn<int>("holes");
    QTest::addColumn<int>("repaired");
    QTest::addColumn<int>("skipped");
    QTest::addColumn<double>("area");
    QTest::newRow("three-zones") << 3 << 3 << 0 << 0 << 0 << 30000.0;
    QTest::newRow("pond-and-island") << 4 << 3 << 2 << 0 << 0 << 40000.0 - 14400.0 + 6400.0 - 1600.0 + 400.0;
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

void PrescriptionLoaderTest::takesAMapWithoutACoordinateSystemAsDegrees_data()
{
    QTest::addColumn<QByteArray>("driver");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("epsg");
    QTest::addColumn<QString>("said");
    const QString none = QStringLiteral("names no coordinate system");
    const QString vague = QStringLiteral("its coordinate system \"%1\" does not say where on the earth it is");
    QTest::newRow("Shapefile") << QByteArray("ESRI Shapefile") << "a.shp" << 0 << none;
    QTest::newRow("FlatGeobuf") << QByteArray("FlatGeobuf") << "a.fgb" << 0 << none;
    QTest::newRow("GML") << QByteArray("GML") << "a.gml" << 0 << none;
    QTest::newRow("Shapefile of a site") << QByteArray("ESRI Shapefile") << "a.shp" << -1 << vague.arg("Site");
    QTest::newRow("GeoPackage of a site") << QByteArray("GPKG") << "a.gpkg" << -1 << vague.arg("Site");
    QTest::newRow("GeoPackage 0") << QByteArray("GPKG") << "a.gpkg" << 0 << none;
    QTest::newRow("GeoPackage -1") << QByteArray("GPKG") << "-1.gpkg" << 0 << none;
}

void PrescriptionLoaderTest::takesAMapWithoutACoordinateSystemAsDegrees()
{
    QFETCH(QByteArray, driver);
    QFETCH(QString, name);
    QFETCH(int, epsg);
    QFETCH(QString, said);
    LayerSketch sketch;
    sketch.driver = driver.constData();
    sketch.epsg = epsg;
    sketch.fields = {{"rate", 1.0}};
    const auto loadSquare = [&](const QString &square) {
        sketch.rows = {{square, {1.0}}};
        const QString path = write(sketch, name.toLatin1().constData());
        if (name == QLatin1String("-1.gpkg")) {
            const GdalSession session;
            const GDALDatasetUniquePtr file(
                GDALDataset::Open(path.toUtf8().constData(), GDAL_OF_VECTOR | GDAL_OF_UPDATE));
            for (const char *table : {"gpkg_contents", "gpkg_geometry_columns"})
                file->ReleaseResultSet(
                    file->ExecuteSQL(QByteArray("UPDATE ") + table + " SET srs_id = -1", nullptr, nullptr));
        }
        return load(path);
    };
    const auto map = loadSquare(squareText(11.0, 48.0, 0.001));
    QVERIFY2(map->report.isOk(), qPrintable(map->report.error));
    QVERIFY(std::fabs(map->report.bounds.height() - 111.2) < 0.1);
    QCOMPARE(map->report.warnings,
             QStringList(folder.filePath(name) + QStringLiteral(": %1; taken as WGS 84").arg(said)));
    QCOMPARE(loadSquare(squareText(700000.0, 5300000.0, 100.0))->report.error,
             folder.filePath(name)
                 + QStringLiteral(": %1, and its coordinates are no longitudes and latitudes").arg(said));
}

void PrescriptionLoaderTest::saysThatACoordinateSystemCannotBeRead_data()
{
    QTest::addColumn<QByteArray>("definition");
    QTest::addColumn<QString>("said");
    QTest::newRow("words") << QByteArray("somewhere in the\nnorth field")
                           << "its coordinate system (a.prj) cannot be read";
    QTest::newRow("bytes") << QByteArray("\x00\xff\x07\n\x80", 5) << "its coordinate system (a.prj) cannot be read";
    QTest::newRow("cut short") << QByteArray("PROJCS[\"WGS 84 / UTM") << "its coordinate system (a.prj) cannot be read";
    QTest::newRow("blank") << QByteArray(" \n") << "names no coordinate system";
    QTest::newRow("unknown") << QByteArray("GEOGCS[\"Unknown\",DATUM[\"Unknown\",SPHEROID[\"Unknown\",6378137,298.25]],"
                                           "PRIMEM[\"Greenwich\",0],UNIT[\"Degree\",0.0174532925199433]]")
                             << "its coordinate system \"Unknown\" does not say where on the earth it is";
}

void PrescriptionLoaderTest::saysThatACoordinateSystemCannotBeRead()
{
    QFETCH(QByteArray, definition);
    QFETCH(QString, said);
    LayerSketch sketch;
    sketch.epsg = 0;
    sketch.fields = {{"rate", 1.0}};
    sketch.rows = {{squareText(11.0, 48.0, 0.001), {1.0}}};
    const QString path = write(sketch, "a.shp");
    const QString reference = folder.filePath(QStringLiteral("a.prj"));
    writeFile(reference, definition);
    const auto map = load(path);
    QVERIFY2(map->report.isOk(), qPrintable(map->report.error));
    QCOMPARE(map->report.warnings,
             QStringList(path + QStringLiteral(": ") + said + QStringLiteral("; taken as WGS 84")));
    sketch.rows = {{squareText(700000.0, 5300000.0, 100.0), {1.0}}};
    QCOMPARE(write(sketch, "a.shp"), path);
    writeFile(reference, definition);
    QCOMPARE(load(path)->report.error,
             path + QStringLiteral(": ") + said
                 + QStringLiteral(", and its coordinates are no longitudes and latitudes"));
}

void PrescriptionLoaderTest::repairsAndCountsABrokenRing()
{
    const auto map = load(fixture("bow-tie.geojson"));
    QCOMPARE(map->report.repaired, 1);
    QCOMPARE(map->report.warnings.size(), 1);
    QVERIFY(map->report.warnings.first().startsWith(fixture("bow-tie.geojson") + QStringLiteral(": 1 polygon had")));
}

void PrescriptionLoaderTest::saysWhereARepairIs()
{
    const auto map = load(fixture("bow-tie.geojson"));
    QCOMPARE(map->report.findings.size(), 1);
    const MapFinding &finding = map->report.findings.first();
    QCOMPARE(finding.kind, MapFinding::Kind::Repaired);
    QCOMPARE(map->report.warnings.first(), fixture("bow-tie.geojson: ") + finding.text);
    QCOMPARE(finding.records, QList<int>({0}));
    QVERIFY2(std::fabs(*finding.area / 5000.0 - 1.0) < 0.002, qPrintable(QString::number(*finding.area)));
    QVERIFY(finding.extent.contains(*finding.place));
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
    const QString file = fixture("partly-without-rate.geojson");
    QCOMPARE(map->report.warnings,
             QStringList({file + QStringLiteral(": 1 record has no rate in column \"seed_rate\" (record 1)"),
                          file + QStringLiteral(": 1 record has no rate in column \"fert_rate\" (record 0)"),
                          file + QStringLiteral(": 1 record without a rate was skipped (record 3)")}));
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
}

void PrescriptionLoaderTest::endsWhenItIsCancelled()
{
    // Cancelled at every step of the load.
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

RXMAP_TEST(PrescriptionLoaderTest, Core)
#include "tst_prescriptionloader.moc"
