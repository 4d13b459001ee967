#include "ratesort.h"
#include "testbase.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <random>

class RateSortTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void sortsAsComparingDoes_data();
    void sortsAsComparingDoes();
    void ordersNumbersOfEverySize();
};

void RateSortTest::sortsAsComparingDoes_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<unsigned>("different");
    QTest::newRow("none") << 0 << 10U;
    QTest::newRow("one") << 1 << 10U;
    QTest::newRow("few") << 100 << 1000000U;
    QTest::newRow("the last number that is compared") << 512 << 1000000U;
    QTest::newRow("the first number that is not") << 513 << 1000000U;
    QTest::newRow("many") << 20000 << 1000000U;
    QTest::newRow("many of few values") << 20000 << 3U;
    QTest::newRow("many of one value") << 20000 << 1U;
}

void RateSortTest::sortsAsComparingDoes()
{
    QFETCH(int, count);
    QFETCH(unsigned, different);
    std::mt19937 random(3);
    std::vector<float> rates;
    for (int i = 0; i < count; ++i)
        rates.push_back(static_cast<float>(random() % different) / 1000.0F);
    std::vector<float> expected = rates;
    std::sort(expected.begin(), expected.end());
    RateSort::sort(rates);
    QVERIFY(rates == expected);
}

void RateSortTest::ordersNumbersOfEverySize()
{
    std::mt19937 random(4);
    std::vector<float> rates = {std::numeric_limits<float>::max(), std::numeric_limits<float>::lowest(),
                                std::numeric_limits<float>::denorm_min(), -std::numeric_limits<float>::infinity()};
    while (rates.size() < 5000) {
        const std::uint32_t bits = static_cast<std::uint32_t>(random());
        float rate = 0.0F;
        std::memcpy(&rate, &bits, sizeof rate);
        if (rate == rate)
            rates.push_back(rate);
    }
    std::vector<float> expected = rates;
    std::sort(expected.begin(), expected.end());
    RateSort::sort(rates);
    QVERIFY(rates == expected);
}

RXMAP_TEST(RateSortTest, Core)
#include "tst_ratesort.moc"
