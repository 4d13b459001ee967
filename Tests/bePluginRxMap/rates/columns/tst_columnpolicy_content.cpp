#include "columnsketch.h"
#include "testbase.h"

using namespace ColumnSketch;

namespace {

QStringList likely(std::vector<SourceColumn> columns)
{
    return feeds(ColumnPolicy(machine(), {}), mapOf(std::move(columns)));
}

} // namespace

/// Which columns are taken for rates because of what they hold.
class ColumnPolicyContentTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void prefersColumnsNamedAsRates();
    void passesOverWhatIsNoRateByItsContent_data();
    void passesOverWhatIsNoRateByItsContent();
    void knowsAColumnOfAreasByThePolygonsLessTheirHoles();
    void takesEqualColumnsForOne();
    void takesWholeNumbersAsALastResort_data();
    void takesWholeNumbersAsALastResort();
};

void ColumnPolicyContentTest::prefersColumnsNamedAsRates()
{
    QCOMPARE(likely({column("Urea", {1, 2, 3, 1}), column("RATE_kg_", {230, 127, 23, 23}),
                     column("QT_kg", {2090, 1154, 209, 100})}),
             QStringList("2:RATE_kg_"));
    QCOMPARE(likely({column("rate_old", {none, none, none, none}), column("rate", {none, 5, none, none})}),
             QStringList("1:rate"));
}

void ColumnPolicyContentTest::passesOverWhatIsNoRateByItsContent_data()
{
    QTest::addColumn<QVector<double>>("values");
    QTest::addColumn<bool>("isRate");
    QTest::newRow("rates") << QVector<double>{120, 80, 120, 60} << true;
    QTest::newRow("numbers of the records") << QVector<double>{1, 2, 3, 4} << false;
    QTest::newRow("numbers from zero") << QVector<double>{0, 1, 2, 3} << false;
    QTest::newRow("nothing but zero") << QVector<double>{0, 0, 0, 0} << false;
    QTest::newRow("the area in hectares") << QVector<double>{0.0200, 0.0400, 0.0800, 0.0101} << false;
    QTest::newRow("a total at one rate") << QVector<double>{4.0, 8.0, 16.0, 2.0} << false;
    QTest::newRow("places from west to east") << QVector<double>{11.1, 11.9, 11.5, 11.2} << false;
    QTest::newRow("places from south to north") << QVector<double>{48.1, 48.9, 48.5, 48.2} << false;
}

void ColumnPolicyContentTest::passesOverWhatIsNoRateByItsContent()
{
    QFETCH(QVector<double>, values);
    QFETCH(bool, isRate);
    QCOMPARE(likely({column("thing", std::vector<double>(values.begin(), values.end()))}).size(), isRate ? 1 : 0);
}

void ColumnPolicyContentTest::knowsAColumnOfAreasByThePolygonsLessTheirHoles()
{
    const ColumnPolicy policy(machine(), {});
    const RawPrescription areas = mapOf({column("thing", {0.02, 0.04, 0.08, 0.01})});
    QCOMPARE(policy.decide(areas, polygons()).error,
             QStringLiteral("has no column that looks like a rate; name one (its columns: thing)"));
    const RawPrescription amounts = mapOf({column("thing", {0.02, 0.04, 0.09, 0.01})});
    QCOMPARE(feeds(policy, amounts), QStringList("1:thing"));
}

void ColumnPolicyContentTest::takesEqualColumnsForOne()
{
    QCOMPARE(
        likely({column("Rate1", {1, 2, 2, none}), column("Rate2", {1, 2, 2, none}), column("Rate3", {1, 2, 3, 4})}),
        QStringList({"1:Rate1", "2:Rate3"}));
    QCOMPARE(likely({column("rate_l_ha"), column("rate_kg_ha")}), QStringList({"2:rate_kg_ha", "3:rate_l_ha"}));
}

void ColumnPolicyContentTest::takesWholeNumbersAsALastResort_data()
{
    QTest::addColumn<QVector<double>>("values");
    QTest::addColumn<bool>("isRate");
    QTest::newRow("rates") << QVector<double>{100, 150, 150, 200} << true;
    QTest::newRow("a rate for each record") << QVector<double>{100, 150, 120, 200} << true;
    QTest::newRow("years") << QVector<double>{2019, 2020, 2020, 2019} << false;
    QTest::newRow("numbers of the records in any order") << QVector<double>{2, 4, 1, 3} << false;
}

void ColumnPolicyContentTest::takesWholeNumbersAsALastResort()
{
    QFETCH(QVector<double>, values);
    QFETCH(bool, isRate);
    const auto whole = [&values] {
        SourceColumn result = column("Urea", std::vector<double>(values.begin(), values.end()));
        result.isInteger = true;
        return result;
    };
    QCOMPARE(likely({whole()}), isRate ? QStringList("2:Urea") : QStringList());
    QCOMPARE(likely({whole(), column("thing")}), QStringList("1:thing"));
}

RXMAP_TEST(ColumnPolicyContentTest, Core)
#include "tst_columnpolicy_content.moc"
