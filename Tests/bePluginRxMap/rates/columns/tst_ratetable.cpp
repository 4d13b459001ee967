#include "ratetable.h"
#include "testbase.h"

#include <cmath>

class RateTableTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void givesTheRatesRecordByRecord();
    void convertsRatesBeforeItNarrowsThem();
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

void RateTableTest::convertsRatesBeforeItNarrowsThem()
{
    const double factor = 0.45359237 / 0.40468564224;
    RawPrescription map;
    map.records = 1000;
    map.columns.resize(1);
    for (int record = 0; record < map.records; ++record)
        map.columns[0].values.push_back(0.1 * record);
    const RateTable table(map, {{0, 0, factor}});
    bool isAnyOther = false;
    for (int record = 0; record < map.records; ++record) {
        const double rate = map.columns[0].values[static_cast<size_t>(record)];
        QVERIFY(table.at(record, 0) == static_cast<float>(rate * factor));
        isAnyOther = isAnyOther || table.at(record, 0) != static_cast<float>(rate) * static_cast<float>(factor);
    }
    QVERIFY(isAnyOther);
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
