#include "testbase.h"
#include "typicalrate.h"

#include <limits>

using Rates = std::vector<float>;
using Areas = std::vector<double>;
Q_DECLARE_METATYPE(Rates)
Q_DECLARE_METATYPE(Areas)

/// The default rate that fits a map.
class TypicalRateTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void isTheMeanByArea_data();
    void isTheMeanByArea();
};

void TypicalRateTest::isTheMeanByArea_data()
{
    constexpr float none = std::numeric_limits<float>::quiet_NaN();
    constexpr double poundsPerAcre = 0.892179121;
    QTest::addColumn<Rates>("rates");
    QTest::addColumn<Areas>("areas");
    QTest::addColumn<double>("factor");
    QTest::addColumn<double>("typical");
    QTest::newRow("one rate") << Rates{123.0F} << Areas{500.0} << 1.0 << 123.0;
    QTest::newRow("by area") << Rates{18.0F, 24.0F} << Areas{3.0, 1.0} << 1.0 << 19.5;
    QTest::newRow("three digits") << Rates{83.271F} << Areas{1.0} << 1.0 << 83.3;
    QTest::newRow("three digits of a small one") << Rates{0.012345F} << Areas{1.0} << 1.0 << 0.0123;
    QTest::newRow("three digits of a great one") << Rates{30149.0F} << Areas{1.0} << 1.0 << 30100.0;
    QTest::newRow("in the operator's unit") << Rates{20.0F} << Areas{1.0} << poundsPerAcre << 17.8 / poundsPerAcre;
    QTest::newRow("nothing put out here") << Rates{0.0F, 24.0F} << Areas{3.0, 1.0} << 1.0 << 24.0;
    QTest::newRow("no rate here") << Rates{none, 24.0F} << Areas{3.0, 1.0} << 1.0 << 24.0;
    QTest::newRow("nothing put out") << Rates{0.0F, none} << Areas{3.0, 1.0} << 1.0 << 0.0;
    QTest::newRow("no ground") << Rates{24.0F} << Areas{0.0} << 1.0 << 0.0;
}

void TypicalRateTest::isTheMeanByArea()
{
    QFETCH(Rates, rates);
    QFETCH(Areas, areas);
    QFETCH(double, factor);
    QTEST(TypicalRate::of(rates, areas, factor), "typical");
}

RXMAP_TEST(TypicalRateTest, None)
#include "tst_typicalrate.moc"
