#include "dubinspath.h"
#include "testbase.h"

#include <cmath>
#include <random>

/// The shortest way from one pose to another.
class TestDubinsPath : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void knownLengths_data();
    void knownLengths();
    void everyPathArrivesAndKeepsTheRadius();
};

void TestDubinsPath::knownLengths_data()
{
    const double pi = std::acos(-1.0);
    QTest::addColumn<QPointF>("place");
    QTest::addColumn<double>("degrees");
    QTest::addColumn<double>("length");
    QTest::newRow("nowhere") << QPointF(0, 0) << 0.0 << 0.0;
    QTest::newRow("straight on") << QPointF(0, 50) << 0.0 << 50.0;
    QTest::newRow("a quarter to the right") << QPointF(6, 6) << 90.0 << 3.0 * pi;
    QTest::newRow("a half turn to the left") << QPointF(-12, 0) << 180.0 << 6.0 * pi;
    QTest::newRow("turning wide") << QPointF(30, 0) << 180.0 << 6.0 * pi + 18.0;
    // Three circles that touch in a row: the middle ones are 4 and 12 m apart.
    QTest::newRow("turning narrow") << QPointF(4, 0) << 180.0 << 6.0 * (pi + 4.0 * std::acos((6.0 + 2.0) / 12.0));
    // Centres 8 m apart across and 30 m along, the straight line between the circles' inner sides.
    QTest::newRow("right, on and left") << QPointF(
        20, 30) << 0.0 << std::sqrt(820.0) + 12.0 * (std::atan(8.0 / 30.0) + std::atan(12.0 / std::sqrt(820.0)));
    QTest::newRow("left, on and right") << QPointF(
        -20, 30) << 0.0 << std::sqrt(820.0) + 12.0 * (std::atan(8.0 / 30.0) + std::atan(12.0 / std::sqrt(820.0)));
    // Once around to the left; every other combination of arcs turns more.
    QTest::newRow("aside") << QPointF(12, 12) << 0.0 << 6.0 * pi;
}

void TestDubinsPath::knownLengths()
{
    QFETCH(QPointF, place);
    QFETCH(double, degrees);
    QFETCH(double, length);
    const DrivePath path = dubinsPath({{0, 0}, 0.0}, {place, radiansOf(degrees)}, 6.0);
    QVERIFY2(std::fabs(path.length() - length) < 1e-9, qPrintable(QString::number(path.length() - length)));
}

void TestDubinsPath::everyPathArrivesAndKeepsTheRadius()
{
    std::mt19937 random(1957);
    std::uniform_real_distribution<double> metres(-40.0, 40.0);
    std::uniform_real_distribution<double> heading(-7.0, 7.0);
    for (int i = 0; i < 20000; ++i) {
        const Pose from{{metres(random), metres(random)}, heading(random)};
        const Pose to{{metres(random), metres(random)}, heading(random)};
        const DrivePath path = dubinsPath(from, to, 7.5);
        const QPointF missed = path.end().place - to.place;
        QVERIFY(std::hypot(missed.x(), missed.y()) < 1e-8);
        const QPointF turned = path.end().forward() - to.forward();
        QVERIFY(std::hypot(turned.x(), turned.y()) < 1e-8);
        for (const PathPiece &piece : path.pieces())
            QVERIFY(std::fabs(piece.curvature) <= 1.0 / 7.5);
        // The same way mirrored, and in reverse.
        const auto mirrored = [](const Pose &pose) { return Pose{{-pose.place.x(), pose.place.y()}, -pose.heading}; };
        const auto facingBack = [](const Pose &pose) { return Pose{pose.place, pose.heading + std::acos(-1.0)}; };
        const double inMirror = dubinsPath(mirrored(from), mirrored(to), 7.5).length();
        const double back = dubinsPath(facingBack(to), facingBack(from), 7.5).length();
        QVERIFY(std::fabs(path.length() - inMirror) < 1e-6);
        QVERIFY(std::fabs(path.length() - back) < 1e-6);
        const QPointF apart = to.place - from.place;
        QVERIFY(path.length() >= std::hypot(apart.x(), apart.y()) - 1e-9);
    }
}

RXMAP_TEST(TestDubinsPath, None)
#include "tst_dubinspath.moc"
