#include "dbgroupbin.h"
#include "propertycheck.h"
#include "testbase.h"

/// A bin, as the broker shows it.
class TestDbGroupBin : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void anEmptyBinIsFedByNoPrescription();
    void everyPropertyIsWrittenReadAndNotifiedOnItsOwn_data();
    void everyPropertyIsWrittenReadAndNotifiedOnItsOwn();
};

void TestDbGroupBin::anEmptyBinIsFedByNoPrescription()
{
    const DbGroupBin group(QStringLiteral("system.binGroup.1"));
    QCOMPARE(group.getCompositionShortName(), QString());
    QCOMPARE(group.getRxMapGroupName(), QString());
    QCOMPARE(group.getBinNumber(), 0);
}

void TestDbGroupBin::everyPropertyIsWrittenReadAndNotifiedOnItsOwn_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("compositionShortName") << QVariant(QStringLiteral("Urea"));
    QTest::newRow("rxMapGroupName") << QVariant(QStringLiteral("rxMap.field.shp"));
    QTest::newRow("binNumber") << QVariant(3);
}

void TestDbGroupBin::everyPropertyIsWrittenReadAndNotifiedOnItsOwn()
{
    QFETCH(QVariant, value);
    QCOMPARE(problemOfProperty(new DbGroupBin(QStringLiteral("system.binGroup.1")),
                               QString::fromLatin1(QTest::currentDataTag()), value),
             QString());
}

RXMAP_TEST(TestDbGroupBin, Core)
#include "tst_dbgroupbin.moc"
