#include "columnplan.h"
#include "testbase.h"

/// Columns named for several files at once.
class TestColumnPlan : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void theFirstFileThatHasAColumnFeedsItsProduct();
    void anEmptyNameLeavesItsProductOut();
    void aFileThatFeedsNoneGetsNoColumns();
    void aColumnThatNoFileHasIsNamed();

private:
    const QList<ColumnPlan::File> files{{QStringLiteral("a.shp"), {QStringLiteral("SEED"), QStringLiteral("BOTH")}},
                                        {QStringLiteral("b.shp"), {QStringLiteral("BOTH"), QStringLiteral("FERT")}}};
};

void TestColumnPlan::theFirstFileThatHasAColumnFeedsItsProduct()
{
    const auto plan = ColumnPlan::distribute(files, {"FERT", "SEED", "BOTH"});
    QVERIFY(plan.isOk());
    const QList<QStringList> expected{{QString(), "SEED", "BOTH"}, {"FERT"}};
    QCOMPARE(plan.value, expected);
}

void TestColumnPlan::anEmptyNameLeavesItsProductOut()
{
    const auto plan = ColumnPlan::distribute(files, {QString(), "SEED", QString()});
    QVERIFY(plan.isOk());
    const QStringList expected{QString(), "SEED"};
    QCOMPARE(plan.value.first(), expected);
}

void TestColumnPlan::aFileThatFeedsNoneGetsNoColumns()
{
    const auto plan = ColumnPlan::distribute(files, {"SEED"});
    QVERIFY(plan.isOk());
    QCOMPARE(plan.value.at(1), QStringList());
}

void TestColumnPlan::aColumnThatNoFileHasIsNamed()
{
    const auto plan = ColumnPlan::distribute(files, {"SEED", "NOPE"});
    QCOMPARE(plan.error, QStringLiteral("--columns: no column \"NOPE\" in a.shp, b.shp"));
}

RXMAP_TEST(TestColumnPlan, None)
#include "tst_columnplan.moc"
