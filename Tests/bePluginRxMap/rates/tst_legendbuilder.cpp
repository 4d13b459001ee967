#include "Backend/shownrate.h"
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

/// The class that a reader of the legend would choose for a rate.
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

Legend classesOf(const std::vector<float> &rates, double factor = 1.0)
{
    return LegendBuilder::build(rates, factor).classes;
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
    void countsARateForAllThatHaveIt_data();
    void countsARateForAllThatHaveIt();
    void putsARateThatEqualsALimitIntoItsClass();
    void reservesTheLastEntryForPolygonsWithoutRate();
    void tellsWhetherEachClassHoldsOneRate_data();
    void tellsWhetherEachClassHoldsOneRate();
    void givesRatesThatAreShownAlikeOneClass();
    void showsNoTwoLimitsAlike_data();
    void showsNoTwoLimitsAlike();
    void putsARateThatIsShownAsALimitIntoItsClass();
    void sumsTheAreasOfEachClass();
    void isEmptyWithoutRates();
    void holdsTheGreatestSingleNumber();
    void keepsItsPromisesForRandomColumns();
};

void LegendBuilderTest::givesFewRatesAClassEach()
{
    const Legend legend = classesOf({30, 10, 20, 10, 30});
    QCOMPARE(limitsOf(legend), QList<double>({10, 20, 30}));
    QCOMPARE(legend.first().color, RateRamp::color(0.0));
    QCOMPARE(legend.last().color, RateRamp::color(1.0));
    QCOMPARE(classesOf({7.5F}).size(), 1);
}

void LegendBuilderTest::givesZeroAClassAndColourOfItsOwn()
{
    const Legend few = classesOf({0, 49, 300});
    QCOMPARE(limitsOf(few), QList<double>({0, 49, 300}));
    QCOMPARE(few.first().color, RateRamp::zeroColor());
    std::vector<float> rates = spread(100, 1.0, 200.0);
    rates.push_back(0.0F);
    const Legend many = classesOf(rates);
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
    const Legend legend = classesOf(spread(500, least, greatest));
    QCOMPARE(legend.size(), LegendBuilder::maxClasses);
    for (int i = 0; i + 1 < legend.size(); ++i) {
        const QString text = QString::number(legend.at(i).rate, 'g', digits);
        QCOMPARE(text.toDouble(), ShownRate::text(legend.at(i).rate).toDouble());
    }
    QVERIFY(legend.last().rate >= static_cast<double>(static_cast<float>(greatest)));
    QVERIFY(legend.last().rate <= 1.06 * greatest);
}

void LegendBuilderTest::splitsManyRatesEvenly()
{
    const std::vector<float> rates = spread(7000, 50.0, 400.0);
    const Legend legend = classesOf(rates);
    QVector<int> counts(legend.size(), 0);
    for (const float rate : rates)
        ++counts[classOf(legend, rate)];
    for (const int count : counts)
        QVERIFY2(count > 450 && count < 1600, qPrintable(QString::number(count)));
}

void LegendBuilderTest::countsARateForAllThatHaveIt_data()
{
    QTest::addColumn<int>("most");
    QTest::newRow("few") << 9;
    QTest::newRow("more than a sample") << 900;
}

void LegendBuilderTest::countsARateForAllThatHaveIt()
{
    QFETCH(int, most);
    const std::vector<float> rates = spread(100, 0.0, 99.0);
    std::vector<int> counts;
    std::vector<float> each;
    for (size_t i = 0; i < rates.size(); ++i) {
        counts.push_back(i < 20 ? most : 1);
        each.insert(each.end(), size_t(counts.back()), rates[i]);
    }
    const QList<double> limits = limitsOf(LegendBuilder::build(rates, 1.0, counts).classes);
    QCOMPARE(limits, limitsOf(classesOf(each)));
    QVERIFY(limits != limitsOf(classesOf(rates)));
}

void LegendBuilderTest::followsTheRatesOfALopsidedColumn()
{
    std::vector<float> rates = spread(1000, 10.0, 20.0);
    rates.push_back(1e6F);
    const Legend legend = classesOf(rates);
    QVERIFY(legend.size() >= 6);
    QVERIFY(classOf(legend, 10.0F) != classOf(legend, 15.0F));
    QVERIFY(classOf(legend, 15.0F) != classOf(legend, 19.9F));
}

void LegendBuilderTest::putsARateThatEqualsALimitIntoItsClass()
{
    for (const float rate : {0.1F, 0.3F, 15.7F, 12.3F}) {
        const Legend legend = classesOf({rate, rate + 1.0F});
        QCOMPARE(classOf(legend, rate), 0);
        QCOMPARE(classOf(legend, rate + 1.0F), 1);
    }
    const Legend many = classesOf(spread(200, 0.1, 2.0));
    for (int i = 0; i < many.size(); ++i)
        QCOMPARE(classOf(many, static_cast<float>(many.at(i).rate)), i);
}

void LegendBuilderTest::reservesTheLastEntryForPolygonsWithoutRate()
{
    const Legend legend = classesOf({10, noRate, 20});
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
    QTest::newRow("twelve rates") << spread(12, 1.0, 12.0) << true;
    QTest::newRow("more that are shown as twelve") << spread(120, 1.0, 1.11) << true;
    QTest::newRow("some without rate") << std::vector<float>{10, noRate, 20} << true;
    QTest::newRow("thirteen rates") << spread(13, 1.0, 13.0) << false;
    QTest::newRow("many rates") << spread(500, 23.0, 230.0) << false;
}

void LegendBuilderTest::tellsWhetherEachClassHoldsOneRate()
{
    QFETCH(std::vector<float>, rates);
    QTEST(LegendBuilder::build(rates).hasSingleRates, "single");
}

void LegendBuilderTest::givesRatesThatAreShownAlikeOneClass()
{
    QCOMPARE(classesOf({100.001F, 100.004F, 100.0F, 101.0F}).size(), 2);
    QCOMPARE(classesOf({100.001F, 100.004F, 100.0F, 101.0F}).first().rate, static_cast<double>(100.004F));
    // Shown as 0.100 and 0.101.
    QCOMPARE(classesOf({100.0F, 101.0F}, 1e-3).size(), 2);
    QCOMPARE(classesOf({100.0F, 100.4F}, 1e-3).size(), 1);
}

void LegendBuilderTest::showsNoTwoLimitsAlike_data()
{
    QTest::addColumn<std::vector<float>>("rates");
    QTest::addColumn<double>("factor");
    for (const double factor : {1.0, 0.404685642, 0.1069, 0.89217912, 0.0136835, 128.0}) {
        QTest::addRow("within a unit, %g", factor) << spread(400, 123.41, 123.97) << factor;
        QTest::addRow("within two hundredths, %g", factor) << spread(30, 99.99, 100.02) << factor;
        QTest::addRow("fractions, %g", factor) << spread(400, 0.101, 0.119) << factor;
        QTest::addRow("wide, %g", factor) << spread(9000, 0.001, 25000.0) << factor;
        std::vector<float> lopsided = spread(400, 50.0, 50.3);
        lopsided.push_back(0.0F);
        lopsided.push_back(8e4F);
        QTest::addRow("lopsided, %g", factor) << lopsided << factor;
    }
}

void LegendBuilderTest::showsNoTwoLimitsAlike()
{
    QFETCH(std::vector<float>, rates);
    QFETCH(double, factor);
    const Legend legend = classesOf(rates, factor);
    QVERIFY(!legend.isEmpty());
    QVERIFY(legend.size() <= LegendBuilder::maxClasses || LegendBuilder::build(rates, factor).hasSingleRates);
    QStringList texts;
    for (const auto &entry : legend)
        texts.append(ShownRate::text(entry.rate * factor));
    QVERIFY2(texts.removeDuplicates() == 0, qPrintable(texts.join(QLatin1Char(' '))));
}

void LegendBuilderTest::putsARateThatIsShownAsALimitIntoItsClass()
{
    constexpr double factor = 0.8921791216;
    const std::vector<float> rates = spread(3000, 100.0, 120.0);
    const Legend legend = classesOf(rates, factor);
    for (const float rate : rates) {
        const double shown = ShownRate::text(static_cast<double>(rate) * factor).toDouble();
        const int number = classOf(legend, rate);
        QVERIFY(number == 0 || shown > ShownRate::text(legend.at(number - 1).rate * factor).toDouble());
    }
}

void LegendBuilderTest::sumsTheAreasOfEachClass()
{
    const std::vector<float> rates{10, noRate, 20, 10};
    QCOMPARE(LegendBuilder::areasOf(classesOf(rates), rates, {1, 2, 4, 8}), QList<double>({9, 4, 2}));
    QCOMPARE(LegendBuilder::areasOf({}, {noRate}, {1}), QList<double>());
}

void LegendBuilderTest::isEmptyWithoutRates()
{
    QVERIFY(classesOf({}).isEmpty());
    QVERIFY(classesOf({noRate, noRate}).isEmpty());
}

void LegendBuilderTest::holdsTheGreatestSingleNumber()
{
    std::vector<float> rates = spread(50, 1.0, 100.0);
    rates.push_back(std::numeric_limits<float>::max());
    const Legend legend = classesOf(rates);
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
        std::lognormal_distribution<double> values(static_cast<int>(random() % 7),
                                                   0.1 + static_cast<int>(random() % 3));
        std::vector<float> rates;
        const size_t count = 1 + random() % 200;
        while (rates.size() < count)
            rates.push_back(random() % 5 == 0                 ? 0.0F
                                : isTied && random() % 5 != 0 ? common
                                                              : static_cast<float>(values(random)));
        const Legend legend = classesOf(rates);
        QVERIFY(!legend.isEmpty() && legend.size() <= LegendBuilder::maxSingleRates);
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
