#include "swathplan.h"
#include "testbase.h"

#include <cmath>

Q_DECLARE_METATYPE(SwathOptions)

/// The way over a whole field.
class TestSwathPlan : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void theLongestSideIsFound_data();
    void theLongestSideIsFound();
    void swathsCoverTheFieldOnce();
    void aSwathReachesAsFarAsTheFieldDoesAnywhereAcrossIt();
    void headlandsComeFirstAndShortenTheSwaths();
    void aRoundKeepsTheRadiusAndClosesUp();
    void whatCannotBeDrivenIsRefused_data();
    void whatCannotBeDrivenIsRefused();

private:
    static FieldArea rectangle(double width, double height, double degrees = 0.0)
    {
        const Pose frame{{1000, -500}, radiansOf(degrees)};
        const QPointF right = width * frame.rightward();
        const QPointF up = height * frame.forward();
        return FieldArea({QPolygonF({frame.place, frame.place + right, frame.place + right + up, frame.place + up})});
    }
    static double worked(const DrivePath &path)
    {
        double length = 0.0;
        for (const PathPiece &piece : path.pieces())
            length += piece.isWorked ? piece.length : 0.0;
        return length;
    }
};

void TestSwathPlan::theLongestSideIsFound_data()
{
    QTest::addColumn<double>("width");
    QTest::addColumn<double>("height");
    QTest::addColumn<double>("turned");
    QTest::addColumn<double>("degrees");
    QTest::newRow("north") << 100.0 << 300.0 << 0.0 << 0.0;
    QTest::newRow("east") << 300.0 << 100.0 << 0.0 << 90.0;
    QTest::newRow("turned") << 100.0 << 300.0 << 37.0 << 37.0;
    QTest::newRow("turned far") << 300.0 << 100.0 << 117.0 << 27.0;
}

void TestSwathPlan::theLongestSideIsFound()
{
    QFETCH(double, width);
    QFETCH(double, height);
    QFETCH(double, turned);
    QFETCH(double, degrees);
    const double found = rectangle(width, height, turned).longestSide();
    QVERIFY2(std::fabs(found - radiansOf(degrees)) < 1e-9, qPrintable(QString::number(found)));
}

void TestSwathPlan::swathsCoverTheFieldOnce()
{
    SwathOptions options;
    options.width = 10.0;
    const Result<DrivePath> path = SwathPlan::make(rectangle(100, 300, 37.0), options);
    QVERIFY2(path.isOk(), qPrintable(path.error));
    QVERIFY(std::fabs(worked(path.value) - 10 * 300.0) < 1e-6);
    int swaths = 0;
    for (const PathPiece &piece : path.value.pieces()) {
        swaths += piece.isWorked ? 1 : 0;
        QVERIFY(std::fabs(piece.curvature) <= 1.0 / options.minRadius);
    }
    QCOMPARE(swaths, 10);
    // One swath joins the next without a gap or a bend.
    for (double at = 0.0; at < path.value.length(); at += 0.25) {
        const Pose here = path.value.at(at).pose;
        const QPointF step = path.value.at(at + 0.25).pose.place - here.place;
        QVERIFY(std::hypot(step.x(), step.y()) < 0.25 + 1e-9);
        QVERIFY(QPointF::dotProduct(step, here.forward()) > 0.24 || at + 0.25 > path.value.length());
    }
}

void TestSwathPlan::aSwathReachesAsFarAsTheFieldDoesAnywhereAcrossIt()
{
    // A right-angled triangle: the strip from 0 to 10 m contains its whole height, the next one 90 % of it.
    const FieldArea triangle({QPolygonF({{0, 0}, {100, 0}, {0, 200}})});
    const auto strips = triangle.strips(0.0, 0.0, 10.0, 11);
    QCOMPARE(strips.at(0)->length(), 200.0);
    QCOMPARE(strips.at(1)->length(), 180.0);
    QCOMPARE(strips.at(9)->to, 20.0);
    QVERIFY(!strips.at(10) || strips.at(10)->length() == 0.0);
}

void TestSwathPlan::headlandsComeFirstAndShortenTheSwaths()
{
    SwathOptions options;
    options.width = 10.0;
    options.minRadius = 5.0;
    options.headlands = 2;
    const Result<DrivePath> path = SwathPlan::make(rectangle(100, 300), options);
    QVERIFY2(path.isOk(), qPrintable(path.error));
    const double cut = 4 * (2 * 5.0 - std::acos(-1.0) * 5.0 / 2.0);
    const double rounds = 2 * (90.0 + 290.0) - cut + 2 * (70.0 + 270.0) - cut;
    // The seam between cells and the simplification of the outline cost some centimetres.
    QVERIFY2(std::fabs(worked(path.value) - rounds - 6 * 260.0) < 3.0, qPrintable(QString::number(worked(path.value))));
    QVERIFY(path.value.at(0.0).isWorked);
}

void TestSwathPlan::aRoundKeepsTheRadiusAndClosesUp()
{
    // A step in the side that is too small for the radius, and a spike.
    const QPolygonF ring({{0, 0}, {50, 0}, {50, 1}, {100, 1}, {100, 40}, {180, 40.5}, {100, 41}, {100, 90}, {0, 90}});
    const DrivePath lap = SwathPlan::round(ring, 8.0);
    QVERIFY(lap.length() > 300.0);
    for (const PathPiece &piece : lap.pieces())
        QVERIFY(std::fabs(piece.curvature) <= 1.0 / 8.0);
    const QPointF missed = lap.end().place - lap.at(0.0).pose.place;
    QVERIFY(std::hypot(missed.x(), missed.y()) < 1e-9);
    QVERIFY(std::fabs(std::sin(0.5 * (lap.end().heading - lap.at(0.0).pose.heading))) < 1e-9);
}

void TestSwathPlan::whatCannotBeDrivenIsRefused_data()
{
    QTest::addColumn<SwathOptions>("options");
    QTest::addColumn<QString>("reason");
    SwathOptions options;
    options.width = 0.0;
    QTest::newRow("no width") << options << "a working width of 0 is out of range (0.5 to 200 m)";
    options.width = 120.0;
    QTest::newRow("wider than the field") << options << "the field is 100.0 m wide, narrower than the machine's 120 m";
    options = {};
    options.minRadius = 0.0;
    QTest::newRow("no radius") << options << "a turning radius of 0 is out of range (above 0, up to 200 m)";
    options = {};
    options.headlands = -1;
    QTest::newRow("headlands below zero") << options << "a number of headlands of -1 is out of range (0 to 20)";
    options = {};
    options.angle = std::nan("");
    QTest::newRow("no angle") << options << "an angle of nan is out of range (degrees)";
}

void TestSwathPlan::whatCannotBeDrivenIsRefused()
{
    QFETCH(SwathOptions, options);
    QTEST(SwathPlan::make(rectangle(100, 300), options).error, "reason");
    QVERIFY(!SwathPlan::make(FieldArea(), SwathOptions()).isOk());
}

RXMAP_TEST(TestSwathPlan, None)
#include "tst_swathplan.moc"
