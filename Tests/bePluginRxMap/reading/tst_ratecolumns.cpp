#include "ratecolumns.h"
#include "testbase.h"

#include <cmath>

Q_DECLARE_METATYPE(Amount)

namespace {

SourceColumn column(const char *name, std::vector<double> values)
{
    SourceColumn result;
    result.name = QString::fromLatin1(name);
    result.values = std::move(values);
    return result;
}

SourceColumn integerColumn(const char *name, std::vector<double> values)
{
    SourceColumn result = column(name, std::move(values));
    result.isInteger = true;
    return result;
}

const std::vector<double> areas = {100.0, 250.0, 80.0, 400.0};

QStringList likely(std::vector<SourceColumn> columns)
{
    RawPrescription map;
    map.xs = {11.0, 12.0};
    map.ys = {48.0, 49.0};
    map.columns = std::move(columns);
    QStringList names;
    for (const int place : RateColumns::mostLikely(map, areas))
        names.append(map.columns[static_cast<size_t>(place)].name);
    return names;
}

} // namespace

class RateColumnsTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void findsANameByItsCaseFirst();
    void readsTextOnlyWhereTheNameSaysRate();
    void prefersColumnsNamedAsRates();
    void keepsTheOrderOfTheTable();
    void handsColumnsOutByWhatTheyMeasure_data();
    void handsColumnsOutByWhatTheyMeasure();
    void takesAProductNameByItsContent();
    void passesOverWhatIsNoRate_data();
    void passesOverWhatIsNoRate();
    void passesOverAColumnWithoutAnyRate();
};

void RateColumnsTest::findsANameByItsCaseFirst()
{
    const QStringList names = {QStringLiteral("RATE"), QStringLiteral("rate"), QStringLiteral("Dose")};
    QCOMPARE(RateColumns::find(names, QStringLiteral("rate")), 1);
    QCOMPARE(RateColumns::find(names, QStringLiteral("Rate")), 0);
    QCOMPARE(RateColumns::find(names, QStringLiteral("DOSE")), 2);
    QCOMPARE(RateColumns::find(names, QStringLiteral("lime")), -1);
}

void RateColumnsTest::readsTextOnlyWhereTheNameSaysRate()
{
    SourceColumn text = column("Rate", {});
    text.isText = true;
    QVERIFY(RateColumns::isWorthReading(text));
    text.name = QStringLiteral("product");
    QVERIFY(!RateColumns::isWorthReading(text));
    QVERIFY(RateColumns::isWorthReading(integerColumn("dose", {})));
    QVERIFY(!RateColumns::isWorthReading(integerColumn("grade", {})));
    QVERIFY(!RateColumns::isWorthReading(column("AREA_HA", {})));
}

void RateColumnsTest::prefersColumnsNamedAsRates()
{
    QCOMPARE(likely({column("Urea", {1, 2, 3, 1}), column("RATE_kg_", {230, 127, 23, 23}),
                     column("QT_kg", {2090, 1154, 209, 100})}),
             QStringList(QStringLiteral("RATE_kg_")));
}

void RateColumnsTest::keepsTheOrderOfTheTable()
{
    QCOMPARE(likely({column("SEED_kg_ha", {1, 2, 3, 1}), column("HERB_l_ha", {3, 3, 1, 1}),
                     column("FERT_kg_ha", {0, 0, 5, 5})}),
             QStringList({QStringLiteral("SEED_kg_ha"), QStringLiteral("HERB_l_ha"), QStringLiteral("FERT_kg_ha")}));
}

void RateColumnsTest::handsColumnsOutByWhatTheyMeasure_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QList<Amount>>("amounts");
    QTest::addColumn<QList<int>>("assigned");
    const QList<Amount> machine = {Amount::Count, Amount::Weight, Amount::Volume};
    QTest::newRow("in the order of the products")
        << QStringList{"SEED_ks_ha", "FERT_kg_ha", "HERB_l_ha"} << machine << QList<int>{0, 1, 2};
    QTest::newRow("in another order") << QStringList{"SEED_kg_ha", "HERB_l_ha", "FERT_kg_ha"} << machine
                                      << QList<int>{0, 2, 1};
    QTest::newRow("unknown products") << QStringList{"HERB_l_ha", "FERT_kg_ha"}
                                      << QList<Amount>{Amount::Unknown, Amount::Unknown} << QList<int>{0, 1};
    QTest::newRow("unknown columns") << QStringList{"rate1", "rate2"} << machine << QList<int>{0, 1, -1};
    QTest::newRow("one of them known") << QStringList{"rate1", "rate_l_ha", "rate2"} << machine << QList<int>{0, 2, 1};
    QTest::newRow("two that suit") << QStringList{"a_l_ha", "b_l_ha"} << QList<Amount>{Amount::Volume, Amount::Volume}
                                   << QList<int>{0, 1};
    QTest::newRow("fewer products than columns")
        << QStringList{"SEED_ks_ha", "FERT_kg_ha"} << QList<Amount>{Amount::Weight} << QList<int>{1};
    QTest::newRow("no column") << QStringList{} << machine << QList<int>{-1, -1, -1};
}

void RateColumnsTest::handsColumnsOutByWhatTheyMeasure()
{
    QFETCH(QStringList, names);
    QFETCH(QList<Amount>, amounts);
    RawPrescription map;
    std::vector<int> columns;
    for (const QString &name : names) {
        columns.push_back(static_cast<int>(map.columns.size()));
        map.columns.push_back(column(qPrintable(name), {}));
    }
    const std::vector<int> assigned = RateColumns::assign(map, columns, amounts);
    QTEST(QList<int>(assigned.begin(), assigned.end()), "assigned");
}

void RateColumnsTest::takesAProductNameByItsContent()
{
    QCOMPARE(likely({column("Urea46", {120, 80, 120, 60})}), QStringList(QStringLiteral("Urea46")));
}

void RateColumnsTest::passesOverWhatIsNoRate_data()
{
    QTest::addColumn<QVector<double>>("values");
    QTest::newRow("numbers of the records") << QVector<double>{1, 2, 3, 4};
    QTest::newRow("numbers from zero") << QVector<double>{0, 1, 2, 3};
    QTest::newRow("nothing but zero") << QVector<double>{0, 0, 0, 0};
    QTest::newRow("the area in hectares") << QVector<double>{0.0100, 0.0250, 0.0080, 0.0401};
    QTest::newRow("a total at one rate") << QVector<double>{2.0, 5.0, 1.6, 8.0};
    QTest::newRow("places from west to east") << QVector<double>{11.1, 11.9, 11.5, 11.2};
    QTest::newRow("places from south to north") << QVector<double>{48.1, 48.9, 48.5, 48.2};
}

void RateColumnsTest::passesOverWhatIsNoRate()
{
    QFETCH(QVector<double>, values);
    QVERIFY(likely({column("thing", std::vector<double>(values.begin(), values.end()))}).isEmpty());
}

void RateColumnsTest::passesOverAColumnWithoutAnyRate()
{
    const double none = std::nan("");
    QCOMPARE(likely({column("rate_old", {none, none, none, none}), column("rate", {none, 5, none, none})}),
             QStringList(QStringLiteral("rate")));
}

RXMAP_TEST(RateColumnsTest, Core)
#include "tst_ratecolumns.moc"
