#include "statistics.h"
#include "testbase.h"

#include <cmath>

class StatisticsTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void takesTheMiddle();
    void measuresTheSpreadFromTheMiddle();
    void correlatesRanks_data();
    void correlatesRanks();
};

void StatisticsTest::takesTheMiddle()
{
    QCOMPARE(Statistics::median({7}), 7.0);
    QCOMPARE(Statistics::median({9, 1, 4}), 4.0);
    QCOMPARE(Statistics::median({9, 1, 4, 5}), 4.5);
}

void StatisticsTest::measuresTheSpreadFromTheMiddle()
{
    QCOMPARE(Statistics::medianAbsoluteDeviation({1, 1, 2, 2, 4, 6, 9}), 1.0);
    QCOMPARE(Statistics::medianAbsoluteDeviation({3, 3, 3}), 0.0);
}

void StatisticsTest::correlatesRanks_data()
{
    QTest::addColumn<QList<double>>("a");
    QTest::addColumn<QList<double>>("b");
    QTest::addColumn<double>("correlation");
    QTest::newRow("same order") << QList<double>({1, 2, 3, 10}) << QList<double>({5, 6, 90, 100}) << 1.0;
    QTest::newRow("reversed") << QList<double>({1, 2, 3}) << QList<double>({9, 8, 1}) << -1.0;
    QTest::newRow("one of three changed") << QList<double>({1, 2, 3}) << QList<double>({2, 1, 3}) << 0.5;
    QTest::newRow("equal ones share ranks") << QList<double>({1, 1, 2}) << QList<double>({1, 2, 3}) << std::sqrt(0.75);
    QTest::newRow("all the same") << QList<double>({1, 2, 3}) << QList<double>({4, 4, 4}) << 0.0;
}

void StatisticsTest::correlatesRanks()
{
    QFETCH(QList<double>, a);
    QFETCH(QList<double>, b);
    QFETCH(double, correlation);
    const double found = Statistics::rankCorrelation({a.begin(), a.end()}, {b.begin(), b.end()});
    QVERIFY2(std::fabs(found - correlation) < 1e-9, qPrintable(QString::number(found)));
}

RXMAP_TEST(StatisticsTest, None)
#include "tst_statistics.moc"
