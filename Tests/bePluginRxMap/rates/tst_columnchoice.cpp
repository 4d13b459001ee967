#include "columnchoice.h"
#include "testbase.h"

#include <cmath>

namespace {

const double none = std::nan("");

SourceColumn column(const char *name, std::vector<double> values, int unreadable = 0)
{
    SourceColumn result;
    result.name = QString::fromLatin1(name);
    result.values = std::move(values);
    result.unreadable = unreadable;
    return result;
}

/// A file of three records.
RawPrescription mapOf(std::vector<SourceColumn> columns)
{
    RawPrescription map;
    map.records = 3;
    map.columns = std::move(columns);
    for (const SourceColumn &entry : map.columns)
        map.columnNames.append(entry.name);
    return map;
}

LoadRequest requestOf(const QStringList &columns)
{
    LoadRequest request;
    request.columns = columns;
    request.rateCalNames = QStringList{QStringLiteral("first"), QStringLiteral("second"), QStringLiteral("third")};
    request.amounts = {Amount::Count, Amount::Weight, Amount::Volume};
    request.defaultRates = {1.0, 2.0, 3.0};
    return request;
}

PlaneRing square(double side)
{
    return {{0.0, 0.0}, {side, 0.0}, {side, side}, {0.0, side}};
}

} // namespace

/// Which columns feed which products. The products count, weigh and measure by volume, in this order.
class ColumnChoiceTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void takesNamedColumnsForTheirProducts();
    void mayTakeOneColumnForTwoProducts();
    void takesLikelyColumnsForTheProductsThatTheySuit();
    void startsAProductWithoutADefaultRateAtZero();
    void givesTheRatesRecordByRecord();
    void knowsAColumnOfAreasByThePolygonsLessTheirHoles();
    void refusesColumnsWithoutRates_data();
    void refusesColumnsWithoutRates();
    void tellsOfEntriesThatAreNoRates_data();
    void tellsOfEntriesThatAreNoRates();
};

void ColumnChoiceTest::takesNamedColumnsForTheirProducts()
{
    const RawPrescription map =
        mapOf({column("HERB_L_HA", {1, 1, 2}), column("zone", {3, 3, 4}), column("A", {5, 5, 6})});
    const ColumnChoice choice(requestOf({"zone", "", "herb_l_ha"}), map, {});
    QVERIFY2(choice.isOk(), qPrintable(choice.error()));
    QCOMPARE(choice.columns(), QStringList({"zone", "HERB_L_HA"}));
    QCOMPARE(choice.rateCalNames(), QStringList({"first", "third"}));
    QCOMPARE(choice.defaultRates(), QList<double>({1.0, 3.0}));
}

void ColumnChoiceTest::mayTakeOneColumnForTwoProducts()
{
    const RawPrescription map = mapOf({column("rate", {1, 1, 2})});
    const ColumnChoice choice(requestOf({"rate", "rate"}), map, {});
    QCOMPARE(choice.columns(), QStringList({"rate", "rate"}));
    QCOMPARE(choice.rates(), std::vector<float>({1, 1, 1, 1, 2, 2}));
}

void ColumnChoiceTest::takesLikelyColumnsForTheProductsThatTheySuit()
{
    const RawPrescription map = mapOf({column("HERB_L_HA", {1, 1, 2}), column("SEED_KS_HA", {3, 3, 4})});
    const ColumnChoice choice(requestOf({}), map, {});
    QVERIFY2(choice.isOk(), qPrintable(choice.error()));
    QCOMPARE(choice.columns(), QStringList({"SEED_KS_HA", "HERB_L_HA"}));
    QCOMPARE(choice.rateCalNames(), QStringList({"first", "third"}));
    QCOMPARE(choice.defaultRates(), QList<double>({1.0, 3.0}));
}

void ColumnChoiceTest::startsAProductWithoutADefaultRateAtZero()
{
    const RawPrescription map = mapOf({column("rate_a", {1, 1, 2}), column("rate_b", {1, 1, 2})});
    LoadRequest request = requestOf({"rate_a", "rate_b"});
    request.defaultRates = {7.5};
    QCOMPARE(ColumnChoice(request, map, {}).defaultRates(), QList<double>({7.5, 0.0}));
}

void ColumnChoiceTest::givesTheRatesRecordByRecord()
{
    const RawPrescription map = mapOf({column("rate_a", {1, 3.4e38, -0.0}), column("rate_b", {4, 1e39, none})});
    const std::vector<float> rates = ColumnChoice(requestOf({"rate_a", "rate_b"}), map, {}).rates();
    QCOMPARE(rates.size(), size_t(6));
    QCOMPARE(rates[0], 1.0F);
    QCOMPARE(rates[1], 4.0F);
    QCOMPARE(rates[2], 3.4e38F);
    QVERIFY(std::isnan(rates[3]));
    QCOMPARE(rates[4], 0.0F);
    QVERIFY(std::isnan(rates[5]));
}

void ColumnChoiceTest::knowsAColumnOfAreasByThePolygonsLessTheirHoles()
{
    // Record 0 has two parts, record 2 a hole: 200, 400 and 800 square metres.
    const std::vector<PlanePolygon> polygons = {
        {square(10.0), {}, 0}, {square(10.0), {}, 0}, {square(20.0), {}, 1}, {square(30.0), {square(10.0)}, 2}};
    const RawPrescription areas = mapOf({column("thing", {0.02, 0.04, 0.08})});
    const ColumnChoice none(requestOf({}), areas, polygons);
    QCOMPARE(none.error(), QStringLiteral("has no column that looks like a rate; name one (its columns: thing)"));
    const RawPrescription amounts = mapOf({column("thing", {0.02, 0.04, 0.09})});
    const ColumnChoice some(requestOf({}), amounts, polygons);
    QCOMPARE(some.columns(), QStringList("thing"));
}

void ColumnChoiceTest::refusesColumnsWithoutRates_data()
{
    QTest::addColumn<QStringList>("columns");
    QTest::addColumn<QString>("reason");
    QTest::newRow("likely") << QStringList() << "holds no rates: no record has one in RATE_A, RATE_B";
    QTest::newRow("named") << QStringList("RATE_B") << "column \"RATE_B\" holds no rates";
    QTest::newRow("one of those named") << QStringList({"zone", "RATE_A"}) << "column \"RATE_A\" holds no rates";
}

void ColumnChoiceTest::refusesColumnsWithoutRates()
{
    QFETCH(QStringList, columns);
    SourceColumn zone = column("zone", {1, 2, 2});
    zone.isInteger = true;
    const RawPrescription map =
        mapOf({column("RATE_A", {none, none, none}), column("RATE_B", {none, none, none}), std::move(zone)});
    const ColumnChoice choice(requestOf(columns), map, {});
    QVERIFY(!choice.isOk());
    QTEST(choice.error(), "reason");
}

void ColumnChoiceTest::tellsOfEntriesThatAreNoRates_data()
{
    QTest::addColumn<int>("unreadable");
    QTest::addColumn<QStringList>("warnings");
    QTest::newRow("none") << 0 << QStringList();
    QTest::newRow("one") << 1 << QStringList("1 entry of column \"rate\" is no rate and was left out");
    QTest::newRow("two") << 2 << QStringList("2 entries of column \"rate\" are no rates and were left out");
}

void ColumnChoiceTest::tellsOfEntriesThatAreNoRates()
{
    QFETCH(int, unreadable);
    const RawPrescription map = mapOf({column("rate", {1, none, none}, unreadable), column("other", {1, 2, 2}, 3)});
    QTEST(ColumnChoice(requestOf({"rate"}), map, {}).warnings(), "warnings");
}

RXMAP_TEST(ColumnChoiceTest, Core)
#include "tst_columnchoice.moc"
