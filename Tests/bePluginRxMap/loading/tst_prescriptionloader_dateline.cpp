#include "Backend/prescriptionbackend.h"
#include "loadertest.h"
#include "taskdatasketch.h"

#include <cmath>

namespace {

using Sketch = TaskDataSketch;

constexpr int weight = 6;
constexpr double latitude = -16.5;

/// A square with sides of a thousandth of a degree.
QString cell(double west)
{
    return squareText(west, latitude, 0.001);
}

/// The same square as two parts, cut at the date line.
QString halves()
{
    return QStringLiteral("MULTIPOLYGON (((179.9995 -16.5, 180 -16.5, 180 -16.499, 179.9995 -16.499, 179.9995 -16.5)), "
                          "((-180 -16.5, -179.9995 -16.5, -179.9995 -16.499, -180 -16.499, -180 -16.5)))");
}

} // namespace

/// Fields that lie across the date line.
class PrescriptionLoaderDateLineTest : public LoaderTest {
    Q_OBJECT

private Q_SLOTS:
    void joinsWhatLiesAcrossTheDateLine_data();
    void joinsWhatLiesAcrossTheDateLine();
    void joinsTaskData_data();
    void joinsTaskData();
    void placesProjectedMapsAcrossTheDateLine();
    void findsNothingWhereTheDateLineCutsAField();
    void sharesAPlaneAcrossTheDateLine();
    void leavesLostPositionsOutBesideTheDateLine();
    void leavesOutWhatEnclosesOnlyTheDateLine();

private:
    /// The rate at that place.
    double rateAtPlace(const LoadedMap &map, double longitude) const;
    /// Whether the map consists of two squares, side by side at the date line, with rate 1 to its west and 2 to its
    /// east.
    void compareWithTwoCells(const LoadedMap &map);
    QString writeMap(const char *name, const char *driver, int epsg, const QList<LayerRow> &rows);
};

double PrescriptionLoaderDateLineTest::rateAtPlace(const LoadedMap &map, double longitude) const
{
    RawPrescription place;
    place.xs = {longitude};
    place.ys = {latitude + 0.0005};
    std::vector<double> x;
    std::vector<double> y;
    QString reason;
    return map.plane.project(place, x, y, reason) ? rateAt(map, x[0], y[0]) : std::nan("");
}

void PrescriptionLoaderDateLineTest::compareWithTwoCells(const LoadedMap &map)
{
    QVERIFY2(map.report.isOk(), qPrintable(map.report.error));
    QVERIFY2(std::fabs(map.report.bounds.width() - 213.5) < 0.5,
             qPrintable(QString::number(map.report.bounds.width())));
    QCOMPARE(map.report.bounds.center().x() + 1.0, 1.0);
    QVERIFY2(std::fabs(map.report.origin.x()) <= 180.0 && std::fabs(map.report.origin.x()) > 179.999,
             qPrintable(QString::number(map.report.origin.x(), 'f', 6)));
    QCOMPARE(rateAtPlace(map, 179.9995), 1.0);
    QCOMPARE(rateAtPlace(map, -179.9995), 2.0);
}

QString PrescriptionLoaderDateLineTest::writeMap(const char *name, const char *driver, int epsg,
                                                 const QList<LayerRow> &rows)
{
    LayerSketch sketch;
    sketch.driver = driver;
    sketch.epsg = epsg;
    sketch.kind = qstrcmp(driver, "ESRI Shapefile") == 0 ? "POLYGON" : "GEOMETRY";
    sketch.fields = {{"kg_ha", 1.0}};
    sketch.rows = rows;
    return write(sketch, name);
}

void PrescriptionLoaderDateLineTest::joinsWhatLiesAcrossTheDateLine_data()
{
    QTest::addColumn<QByteArray>("driver");
    QTest::addColumn<int>("epsg");
    QTest::addColumn<QStringList>("shapes");
    const QStringList either{cell(179.999), cell(-180.0)};
    QTest::newRow("on either side") << QByteArray("GeoJSON") << 4326 << either;
    QTest::newRow("a Shapefile on either side") << QByteArray("ESRI Shapefile") << 4326 << either;
    QTest::newRow("no coordinate system") << QByteArray("ESRI Shapefile") << 0 << either;
    QTest::newRow("another datum") << QByteArray("GPKG") << 4167 << either;
    QTest::newRow("on beyond 180") << QByteArray("GPKG") << 4326 << QStringList{cell(179.999), cell(180.0)};
    QTest::newRow("on beyond -180") << QByteArray("GPKG") << 4326 << QStringList{cell(-180.001), cell(-180.0)};
    QTest::newRow("a turn apart") << QByteArray("GPKG") << 4326 << QStringList{cell(-180.001), cell(180.0)};
    QTest::newRow("the last one across it")
        << QByteArray("GPKG") << 4326 << QStringList{cell(179.999), cell(179.9995), cell(-180.0)};
    QTest::newRow("a ring that jumps") << QByteArray("GeoJSON") << 4326
                                       << QStringList{"POLYGON ((179.999 -16.5, -179.9999 -16.5, -179.9999 -16.499, "
                                                      "179.999 -16.499, 179.999 -16.5))",
                                                      cell(-180.0)};
    QTest::newRow("a ring that jumps, with a hole that does not")
        << QByteArray("GeoJSON") << 4326
        << QStringList{"POLYGON ((179.999 -16.5, -179.9999 -16.5, -179.9999 -16.499, 179.999 -16.499, 179.999 -16.5), "
                       "(-179.99995 -16.4999, -179.99992 -16.4999, -179.99992 -16.4998, -179.99995 -16.4999))",
                       cell(-180.0)};
}

void PrescriptionLoaderDateLineTest::joinsWhatLiesAcrossTheDateLine()
{
    QFETCH(QByteArray, driver);
    QFETCH(int, epsg);
    QFETCH(QStringList, shapes);
    QList<LayerRow> rows;
    for (const QString &shape : shapes)
        rows.append({shape, {shape == shapes.last() ? 2.0 : 1.0}});
    const QByteArray name = driver == "GeoJSON" ? "a.geojson" : driver == "GPKG" ? "a.gpkg" : "a.shp";
    const auto map = load(writeMap(name.constData(), driver.constData(), epsg, rows));
    compareWithTwoCells(*map);
    QCOMPARE(map->report.outers, shapes.size());
    QCOMPARE(map->report.warnings.size(), epsg == 0 ? 1 : 0);
}

void PrescriptionLoaderDateLineTest::joinsTaskData_data()
{
    QTest::addColumn<bool>("isGrid");
    QTest::newRow("zones") << false;
    QTest::newRow("a grid") << true;
}

void PrescriptionLoaderDateLineTest::joinsTaskData()
{
    QFETCH(bool, isGrid);
    const QByteArray zones = isGrid
        ? Sketch::grid(2, 1, 2, "J=\"1\"").replace("A=\"48\" B=\"11\"", "A=\"-16.5\" B=\"179.999\"")
            + Sketch::zone(1, Sketch::value(weight, 0))
        : Sketch::zone(1, Sketch::polygon({{179.999, latitude, 0.001}}) + Sketch::value(weight, 100))
            + Sketch::zone(2, Sketch::polygon({{-180.0, latitude, 0.001}}) + Sketch::value(weight, 200));
    QVERIFY(
        (Sketch{Sketch::task("TSK1", zones), 4, {{"GRD00001.BIN", Sketch::steps({100, 200})}}}.write(folder.path())));
    compareWithTwoCells(*load(folder.path()));
}

void PrescriptionLoaderDateLineTest::placesProjectedMapsAcrossTheDateLine()
{
    // Fiji 1986 / Fiji Map Grid: the date line lies at about 2,130 km east.
    OGRSpatialReference world;
    OGRSpatialReference grid;
    world.SetWellKnownGeogCS("WGS84");
    QCOMPARE(grid.importFromEPSG(3460), OGRERR_NONE);
    world.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    grid.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    const std::unique_ptr<OGRCoordinateTransformation> toGrid(OGRCreateCoordinateTransformation(&world, &grid));
    double x = 180.0;
    double y = latitude;
    QVERIFY(toGrid && toGrid->Transform(1, &x, &y));
    const auto map = load(
        writeMap("a.gpkg", "GPKG", 3460, {{squareText(x - 100.0, y, 100.0), {1.0}}, {squareText(x, y, 100.0), {2.0}}}));
    QVERIFY2(map->report.isOk(), qPrintable(map->report.error));
    QVERIFY(std::fabs(map->report.bounds.width() - 200.0) < 1.0);
    QCOMPARE(rateAtPlace(*map, 179.9998), 1.0);
    QCOMPARE(rateAtPlace(*map, -179.9998), 2.0);
}

void PrescriptionLoaderDateLineTest::findsNothingWhereTheDateLineCutsAField()
{
    const LoadReport report = PrescriptionBackend::checkFile(
        requestFor(writeMap("a.geojson", "GeoJSON", 4326, {{halves(), {1.0}}, {cell(-179.9995), {2.0}}})), 12.0);
    QVERIFY2(report.isOk(), qPrintable(report.error));
    QVERIFY2(report.findings.isEmpty(), qPrintable(report.warnings.join('\n')));
}

void PrescriptionLoaderDateLineTest::sharesAPlaneAcrossTheDateLine()
{
    const auto west = load(writeMap("a.gpkg", "GPKG", 4326, {{cell(179.998), {1.0}}}));
    const auto east = load(requestFor(writeMap("b.gpkg", "GPKG", 4326, {{cell(-179.999), {2.0}}})), {west->plane});
    QCOMPARE(east->report.origin, west->report.origin);
    QVERIFY(std::fabs(east->report.bounds.left() - 267.0) < 1.0);
    QVERIFY(east->report.warnings.isEmpty());
}

void PrescriptionLoaderDateLineTest::leavesLostPositionsOutBesideTheDateLine()
{
    const QString lost = squareText(0.0, 0.0, 0.001);
    const auto map = load(writeMap("a.gpkg", "GPKG", 4326,
                                   {{cell(179.999), {1.0}}, {lost, {9.0}}, {lost, {9.0}}, {cell(-180.0), {2.0}}}));
    compareWithTwoCells(*map);
    QCOMPARE(map->report.findings.size(), 1);
    QCOMPARE(map->report.findings.first().records, (QList<int>{1, 2}));
}

void PrescriptionLoaderDateLineTest::leavesOutWhatEnclosesOnlyTheDateLine()
{
    const QString sliver = QStringLiteral("POLYGON ((180 -16.5, -180 -16.5, -180 -16.499, 180 -16.499, 180 -16.5))");
    const auto map =
        load(writeMap("a.gpkg", "GPKG", 4326, {{cell(179.999), {1.0}}, {sliver, {9.0}}, {cell(-180.0), {2.0}}}));
    compareWithTwoCells(*map);
    QCOMPARE(map->report.findings.size(), 1);
    QCOMPARE(map->report.findings.first().records, QList<int>{1});
    QCOMPARE(map->report.findings.first().kind, MapFinding::Kind::Skipped);
}

RXMAP_TEST(PrescriptionLoaderDateLineTest, Core)
#include "tst_prescriptionloader_dateline.moc"
