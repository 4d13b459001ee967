#include "testbase.h"

#include "Framework/dbgroupaam.h"

class TestDbGroupAAM : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void theProductGroupNameIsReadBothWays();
};

void TestDbGroupAAM::theProductGroupNameIsReadBothWays()
{
    DbGroupAAM group(QStringLiteral("aam.1"));
    QCOMPARE(group.productGroupName(), QString());
    QCOMPARE(group.setProperty("productGroupName", QStringLiteral("Product 1")), 0);
    QCOMPARE(group.productGroupName(), QStringLiteral("Product 1"));
    QCOMPARE(group.getProductGroupName(), QStringLiteral("Product 1"));
}

RXMAP_TEST(TestDbGroupAAM, Core)
#include "tst_dbgroupaam.moc"
