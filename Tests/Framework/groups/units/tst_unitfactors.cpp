#include "testbase.h"
#include "unitfactors.h"

#include <cmath>

namespace {

constexpr int acres = 0;
constexpr int hectares = 1;
constexpr int turf = 2;

bool isClose(double actual, double expected, double share = 1e-12)
{
    return std::fabs(actual - expected) <= share * std::fabs(expected);
}

/// Operator's units per kilopascal.
double pressureOf(int unit)
{
    return UnitFactors::of(hectares, unit).pressure;
}

} // namespace

/// How the factors of the units relate to each other. Their values are tested where the operator's units are published.
class TestUnitFactors : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void baseUnitsNeedNoFactor();
    void aGallonHoldsFluidOunces_data();
    void aGallonHoldsFluidOunces();
    void turfIsAFixedShareOfAnAcre();
    void pressureUnitsAgreeWithOneAnother();
    void neitherUnitTouchesTheOther();
};

void TestUnitFactors::baseUnitsNeedNoFactor()
{
    const UnitFactors factors = UnitFactors::of(hectares, 1);
    for (double factor : {factors.countRate, factors.ratioRate, factors.injectionRate, factors.volumeRate,
                          factors.weightRate, factors.pressure})
        QCOMPARE(factor, 1.0);
}

void TestUnitFactors::aGallonHoldsFluidOunces_data()
{
    QTest::addColumn<int>("areaUnitSystem");
    QTest::newRow("acres") << acres;
    QTest::newRow("turf") << turf;
}

void TestUnitFactors::aGallonHoldsFluidOunces()
{
    QFETCH(int, areaUnitSystem);
    const UnitFactors factors = UnitFactors::of(areaUnitSystem, 1);
    // The injection rate is given in millilitres and shown in fluid ounces; the volume rate, in litres and gallons.
    QVERIFY(isClose(1000.0 * factors.injectionRate, 128.0 * factors.volumeRate));
    QCOMPARE(factors.ratioRate, 128.0);
}

void TestUnitFactors::turfIsAFixedShareOfAnAcre()
{
    const UnitFactors perAcre = UnitFactors::of(acres, 1);
    const UnitFactors perTurf = UnitFactors::of(turf, 1);
    QVERIFY(isClose(perAcre.countRate / perTurf.countRate, 43.56));
    QVERIFY(isClose(perAcre.injectionRate / perTurf.injectionRate, 43.56));
    QVERIFY(isClose(perAcre.volumeRate / perTurf.volumeRate, 43.56));
    QVERIFY(isClose(perAcre.weightRate / perTurf.weightRate, 43.56));
}

void TestUnitFactors::pressureUnitsAgreeWithOneAnother()
{
    QVERIFY(isClose(pressureOf(4), 25.4 * pressureOf(3)));        // An inch of mercury is 25.4 mm of it.
    QVERIFY(isClose(pressureOf(6), 1000.0 * pressureOf(2)));      // A bar is 1000 hPa.
    QVERIFY(isClose(pressureOf(4), 760.0 * pressureOf(5), 1e-6)); // 760 mmHg fall short of an atmosphere by a little.
    QVERIFY(isClose(pressureOf(2), 1.01325 * pressureOf(5)));
}

void TestUnitFactors::neitherUnitTouchesTheOther()
{
    const UnitFactors bar = UnitFactors::of(acres, 2);
    const UnitFactors plain = UnitFactors::of(acres, 1);
    QCOMPARE(bar.countRate, plain.countRate);
    QCOMPARE(bar.ratioRate, plain.ratioRate);
    QCOMPARE(bar.injectionRate, plain.injectionRate);
    QCOMPARE(bar.volumeRate, plain.volumeRate);
    QCOMPARE(bar.weightRate, plain.weightRate);
    QCOMPARE(bar.pressure, pressureOf(2));
}

RXMAP_TEST(TestUnitFactors, None)
#include "tst_unitfactors.moc"
