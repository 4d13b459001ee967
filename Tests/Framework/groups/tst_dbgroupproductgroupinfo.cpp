#include "testbase.h"

#include "Framework/databroker.h"
#include "Framework/dbgroupproductgroupinfo.h"
#include "Framework/dbgroupqmlunitsconverter.h"

class TestDbGroupProductGroupInfo : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void aNewGroupIsOfUnknownKind();
    void theFactorIsThatOfTheRateKind_data();
    void theFactorIsThatOfTheRateKind();
    void withoutGroupTheRateIsUnconverted();
    void withoutBrokerTheRateIsUnconverted();
    void withoutUnitsConverterTheRateIsUnconverted();
    void aGroupOfAnotherClassIsNoUnitsConverter();
    void theFactorFollowsTheOperatorsUnits();
};

namespace {

DbGroupProductGroupInfo *publishInfo(DataBroker &broker, int kind)
{
    auto *const info = new DbGroupProductGroupInfo(QStringLiteral("Product 1"));
    broker.publishGroup(info);
    info->setRateKind(kind);
    return info;
}

/// Six different factors that occur in no unit system.
void publishUnits(DataBroker &broker)
{
    auto *const units = new DbGroupQmlUnitsConverter(QStringLiteral("QmlUnitsConverter"));
    broker.publishGroup(units);
    units->setCountRateToDisplay(2.0);
    units->setRatioRateToDisplay(3.0);
    units->setInjectionRateToDisplay(4.0);
    units->setVolumeRateToDisplay(5.0);
    units->setWeightRateToDisplay(6.0);
    units->setPressureToDisplay(7.0);
}

} // namespace

void TestDbGroupProductGroupInfo::aNewGroupIsOfUnknownKind()
{
    const DbGroupProductGroupInfo info(QStringLiteral("Product 1"));
    QCOMPARE(info.getRateKind(), int(DbGroupProductGroupInfo::UnknownRate));
    QCOMPARE(info.getProductNumber(), 0);
}

void TestDbGroupProductGroupInfo::theFactorIsThatOfTheRateKind_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<double>("factor");
    QTest::newRow("count") << int(DbGroupProductGroupInfo::CountRate) << 2.0;
    QTest::newRow("ratio") << int(DbGroupProductGroupInfo::RatioRate) << 3.0;
    QTest::newRow("injection") << int(DbGroupProductGroupInfo::InjectionRate) << 4.0;
    QTest::newRow("volume") << int(DbGroupProductGroupInfo::VolumeRate) << 5.0;
    QTest::newRow("weight") << int(DbGroupProductGroupInfo::WeightRate) << 6.0;
    QTest::newRow("pressure") << int(DbGroupProductGroupInfo::PressureRate) << 7.0;
    QTest::newRow("unknown") << int(DbGroupProductGroupInfo::UnknownRate) << 1.0;
    QTest::newRow("beyond the kinds") << 99 << 1.0;
    QTest::newRow("below the kinds") << -1 << 1.0;
}

void TestDbGroupProductGroupInfo::theFactorIsThatOfTheRateKind()
{
    QFETCH(int, kind);
    QFETCH(double, factor);
    DataBroker broker;
    publishUnits(broker);
    QCOMPARE(getRateConversion(publishInfo(broker, kind)), factor);
}

void TestDbGroupProductGroupInfo::withoutGroupTheRateIsUnconverted()
{
    QCOMPARE(getRateConversion(nullptr), 1.0);
}

void TestDbGroupProductGroupInfo::withoutBrokerTheRateIsUnconverted()
{
    DbGroupProductGroupInfo info(QStringLiteral("Product 1"));
    info.setRateKind(DbGroupProductGroupInfo::WeightRate);
    QCOMPARE(getRateConversion(&info), 1.0);
}

void TestDbGroupProductGroupInfo::withoutUnitsConverterTheRateIsUnconverted()
{
    DataBroker broker;
    DbGroupProductGroupInfo *const info = publishInfo(broker, DbGroupProductGroupInfo::WeightRate);
    QCOMPARE(getRateConversion(info), 1.0);
    publishUnits(broker);
    QCOMPARE(getRateConversion(info), 6.0);
    broker.removeGroup(QStringLiteral("QmlUnitsConverter"));
    QCOMPARE(getRateConversion(info), 1.0);
}

void TestDbGroupProductGroupInfo::aGroupOfAnotherClassIsNoUnitsConverter()
{
    DataBroker broker;
    broker.publishGroup(new DbGroupProductGroupInfo(QStringLiteral("QmlUnitsConverter")));
    QCOMPARE(getRateConversion(publishInfo(broker, DbGroupProductGroupInfo::WeightRate)), 1.0);
}

void TestDbGroupProductGroupInfo::theFactorFollowsTheOperatorsUnits()
{
    DataBroker broker;
    auto *const units = new DbGroupQmlUnitsConverter(QStringLiteral("QmlUnitsConverter"));
    broker.publishGroup(units);
    DbGroupProductGroupInfo *const info = publishInfo(broker, DbGroupProductGroupInfo::RatioRate);
    QCOMPARE(getRateConversion(info), 128.0);
    units->setAreaUnitSystem(1);
    QCOMPARE(getRateConversion(info), 1.0);
}

RXMAP_TEST(TestDbGroupProductGroupInfo, Core)
#include "tst_dbgroupproductgroupinfo.moc"
