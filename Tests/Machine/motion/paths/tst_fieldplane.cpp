#include "fieldplane.h"
#include "testbase.h"

#include <cmath>
#include <memory>
#include <ogr_spatialref.h>

/// Degrees, and metres in a field's plane.
class TestFieldPlane : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void aKnownPointIsWhereUtmHasIt();
    void thereAndBackIsTheSamePoint_data();
    void thereAndBackIsTheSamePoint();
    void whatItDoesNotReachHasNoPoint();
};

/// On the central meridian of a UTM zone the plane is that zone's, except for scale and origin.
void TestFieldPlane::aKnownPointIsWhereUtmHasIt()
{
    OGRSpatialReference earth;
    earth.SetWellKnownGeogCS("WGS84");
    earth.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    OGRSpatialReference zone;
    QCOMPARE(zone.importFromEPSG(32632), OGRERR_NONE);
    const std::unique_ptr<OGRCoordinateTransformation> toZone(OGRCreateCoordinateTransformation(&earth, &zone));
    double xs[] = {9.0, 9.1};
    double ys[] = {50.0, 50.05};
    QVERIFY(toZone->Transform(2, xs, ys));
    constexpr double scale = 0.9996;
    const FieldPlane plane(QPointF(9.0, 50.0));
    const QPointF field = plane.toField(QPointF(9.1, 50.05)).value();
    QVERIFY2(std::hypot(field.x() - (xs[1] - xs[0]) / scale, field.y() - (ys[1] - ys[0]) / scale) < 0.001,
             qPrintable(QStringLiteral("%1, %2").arg(field.x(), 0, 'f', 4).arg(field.y(), 0, 'f', 4)));
    QVERIFY(field.x() > 7000.0 && field.y() > 5000.0);
}

void TestFieldPlane::thereAndBackIsTheSamePoint_data()
{
    QTest::addColumn<QPointF>("origin");
    QTest::addColumn<QPointF>("field");
    for (const QPointF &origin :
         {QPointF(9.1, 48.2), QPointF(-97.3, 42.0), QPointF(151.2, -33.9), QPointF(179.99, 0.0), QPointF(25.0, 69.0)}) {
        for (const QPointF &field : {QPointF(0, 0), QPointF(123.456, -654.321), QPointF(-20000, 15000),
                                     QPointF(90000, 90000), QPointF(700000, -700000)})
            QTest::addRow("%g, %g: %g, %g", origin.x(), origin.y(), field.x(), field.y()) << origin << field;
    }
}

void TestFieldPlane::thereAndBackIsTheSamePoint()
{
    QFETCH(QPointF, origin);
    QFETCH(QPointF, field);
    const FieldPlane plane(origin);
    const QPointF degrees = plane.toEarth(field).value();
    QVERIFY(FieldPlane::areDegrees(degrees));
    const QPointF back = plane.toField(degrees).value();
    QVERIFY2(std::hypot(back.x() - field.x(), back.y() - field.y()) < 0.001,
             qPrintable(QStringLiteral("%1, %2").arg(back.x(), 0, 'f', 4).arg(back.y(), 0, 'f', 4)));
}

void TestFieldPlane::whatItDoesNotReachHasNoPoint()
{
    const FieldPlane plane(QPointF(9.0, 50.0));
    QVERIFY(plane.toEarth(QPointF(FieldPlane::reach, 0.0)));
    QVERIFY(!plane.toEarth(QPointF(FieldPlane::reach + 1.0, 0.0)));
    QVERIFY(plane.toField(QPointF(9.0, 58.9)));
    QVERIFY(!plane.toField(QPointF(9.0, 59.1)));
    QVERIFY(!plane.toField(QPointF(-171.0, -50.0)));
    QVERIFY(!FieldPlane::areDegrees(QPointF(180.1, 0.0)));
    QVERIFY(!FieldPlane::areDegrees(QPointF(0.0, -90.1)));
}

RXMAP_TEST(TestFieldPlane, None)
#include "tst_fieldplane.moc"
