#include "maphost.h"
#include "ratemapping.h"
#include "testbase.h"

#include <limits>

class TestRateMapping : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void theFirstEqualChannelIsFound();
    void channelsAreComparedExactly_data();
    void channelsAreComparedExactly();
    void aProductsMappingIsTheFirstThatContainsItsNumber_data();
    void aProductsMappingIsTheFirstThatContainsItsNumber();
};

using Mappings = QList<OrvikTypes::RX_DBFCOLUMN_TO_RATECAL_MAPPING>;

static Mappings mappingsFor(const QStringList &names)
{
    Mappings mappings;
    for (const QString &name : names)
        mappings.append(mappingFor(name));
    return mappings;
}

void TestRateMapping::theFirstEqualChannelIsFound()
{
    QCOMPARE(findMapping(mappingsFor({"b", "a", "a"}), QStringLiteral("a")), 1);
}

void TestRateMapping::channelsAreComparedExactly_data()
{
    QTest::addColumn<QString>("channel");
    QTest::newRow("letter case") << "Product.1";
    QTest::newRow("longer") << "product.10";
    QTest::newRow("shorter") << "product";
    QTest::newRow("blank") << "product.1 ";
}

void TestRateMapping::channelsAreComparedExactly()
{
    QFETCH(QString, channel);
    QCOMPARE(findMapping(mappingsFor({channel}), QStringLiteral("product.1")), -1);
}

void TestRateMapping::aProductsMappingIsTheFirstThatContainsItsNumber_data()
{
    QTest::addColumn<QStringList>("channels");
    QTest::addColumn<int>("product");
    QTest::addColumn<int>("expected");
    QTest::newRow("number alone") << QStringList{"1", "2"} << 1 << 1;
    QTest::newRow("number in a path") << QStringList{"group.1", "group.2"} << 0 << 0;
    QTest::newRow("11 comes before 1") << QStringList{"11", "1"} << 0 << 0;
    QTest::newRow("10 comes before 1") << QStringList{"10", "1"} << 0 << 0;
    QTest::newRow("number in the middle") << QStringList{"rate 1 north"} << 0 << 0;
    QTest::newRow("number of two digits") << QStringList{"1", "10"} << 9 << 1;
    QTest::newRow("none") << QStringList{"1", "2"} << 2 << -1;
    QTest::newRow("before the first") << QStringList{"0", "10"} << -1 << -1;
    QTest::newRow("as far back as it goes") << QStringList{"-2147483647"} << std::numeric_limits<int>::min() << -1;
    QTest::newRow("beyond the last") << QStringList{"-2147483648"} << std::numeric_limits<int>::max() << -1;
    QTest::newRow("no mappings") << QStringList{} << 0 << -1;
}

void TestRateMapping::aProductsMappingIsTheFirstThatContainsItsNumber()
{
    QFETCH(QStringList, channels);
    QFETCH(int, product);
    QTEST(findProductMapping(mappingsFor(channels), product), "expected");
}

RXMAP_TEST(TestRateMapping, None)
#include "tst_ratemapping.moc"
