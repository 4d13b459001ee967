#include "gdalsession.h"
#include "localplane.h"
#include "projectionapproximation.h"
#include "testbase.h"

#include <cmath>
#include <random>

class ProjectionApproximationTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void goesThroughAnyPolynomialOfLowDegree();
    void projectsManyAsItProjectsEach();
    void givesUpOnWhatIsNotSmooth();
    void givesUpWhereTheProjectionFails();
    void fitsAnExtentWithoutWidth();
    void standsInForTheProjectionOfAField_data();
    void standsInForTheProjectionOfAField();
};

void ProjectionApproximationTest::goesThroughAnyPolynomialOfLowDegree()
{
    const ProjectionApproximation::Exact exact = [](std::size_t count, double *xs, double *ys) {
        for (std::size_t i = 0; i < count; ++i) {
            const double x = xs[i];
            const double y = ys[i];
            xs[i] = 3.0 + 2.0 * x - 0.5 * x * y + 0.01 * std::pow(x, 5) * std::pow(y, 3);
            ys[i] = y * y - 7.0 * x;
        }
    };
    ProjectionApproximation smooth;
    QVERIFY(smooth.fit(exact, -2.0, 3.0, 1.0, 2.0));
    for (double x = -2.0; x <= 3.0; x += 0.37) {
        double px = x, py = 1.7, ex = x, ey = 1.7;
        smooth.apply(px, py);
        exact(1, &ex, &ey);
        QVERIFY(std::fabs(px - ex) < 1e-9 && std::fabs(py - ey) < 1e-9);
    }
}

void ProjectionApproximationTest::projectsManyAsItProjectsEach()
{
    ProjectionApproximation smooth;
    QVERIFY(smooth.fit(
        [](std::size_t count, double *xs, double *ys) {
            for (std::size_t i = 0; i < count; ++i) {
                xs[i] = std::sin(xs[i]) * ys[i];
                ys[i] = std::cos(ys[i]);
            }
        },
        0.1, 0.2, 0.3, 0.4));
    std::mt19937 random(6);
    std::uniform_real_distribution<double> share(0.0, 0.1);
    for (std::size_t count = 0; count < 40; ++count) {
        std::vector<double> xs, ys;
        for (std::size_t i = 0; i < count; ++i) {
            xs.push_back(0.1 + share(random));
            ys.push_back(0.3 + share(random));
        }
        std::vector<double> eachXs = xs;
        std::vector<double> eachYs = ys;
        for (std::size_t i = 0; i < count; ++i)
            smooth.apply(eachXs[i], eachYs[i]);
        smooth.apply(count, xs.data(), ys.data());
        QVERIFY(xs == eachXs && ys == eachYs);
    }
}

void ProjectionApproximationTest::givesUpOnWhatIsNotSmooth()
{
    ProjectionApproximation smooth;
    QVERIFY(!smooth.fit(
        [](std::size_t count, double *xs, double *) {
            for (std::size_t i = 0; i < count; ++i)
                xs[i] = std::fabs(xs[i] - 0.3);
        },
        -1.0, 1.0, -1.0, 1.0));
}

void ProjectionApproximationTest::givesUpWhereTheProjectionFails()
{
    ProjectionApproximation smooth;
    QVERIFY(
        !smooth.fit([](std::size_t count, double *xs, double *) { xs[count / 2] = HUGE_VAL; }, -1.0, 1.0, -1.0, 1.0));
    QVERIFY(!smooth.fit([](std::size_t count, double *, double *ys) { ys[count - 1] = std::nan(""); }, -1.0, 1.0, -1.0,
                        1.0));
}

void ProjectionApproximationTest::fitsAnExtentWithoutWidth()
{
    ProjectionApproximation smooth;
    QVERIFY(smooth.fit([](std::size_t, double *, double *) {}, 5.0, 5.0, 1.0, 2.0));
    double x = 5.0, y = 1.25;
    smooth.apply(x, y);
    QVERIFY(std::fabs(x - 5.0) < 1e-9 && std::fabs(y - 1.25) < 1e-9);
}

void ProjectionApproximationTest::standsInForTheProjectionOfAField_data()
{
    QTest::addColumn<double>("size");
    QTest::newRow("a field") << 0.01;
    QTest::newRow("a farm") << 0.2;
    QTest::newRow("farms all over a district") << 0.8;
    QTest::newRow("a region, too large to stand in for") << 6.0;
}

void ProjectionApproximationTest::standsInForTheProjectionOfAField()
{
    QFETCH(double, size);
    const GdalSession session;
    const LocalPlane plane(11.0, 48.0);
    std::mt19937 random(11);
    std::uniform_real_distribution<double> away(-0.5 * size, 0.5 * size);
    RawPrescription all;
    for (int i = 0; i < 1000; ++i) {
        all.xs.push_back(11.0 + away(random));
        all.ys.push_back(48.0 + away(random));
    }
    std::vector<double> xs, ys;
    QString error;
    QVERIFY(plane.project(all, xs, ys, error));
    // Single places are projected exactly.
    for (size_t i = 0; i < all.xs.size(); i += 7) {
        RawPrescription one;
        one.xs = {all.xs[i]};
        one.ys = {all.ys[i]};
        std::vector<double> x, y;
        QVERIFY(plane.project(one, x, y, error));
        QVERIFY(std::hypot(x[0] - xs[i], y[0] - ys[i]) < 2e-5);
    }
}

RXMAP_TEST(ProjectionApproximationTest, Core)
#include "tst_projectionapproximation.moc"
