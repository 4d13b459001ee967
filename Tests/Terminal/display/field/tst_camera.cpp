#include "camera.h"
#include "testbase.h"

#include <QVector4D>

/// The camera over the field: where a point appears, and which point is under a finger.
class TestCamera : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void projectingAndLookingBackGivesThePoint_data();
    void projectingAndLookingBackGivesThePoint();
    void theMatrixDrawsAPointWhereItIsProjected_data();
    void theMatrixDrawsAPointWhereItIsProjected();
    void theTargetIsInTheMiddle();
    void northIsUpAndEastIsRight();
    void theHorizonStaysOutOfTheView();
    void aFramedFieldLiesInTheFreeAreaAndTouchesItsEdge_data();
    void aFramedFieldLiesInTheFreeAreaAndTouchesItsEdge();
    void panningKeepsThePointUnderTheFinger();
    void zoomingKeepsThePointUnderTheFinger();
    void theDistanceStaysWithinItsLimits();
    void metresPerPixelAgreeWithTheProjection();

private:
    static Camera camera();
};

Camera TestCamera::camera()
{
    Camera result;
    result.setViewport(QSizeF(1280, 744));
    result.setTarget(QPointF(120, -40));
    result.setDistance(700);
    return result;
}

void TestCamera::projectingAndLookingBackGivesThePoint_data()
{
    QTest::addColumn<QPointF>("point");
    QTest::addColumn<double>("distance");
    for (const double distance : {8.0, 300.0, 5000.0}) {
        for (const QPointF &point : {QPointF(0, 0), QPointF(1, 1), QPointF(-1, 0.5), QPointF(0.7, -0.6)}) {
            QTest::addRow("%g,%g at %g", point.x(), point.y(), distance)
                << QPointF(120, -40) + point * distance * 0.2 << distance;
        }
    }
}

void TestCamera::projectingAndLookingBackGivesThePoint()
{
    QFETCH(QPointF, point);
    QFETCH(double, distance);
    Camera eye = camera();
    eye.setDistance(distance);
    const std::optional<QPointF> screen = eye.project(point);
    QVERIFY(screen);
    const std::optional<QPointF> back = eye.fieldPoint(*screen);
    QVERIFY(back);
    QVERIFY2(QLineF(point, *back).length() < 1e-9 * distance,
             qPrintable(QString::number(QLineF(point, *back).length())));
}

void TestCamera::theMatrixDrawsAPointWhereItIsProjected_data()
{
    projectingAndLookingBackGivesThePoint_data();
}

void TestCamera::theMatrixDrawsAPointWhereItIsProjected()
{
    QFETCH(QPointF, point);
    QFETCH(double, distance);
    Camera eye = camera();
    eye.setDistance(distance);
    const QVector4D clip =
        eye.matrix() * QVector4D(float(point.x()), float(Camera::planeHeight), float(-point.y()), 1.0F);
    const QPointF drawn((clip.x() / clip.w() + 1.0) / 2.0 * 1280.0, (1.0 - clip.y() / clip.w()) / 2.0 * 744.0);
    QVERIFY2(QLineF(drawn, eye.project(point).value()).length() < 0.05, "drawn elsewhere than projected");
    QVERIFY(std::abs(clip.z()) < clip.w());
}

void TestCamera::theTargetIsInTheMiddle()
{
    const QPointF screen = camera().project(QPointF(120, -40)).value();
    QVERIFY(QLineF(screen, QPointF(640, 372)).length() < 1e-9);
}

void TestCamera::northIsUpAndEastIsRight()
{
    const Camera eye = camera();
    const QPointF middle = eye.project(eye.target()).value();
    QVERIFY(eye.project(eye.target() + QPointF(0, 10)).value().y() < middle.y());
    QVERIFY(eye.project(eye.target() + QPointF(10, 0)).value().x() > middle.x());
}

void TestCamera::theHorizonStaysOutOfTheView()
{
    const Camera eye = camera();
    for (const QPointF &corner : {QPointF(0, 0), QPointF(1280, 0), QPointF(0, 744), QPointF(1280, 744)})
        QVERIFY(eye.fieldPoint(corner));
    QVERIFY(!eye.fieldPoint(QPointF(640, -3000)));
    QVERIFY(!eye.project(eye.target() - QPointF(0, 3000)));
}

void TestCamera::aFramedFieldLiesInTheFreeAreaAndTouchesItsEdge_data()
{
    QTest::addColumn<QRectF>("field");
    QTest::newRow("wide") << QRectF(-900, -100, 1800, 200);
    QTest::newRow("tall") << QRectF(-50, -700, 100, 1400);
    QTest::newRow("square") << QRectF(-200, -200, 400, 400);
    QTest::newRow("far off") << QRectF(90000, -80000, 500, 400);
    QTest::newRow("small") << QRectF(0, 0, 30, 20);
}

void TestCamera::aFramedFieldLiesInTheFreeAreaAndTouchesItsEdge()
{
    QFETCH(QRectF, field);
    const QRectF free(240, 20, 800, 700);
    Camera eye = camera();
    eye.frame(field, free);
    QRectF seen(eye.project(field.topLeft()).value(), QSizeF(0, 0));
    for (const QPointF &corner : {field.topRight(), field.bottomLeft(), field.bottomRight()}) {
        const QPointF screen = eye.project(corner).value();
        seen.setLeft(qMin(seen.left(), screen.x()));
        seen.setRight(qMax(seen.right(), screen.x()));
        seen.setTop(qMin(seen.top(), screen.y()));
        seen.setBottom(qMax(seen.bottom(), screen.y()));
    }
    QVERIFY(free.adjusted(-1, -1, 1, 1).contains(seen));
    QVERIFY(std::abs(seen.width() - free.width()) < 1.0 || std::abs(seen.height() - free.height()) < 1.0);
}

void TestCamera::panningKeepsThePointUnderTheFinger()
{
    Camera eye = camera();
    const QPointF held = eye.fieldPoint(QPointF(300, 500)).value();
    eye.pan(QPointF(300, 500), QPointF(900, 120));
    QVERIFY(QLineF(eye.project(held).value(), QPointF(900, 120)).length() < 1e-6);
}

void TestCamera::zoomingKeepsThePointUnderTheFinger()
{
    Camera eye = camera();
    const QPointF held = eye.fieldPoint(QPointF(300, 500)).value();
    eye.zoom(1.7, QPointF(300, 500));
    QVERIFY(QLineF(eye.project(held).value(), QPointF(300, 500)).length() < 1e-6);
    QVERIFY(std::abs(eye.distance() - 700 / 1.7) < 1e-9);
}

void TestCamera::theDistanceStaysWithinItsLimits()
{
    Camera eye = camera();
    eye.zoom(1e9, QPointF(640, 372));
    QCOMPARE(eye.distance(), Camera::minDistance);
    eye.zoom(1e-12, QPointF(640, 372));
    QCOMPARE(eye.distance(), Camera::maxDistance);
}

void TestCamera::metresPerPixelAgreeWithTheProjection()
{
    const Camera eye = camera();
    const QPointF point = eye.target() + QPointF(30, 100);
    const double pixels = eye.project(point + QPointF(10, 0)).value().x() - eye.project(point).value().x();
    QVERIFY(std::abs(10.0 / pixels - eye.metresPerPixel(point)) < 1e-9);
}

RXMAP_TEST(TestCamera, Core)
#include "tst_camera.moc"
