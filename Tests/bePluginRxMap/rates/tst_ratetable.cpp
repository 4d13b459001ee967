#include "ratetable.h"
#include "testbase.h"

#include <cmath>

class RateTableTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void givesTheRatesRecordByRecord();
    void takesRatesThatAreTooLargeToBePublishedForNone();
};

void RateTableTest::givesTheRatesRecordByRecord()
{
    RawPrescription map;
    map.records = 3;
    map.columns.resize(2);
    map.columns[0].values = {1.0, 2.0, std::nan("")};
    map.columns[1].values = {4.0, std::nan(""), std::nan("")};
    const RateTable table(map, {{0, 1}, {1, 0}, {2, 1}});
    QCOMPARE(table.mappings(), size_t(3));
    QCOMPARE(std::vector<float>(table.values().begin(), table.values().begin() + 3), std::vector<float>({4, 1, 4}));
    QCOMPARE(table.at(1, 1), 2.0F);
    QVERIFY(std::isnan(table.at(1, 0)));
    QVERIFY(!table.hasNone(1));
    QVERIFY(table.hasNone(2));
}

void RateTableTest::takesRatesThatAreTooLargeToBePublishedForNone()
{
    RawPrescription map;
    map.records = 2;
    map.columns.resize(1);
    map.columns[0].values = {3.4e38, 1e39};
    const RateTable table(map, {{0, 0}});
    QCOMPARE(table.at(0, 0), 3.4e38F);
    QVERIFY(std::isnan(table.at(1, 0)));
}

RXMAP_TEST(RateTableTest, Core)
#include "tst_ratetable.moc"
