#include "testbase.h"
#include "unittable.h"

#include <QSet>

#include <cmath>

/// The table, compared with the units' definitions, worked out here from other definitions than the table's own.
class UnitTableTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void amountsHaveTheirDefinedFactors_data();
    void amountsHaveTheirDefinedFactors();
    void areasHaveTheirDefinedSizes_data();
    void areasHaveTheirDefinedSizes();
    void aSpellingStandsForOneUnit();
    void everyUnitSaysWhereItsFactorIsFrom();
};

void UnitTableTest::amountsHaveTheirDefinedFactors_data()
{
    QTest::addColumn<double>("factor");
    const auto row = [](const char *symbol, double factor) { QTest::newRow(symbol) << factor; };
    row("k", 1.0);
    row("seeds", 0.001);
    row("million", 1000.0);
    row("kg", 1.0);
    row("g", 0.001);
    row("mg", 0.000001);
    row("dt", 100.0);
    row("t", 1000.0);
    row("lb", 7000.0 * 64.79891e-6); // Grains of 64.79891 mg.
    row("oz", 437.5 * 64.79891e-6);
    row("cwt", 45.359237);
    row("ton", 907.18474);
    row("L", 1.0);
    row("mL", 0.001);
    row("mm3", 0.000001);
    row("cL", 0.01);
    row("dL", 0.1);
    row("hL", 100.0);
    row("m3", 1000.0);
    row("gal", 231.0 * 0.016387064); // Cubic inches.
    row("qt", 57.75 * 0.016387064);
    row("pt", 28.875 * 0.016387064);
    row("fl oz", 0.0295735295625);
    row("imp gal", 4.54609);
}

void UnitTableTest::amountsHaveTheirDefinedFactors()
{
    QFETCH(double, factor);
    const AmountUnit *unit = UnitTable::amount(QTest::currentDataTag());
    QVERIFY(unit != nullptr);
    QVERIFY2(std::fabs(unit->factor / factor - 1.0) < 1e-14, qPrintable(QString::number(unit->factor, 'g', 17)));
}

void UnitTableTest::areasHaveTheirDefinedSizes_data()
{
    QTest::addColumn<double>("squareMetres");
    QTest::newRow("ha") << 10000.0;
    QTest::newRow("ac") << 4840.0 * 0.9144 * 0.9144; // Square yards.
    QTest::newRow("m2") << 1.0;
    QTest::newRow("a") << 100.0;
    QTest::newRow("daa") << 1000.0;
    QTest::newRow("ft2") << 0.09290304;
    QTest::newRow("1000 ft2") << 92.90304;
}

void UnitTableTest::areasHaveTheirDefinedSizes()
{
    QFETCH(double, squareMetres);
    const AreaUnit *unit = UnitTable::area(QTest::currentDataTag());
    QVERIFY(unit != nullptr);
    QVERIFY(std::fabs(unit->hectares * 10000.0 / squareMetres - 1.0) < 1e-14);
}

void UnitTableTest::aSpellingStandsForOneUnit()
{
    QSet<QString> seen;
    const auto check = [&seen](const char *spellings) {
        for (const QString &spelling : QString::fromLatin1(spellings).split(QLatin1Char(' '))) {
            QVERIFY2(!seen.contains(spelling), qPrintable(spelling));
            seen.insert(spelling);
        }
    };
    for (const AmountUnit &unit : UnitTable::amounts())
        check(unit.spellings);
    for (const AreaUnit &unit : UnitTable::areas())
        check(unit.spellings);
}

void UnitTableTest::everyUnitSaysWhereItsFactorIsFrom()
{
    for (const AmountUnit &unit : UnitTable::amounts())
        QVERIFY2(qstrlen(unit.source) > 0, unit.symbol);
    for (const AreaUnit &unit : UnitTable::areas())
        QVERIFY2(qstrlen(unit.source) > 0, unit.symbol);
}

RXMAP_TEST(UnitTableTest, None)
#include "tst_unittable.moc"
