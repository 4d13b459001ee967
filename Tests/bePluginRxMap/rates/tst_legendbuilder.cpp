#include "legendbuilder.h"
#include "rateramp.h"
#include "testbase.h"

#include <cmath>
#include <limits>
#include <random>

using Legend = QList<OrvikTypes::RX_RATECOLOR>;

Q_DECLARE_METATYPE(std::vector<float>)

namespace {

constexpr float noRate = std::numeric_limits<float>::quiet_NaN();

/// The class that a reader of the legend takes for a rate.
int classOf(const Legend &legend, float rate)
{
    for (int i = 0; i < legend.size(); ++i) {
        if (legend.at(i).rate >= static_cast<double>(rate))
            return i;
    }
    return legend.size() - 1;
}

QList<double> limitsOf(const Legend &legend)
{
    QList<double> limits;
    for (const auto &entry : legend)
        limits.append(entry.rate);
    return limits;
}

std::vector<float> spread(int count, double least, double greatest)
{
    std::vector<float> rates;
    for (int i = 0; i < count; ++i)
        rates.push_back(static_cast<float>(least + (greatest - least) * i / (count - 1)));
    return rates;
}

} // namespace

class LegendBuilderTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void givesFewRatesAClassEach();
    void givesZeroAClassAndColourOfItsOwn();
    void splitsManyRatesAtRoundNumbers_data();
    void splitsManyRatesAtRoundNumbers();
    void splitsManyRatesEvenly();
    void followsTheRatesOfALopsidedColumn();
    void putsARateThatEqualsALimitIntoItsClass();
    void reservesTheLastEntryForPolygonsWithoutRate();
    void tellsWhetherEachClassHoldsOneRate_data();
    void tellsWhetherEachClassHoldsOneRate();
    void isEmptyWithoutRates();
    void holdsTheGreatestSingleNumber();
    void keepsItsPromisesForRandomColumns();
};

void LegendBuilderTest::givesFewRatesAClassEach()
{
    const Legend legend = LegendBuilder::build({30, 10, 20, 10, 30});
    QCOMPARE(limitsOf(legend), QList<double>({10, 20, 30}));
    QCOMPARE(legend.first().color, RateRamp::color(0.0));
    QCOMPARE(legend.last().color, RateRamp::color(1.0));
    QCOMPARE(LegendBuilder::build({7.5F}).size(), 1);
}

void LegendBuilderTest::givesZeroAClassAndColourOfItsOwn()
{
    const Legend few = LegendBuilder::build({0, 49, 300});
    QCOMPARE(limitsOf(few), QList<double>({0, 49, 300}));
    QCOMPARE(few.first().color, RateRamp::zeroColor());
    std::vector<float> rates = spread(100, 1.0, 200.0);
    rates.push_back(0.0F);
    const Legend many = LegendBuilder::build(rates);
    QCOMPARE(many.first().rate, 0.0);
    QCOMPARE(many.first().color, RateRamp::zeroColor());
    QVERIFY(many.size() <= LegendBuilder::maxClasses);
    QCOMPARE(classOf(many, 1.0F), 1);
}

void LegendBuilderTest::splitsManyRatesAtRoundNumbers_data()
{
    QTest::addColumn<double>("least");
    QTest::addColumn<double>("greatest");
    QTest::addColumn<int>("digits");
    QTest::newRow("seeds") << 61.3 << 92.7 << 2;
    QTest::newRow("fertiliser") << 23.0 << 230.0 << 2;
    QTest::newRow("spray") << 0.4 << 3.17 << 2;
    QTest::newRow("large") << 12345.0 << 98765.0 << 2;
    QTest::newRow("tiny") << 1e-6 << 9e-6 << 2;
}

void LegendBuilderTest::splitsManyRatesAtRoundNumbers()
{
    QFETCH(double, least);
    QFETCH(double, greatest);
    QFETCH(int, digits);
    const Legend legend = LegendBuilder::build(spread(500, least, greatest));
    QCOMPARE(legend.size(), LegendBuilder::maxClasses);
    for (int i = 0; i + 1 < legend.size(); ++i) {
        const QString text = QString::number(legend.at(i).rate, 'g', digits);
        QCOMPARE(static_cast<float>(text.toDouble()), static_cast<float>(legend.at(i).rate));
    }
    QVERIFY(legend.last().rate >= static_cast<double>(static_cast<float>(greatest)));
    QVERIFY(legend.last().rate <= 1.06 * greatest);
}

void LegendBuilderTest::splitsManyRatesEvenly()
{
    const std::vector<float> rates = spread(7000, 50.0, 400.0);
    const Legend legend = LegendBuilder::build(rates);
    QVector<int> counts(legend.size(), 0);
    for (const float rate : rates)
        ++counts[classOf(legend, rate)];
    for (const int count : counts)
        QVERIFY2(count > 450 && count < 1600, qPrintable(QString::number(count)));
}

void LegendBuilderTest::followsTheRatesOfALopsidedColumn()
{
    std::vector<float> rates = spread(1000, 10.0, 20.0);
    rates.push_back(1e6F);
    const Legend legend = LegendBuilder::build(rates);
    QVERIFY(legend.size() >= 6);
    QVERIFY(classOf(legend, 10.0F) != classOf(legend, 15.0F));
    QVERIFY(classOf(legend, 15.0F) != classOf(legend, 19.9F));
}

void LegendBuilderTest::putsARateThatEqualsALimitIntoItsClass()
{
    for (const float rate : {0.1F, 0.3F, 15.7F, 12.3F}) {
        const Legend legend = LegendBuilder::build({rate, rate + 1.0F});
        QCOMPARE(classOf(legend, rate), 0);
        QCOMPARE(classOf(legend, rate + 1.0F), 1);
    }
    const Legend many = LegendBuilder::build(spread(200, 0.1, 2.0));
    for (int i = 0; i < many.size(); ++i)
        QCOMPARE(classOf(many, static_cast<float>(many.at(i).rate)), i);
}

void LegendBuilderTest::reservesTheLastEntryForPolygonsWithoutRate()
{
    const Legend legend = LegendBuilder::build({10, noRate, 20});
    QCOMPARE(legend.size(), 3);
    QCOMPARE(legend.last().color.alpha(), 0);
    QVERIFY(std::isfinite(legend.last().rate));
    QCOMPARE(classOf(legend, noRate), 2);
    QCOMPARE(classOf(legend, 20.0F), 1);
}

void LegendBuilderTest::tellsWhetherEachClassHoldsOneRate_data()
{
    QTest::addColumn<std::vector<float>>("rates");
    QTest::addColumn<bool>("single");
    QTest::newRow("few rates") << std::vector<float>{0, 49, 300, 49} << true;
    QTest::newRow("not exact in binary") << std::vector<float>{0.1F, 0.3F} << true;
    QTest::newRow("seven rates") << std::vector<float>{1, 2, 3, 4, 5, 6, 7} << true;
    QTest::newRow("some without rate") << std::vector<float>{10, noRate, 20} << true;
    QTest::newRow("eight rates") << std::vector<float>{1, 2, 3, 4, 5, 6, 7, 8} << false;
    QTest::newRow("many rates") << spread(500, 23.0, 230.0) << false;
}

void LegendBuilderTest::tellsWhetherEachClassHoldsOneRate()
{
    QFETCH(std::vector<float>, rates);
    QTEST(LegendBuilder::hasSingleRates(LegendBuilder::build(rates), rates), "single");
}

void LegendBuilderTest::isEmptyWithoutRates()
{
    QVERIFY(LegendBuilder::build({}).isEmpty());
    QVERIFY(LegendBuilder::build({noRate, noRate}).isEmpty());
}

void LegendBuilderTest::holdsTheGreatestSingleNumber()
{
    std::vector<float> rates = spread(50, 1.0, 100.0);
    rates.push_back(std::numeric_limits<float>::max());
    const Legend legend = LegendBuilder::build(rates);
    QVERIFY(std::isfinite(legend.last().rate));
    QCOMPARE(classOf(legend, rates.back()), legend.size() - 1);
    QVERIFY(legend.last().rate >= static_cast<double>(rates.back()));
}

void LegendBuilderTest::keepsItsPromisesForRandomColumns()
{
    std::mt19937 random(42);
    for (int round = 0; round < 500; ++round) {
        const float common = static_cast<float>(1 + random() % 30);
        const bool isTied = random() % 2 == 0;
        std::lognormal_distribution<double> values(random() % 7, 0.1 + random() % 3);
        std::vector<float> rates;
        const size_t count = 1 + random() % 200;
        while (rates.size() < count)
            rates.push_back(random() % 5 == 0                 ? 0.0F
                                : isTied && random() % 5 != 0 ? common
                                                              : static_cast<float>(values(random)));
        const Legend legend = LegendBuilder::build(rates);
        QVERIFY(!legend.isEmpty() && legend.size() <= LegendBuilder::maxClasses);
        QVector<int> counts(legend.size(), 0);
        for (const float rate : rates) {
            const int number = classOf(legend, rate);
            QVERIFY(legend.at(number).rate >= static_cast<double>(rate));
            QCOMPARE(rate == 0.0F, legend.at(number).color == RateRamp::zeroColor());
            ++counts[number];
        }
        for (int i = 0; i < legend.size(); ++i) {
            QVERIFY(counts.at(i) > 0);
            QVERIFY(i == 0 || legend.at(i).rate > legend.at(i - 1).rate);
        }
    }
}

RXMAP_TEST(LegendBuilderTest, Core)
#include "tst_legendbuilder.moc"
