#include "gdalsession.h"
#include "localplane.h"
#include "testbase.h"

#include <cmath>
#include <limits>

namespace {

RawPrescription mapAt(std::vector<double> xs, std::vector<double> ys, int epsg)
{
    RawPrescription map;
    map.xs = std::move(xs);
    map.ys = std::move(ys);
    if (epsg != 0) {
        map.reference.reset(new OGRSpatialReference);
        map.reference->importFromEPSG(epsg);
    }
    return map;
}

} // namespace

class LocalPlaneTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void putsItsOriginAtZero();
    void measuresEastAndNorthInMetres();
    void agreesWithTheGridOfAProjectedMap();
    void projectsTheWorldAsItsCoordinateSystemsDo_data();
    void projectsTheWorldAsItsCoordinateSystemsDo();
    void takesLatitudeFirstSystemsAsFilesStoreThem();
    void placesAMapWithoutACoordinateSystem();
    void refusesWhatItCannotPlace_data();
    void refusesWhatItCannotPlace();
    void projectsNoSystemThatIsNowhereOnTheEarth();
    void projectsMorePlacesThanOneCallTakes();
    void acceptsMapsOfAnyPlace_data();
    void acceptsMapsOfAnyPlace();
    void measuresDistances();

private:
    GdalSession session;
};

void LocalPlaneTest::putsItsOriginAtZero()
{
    const LocalPlane plane(11.5, 48.99);
    std::vector<double> xs, ys;
    QString error;
    QVERIFY(plane.project(mapAt({11.5}, {48.99}, 4326), xs, ys, error));
    QVERIFY(std::fabs(xs[0]) < 1e-6);
    QVERIFY(std::fabs(ys[0]) < 1e-6);
}

void LocalPlaneTest::measuresEastAndNorthInMetres()
{
    // One thousandth of a degree at 45 degrees north: 78.847 m along the parallel, 111.132 m along the meridian.
    const LocalPlane plane(10.0, 45.0);
    std::vector<double> xs, ys;
    QString error;
    QVERIFY(plane.project(mapAt({10.001, 10.0}, {45.0, 45.001}, 4326), xs, ys, error));
    QVERIFY(std::fabs(xs[0] - 78.847) < 0.001);
    QVERIFY(std::fabs(ys[0]) < 0.001);
    QVERIFY(std::fabs(xs[1]) < 1e-6);
    QVERIFY(std::fabs(ys[1] - 111.132) < 0.001);
}

void LocalPlaneTest::agreesWithTheGridOfAProjectedMap()
{
    // On the zone's middle meridian the grid's scale is 0.9996 and its north is north.
    const RawPrescription map = mapAt({500000, 501000, 500000}, {5500000, 5500000, 5501000}, 32632);
    GeographicExtent extent;
    QString error;
    QVERIFY(LocalPlane::locate(map, extent, error));
    QVERIFY(std::fabs(extent.west - 9.0) < 1e-9);
    const LocalPlane plane(9.0, extent.south);
    std::vector<double> xs, ys;
    QVERIFY(plane.project(map, xs, ys, error));
    QVERIFY(std::fabs((xs[1] - xs[0]) * 0.9996 - 1000.0) < 0.001);
    QVERIFY(std::fabs((ys[2] - ys[0]) * 0.9996 - 1000.0) < 0.001);
}

void LocalPlaneTest::projectsTheWorldAsItsCoordinateSystemsDo_data()
{
    QTest::addColumn<QByteArray>("system");
    QTest::newRow("none named") << QByteArray();
    QTest::newRow("latitude first") << QByteArray("EPSG:4326");
    QTest::newRow("longitude first") << QByteArray("OGC:CRS84");
    QTest::newRow("a Shapefile's names") << QByteArray(
        "GEOGCS[\"GCS_WGS_1984\",DATUM[\"D_WGS_1984\",SPHEROID[\"WGS_1984\",6378137.0,298.257223563]],"
        "PRIMEM[\"Greenwich\",0.0],UNIT[\"Degree\",0.0174532925199433]]");
    QTest::newRow("another datum") << QByteArray("EPSG:4314");
    // What a definition says about the shift to WGS 84 counts if its own datum is not WGS 84.
    QTest::newRow("shifted, of WGS 84 itself") << QByteArray("+proj=longlat +datum=WGS84 +towgs84=100,200,300");
    QTest::newRow("shifted") << QByteArray("+proj=longlat +ellps=WGS84 +towgs84=100,200,300");
    QTest::newRow("another meridian") << QByteArray("+proj=longlat +datum=WGS84 +pm=paris");
}

void LocalPlaneTest::projectsTheWorldAsItsCoordinateSystemsDo()
{
    QFETCH(QByteArray, system);
    RawPrescription map = mapAt({11.0, 11.0123, 11.4, 12.5, -170.0}, {48.0, 48.01234, 47.9, 49.5, 10.0}, 0);
    OGRSpatialReference source;
    QCOMPARE(source.SetFromUserInput(system.isEmpty() ? "EPSG:4326" : system.constData()), OGRERR_NONE);
    if (!system.isEmpty())
        map.reference.reset(source.Clone());
    source.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    OGRSpatialReference plane;
    plane.importFromProj4("+proj=tmerc +lat_0=48.25 +lon_0=11.5 +datum=WGS84 +units=m");
    const std::unique_ptr<OGRCoordinateTransformation> between(OGRCreateCoordinateTransformation(&source, &plane));
    std::vector<double> expectedXs = map.xs, expectedYs = map.ys, xs, ys;
    QVERIFY(between->Transform(static_cast<quint16>(map.xs.size()), expectedXs.data(), expectedYs.data()));
    QString error;
    QVERIFY(LocalPlane(11.5, 48.25).project(map, xs, ys, error));
    QVERIFY(xs == expectedXs);
    QVERIFY(ys == expectedYs);
}

void LocalPlaneTest::takesLatitudeFirstSystemsAsFilesStoreThem()
{
    // The system's definition puts latitude first, but files hold the longitude as x.
    std::vector<double> xs, ys;
    QString error;
    QVERIFY(LocalPlane(10.0, 45.0).project(mapAt({10.001}, {45.0}, 4258), xs, ys, error));
    QVERIFY(xs[0] > 78.0);
    QVERIFY(std::fabs(ys[0]) < 0.01);
}

void LocalPlaneTest::placesAMapWithoutACoordinateSystem()
{
    const RawPrescription map = mapAt({11.5, 11.501}, {48.99, 48.991}, 0);
    GeographicExtent extent;
    QString error;
    QVERIFY(LocalPlane::locate(map, extent, error));
    QVERIFY(std::fabs(extent.north - 48.991) < 1e-9);
    std::vector<double> xs, ys;
    QVERIFY(LocalPlane(11.5, 48.99).project(map, xs, ys, error));
    QVERIFY(std::fabs(ys[1] - 111.2) < 0.1);
}

void LocalPlaneTest::refusesWhatItCannotPlace_data()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::addColumn<double>("size");
    QTest::addColumn<int>("epsg");
    QTest::addColumn<QString>("reason");
    QTest::newRow("metres without a coordinate system")
        << 286571.0 << 4434961.0 << 100.0 << 0 << "names no coordinate system";
    QTest::newRow("metres called degrees") << 286571.0 << 4434961.0 << 100.0 << 4326 << "no longitudes and latitudes";
    QTest::newRow("beyond the north pole") << 10.0 << 90.2 << 0.1 << 4326 << "no longitudes and latitudes";
    QTest::newRow("beyond the south pole") << 10.0 << -90.2 << 0.3 << 4326 << "no longitudes and latitudes";
    QTest::newRow("half the globe") << -90.0 << -45.0 << 90.0 << 4326 << "extends over 10008 km; no field";
    QTest::newRow("half the globe, no coordinate system")
        << -90.0 << -45.0 << 90.0 << 0 << "extends over 10008 km; no field";
    QTest::newRow("beyond the projection") << 1e9 << 1e9 << 100.0 << 32632 << "cannot be projected";
    QTest::newRow("a grid's whole world") << -5e6 << 0.0 << 9e6 << 32632 << "";
}

void LocalPlaneTest::refusesWhatItCannotPlace()
{
    QFETCH(double, x);
    QFETCH(double, y);
    QFETCH(double, size);
    QFETCH(int, epsg);
    QFETCH(QString, reason);
    GeographicExtent extent;
    QString error;
    QVERIFY(!LocalPlane::locate(mapAt({x, x + size}, {y, y + size}, epsg), extent, error));
    QVERIFY(!error.isEmpty());
    QVERIFY2(error.contains(reason), qPrintable(error));
}

void LocalPlaneTest::projectsNoSystemThatIsNowhereOnTheEarth()
{
    RawPrescription map = mapAt({10.0}, {45.0}, 4326);
    map.reference.reset(new OGRSpatialReference);
    map.reference->SetLocalCS("the plans of a yard");
    std::vector<double> xs, ys;
    QString error;
    QVERIFY(!LocalPlane(10.0, 45.0).project(map, xs, ys, error));
    QVERIFY2(error.contains(QStringLiteral("\"the plans of a yard\" cannot be projected")), qPrintable(error));
}

void LocalPlaneTest::projectsMorePlacesThanOneCallTakes()
{
    // Over a region that is too wide for projecting it by an approximation.
    constexpr size_t count = 70000;
    std::vector<double> degreesEast, degreesNorth;
    for (size_t i = 0; i < count; ++i) {
        degreesEast.push_back(20.0 + 2e-4 * double(i));
        degreesNorth.push_back(40.0 + 1e-4 * double(i));
    }
    const LocalPlane plane(27.0, 44.0);
    std::vector<double> xs, ys;
    QString error;
    QVERIFY(plane.project(mapAt(degreesEast, degreesNorth, 4326), xs, ys, error));
    for (size_t i = 0; i < count; i += 6999) {
        std::vector<double> x, y;
        QVERIFY(plane.project(mapAt({degreesEast[i]}, {degreesNorth[i]}, 4326), x, y, error));
        QVERIFY2(std::hypot(xs[i] - x[0], ys[i] - y[0]) < 1e-6, qPrintable(QString::number(i)));
    }
}

void LocalPlaneTest::acceptsMapsOfAnyPlace_data()
{
    QTest::addColumn<QVector<double>>("xs");
    QTest::addColumn<QVector<double>>("ys");
    QTest::addColumn<int>("epsg");
    QTest::newRow("a whole region") << QVector<double>{154040, 627168} << QVector<double>{4829965, 4905263} << 32635;
    QTest::newRow("west of the date line") << QVector<double>{179.99, 180.0} << QVector<double>{-17.0, -16.99} << 4326;
    QTest::newRow("east of the date line") << QVector<double>{-180.0, -179.99} << QVector<double>{66.0, 66.01} << 4326;
}

void LocalPlaneTest::acceptsMapsOfAnyPlace()
{
    QFETCH(QVector<double>, xs);
    QFETCH(QVector<double>, ys);
    QFETCH(int, epsg);
    GeographicExtent extent;
    QString error;
    const RawPrescription map = mapAt({xs.begin(), xs.end()}, {ys.begin(), ys.end()}, epsg);
    QVERIFY2(LocalPlane::locate(map, extent, error), qPrintable(error));
}

void LocalPlaneTest::measuresDistances()
{
    const LocalPlane plane(10.0, 45.0);
    QCOMPARE(plane.distanceTo(10.0, 45.0), 0.0);
    QVERIFY(std::fabs(plane.distanceTo(10.0, 46.0) - 111195.0) < 10.0);
    QVERIFY(std::fabs(plane.distanceTo(11.0, 45.0) - 78626.0) < 50.0);
    QVERIFY(std::fabs(plane.distanceTo(-170.0, -45.0) - 20015115.0) < 100.0);
}

RXMAP_TEST(LocalPlaneTest, Core)
#include "tst_localplane.moc"
