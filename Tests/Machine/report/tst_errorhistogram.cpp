#include "errorhistogram.h"
#include "testbase.h"

#include <cmath>
#include <random>

/// Area by error.
class TestErrorHistogram : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void everyErrorIsInTheBinThatReachesIt_data();
    void everyErrorIsInTheBinThatReachesIt();
    void theRestIsLeftOutOnBothSides();
};

void TestErrorHistogram::everyErrorIsInTheBinThatReachesIt_data()
{
    QTest::addColumn<double>("scale");
    QTest::newRow("finely metered") << 1e-4;
    QTest::newRow("rates of a sprayer") << 30.0;
    QTest::newRow("far off") << 1e9;
}

void TestErrorHistogram::everyErrorIsInTheBinThatReachesIt()
{
    QFETCH(double, scale);
    std::mt19937 random(7);
    std::normal_distribution<double> error(0.0, scale);
    std::vector<double> errors;
    ErrorHistogram histogram;
    for (int i = 0; i < 3000; ++i) {
        errors.push_back(error(random));
        histogram.add(errors.back(), 2.0);
    }
    histogram.add(std::nan(""), 5.0);
    QCOMPARE(histogram.totalArea(), 6000.0);
    const double width = histogram.binWidth();
    for (int place = -ErrorHistogram::reach; place <= ErrorHistogram::reach; ++place) {
        const auto isThere = [&](double one) { return std::fabs(one - place * width) < 0.5 * width; };
        const auto count = std::count_if(errors.begin(), errors.end(), isThere);
        QVERIFY2(histogram.area(place) == 2.0 * double(count), qPrintable(QString::number(place)));
    }
}

void TestErrorHistogram::theRestIsLeftOutOnBothSides()
{
    ErrorHistogram histogram;
    histogram.add(0.0, 90.0);
    histogram.add(-10e-6, 6.0);
    histogram.add(20e-6, 4.0);
    QCOMPARE(histogram.holding(0.0), 20);
    QCOMPARE(histogram.holding(0.05), 10);
    QCOMPARE(histogram.holding(0.15), 0);
    histogram.widen();
    QCOMPARE(histogram.area(-3), 6.0);
    QCOMPARE(histogram.area(7), 4.0);
}

RXMAP_TEST(TestErrorHistogram, None)
#include "tst_errorhistogram.moc"
