#include "tablecolumns.h"
#include "testbase.h"

class TableColumnsTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void findsANameByItsCaseFirst();
    void findsAColumnByItsNumber();
};

void TableColumnsTest::findsANameByItsCaseFirst()
{
    const QStringList names = {QStringLiteral("RATE"), QStringLiteral("rate"), QStringLiteral("Dose")};
    QCOMPARE(TableColumns::find(names, QStringLiteral("rate")), 1);
    QCOMPARE(TableColumns::find(names, QStringLiteral("Rate")), 0);
    QCOMPARE(TableColumns::find(names, QStringLiteral("DOSE")), 2);
    QCOMPARE(TableColumns::find(names, QStringLiteral("lime")), -1);
}

void TableColumnsTest::findsAColumnByItsNumber()
{
    const QStringList names = {QStringLiteral("D\u00fcngung"), QStringLiteral("#1"), QStringLiteral("Dose")};
    QCOMPARE(TableColumns::find(names, QStringLiteral("#3")), 2);
    QCOMPARE(TableColumns::find(names, QStringLiteral("#1")), 1);
    QCOMPARE(TableColumns::find(names, QStringLiteral("#0")), -1);
    QCOMPARE(TableColumns::find(names, QStringLiteral("#4")), -1);
    QCOMPARE(TableColumns::find(names, QStringLiteral("#x")), -1);
}

RXMAP_TEST(TableColumnsTest, Core)
#include "tst_tablecolumns.moc"
