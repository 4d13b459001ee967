#include "loadertest.h"

#include <cmath>
#include <memory>
#include <ogr_spatialref.h>

class PrescriptionLoaderSystemsTest : public LoaderTest {
    Q_OBJECT

private Q_SLOTS:
    void placesAShapefileByItsDefinition_data();
    void placesAShapefileByItsDefinition();
};

void PrescriptionLoaderSystemsTest::placesAShapefileByItsDefinition_data()
{
    QTest::addColumn<int>("epsg");
    QTest::addColumn<double>("longitude");
    QTest::addColumn<double>("latitude");
    // A datum other than WGS 84 may lie a hundred metres beside it, and the file gives only its name.
    QTest::newRow("DHDN, Gauss-Kruger zone 3") << 31467 << 9.2 << 48.8;
    QTest::newRow("OSGB36, British grid") << 27700 << -1.5 << 52.5;
    QTest::newRow("NAD27, UTM zone 15 north") << 26715 << -93.0 << 42.0;
    QTest::newRow("CH1903, oblique Mercator") << 21781 << 7.5 << 47.0;
    QTest::newRow("NTF, degrees from Paris") << 27572 << 2.5 << 47.0;
    QTest::newRow("NAD83, US feet") << 2274 << -86.0 << 36.0;
    QTest::newRow("ETRS89, UTM zone 32 north") << 25832 << 9.0 << 50.0;
}

void PrescriptionLoaderSystemsTest::placesAShapefileByItsDefinition()
{
    QFETCH(int, epsg);
    QFETCH(double, longitude);
    QFETCH(double, latitude);
    OGRSpatialReference world;
    OGRSpatialReference system;
    world.SetWellKnownGeogCS("WGS84");
    QCOMPARE(system.importFromEPSG(epsg), OGRERR_NONE);
    world.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    system.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    const std::unique_ptr<OGRCoordinateTransformation> toSystem(OGRCreateCoordinateTransformation(&world, &system));
    double x = longitude;
    double y = latitude;
    QVERIFY(toSystem && toSystem->Transform(1, &x, &y));
    LayerSketch sketch;
    sketch.epsg = epsg;
    sketch.fields = {{"rate", 1.0}};
    constexpr double side = 100.0;
    sketch.rows = {{squareText(x - 0.5 * side, y - 0.5 * side, side), {1.0}}};
    const auto map = load(write(sketch, "a.shp"));
    QVERIFY2(map->report.isOk(), qPrintable(map->report.error));
    QVERIFY(std::fabs(map->report.origin.x() - longitude) < 1e-6);
    QVERIFY(std::fabs(map->report.origin.y() - latitude) < 1e-6);
}

RXMAP_TEST(PrescriptionLoaderSystemsTest, Core)
#include "tst_prescriptionloader_systems.moc"
