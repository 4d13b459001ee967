#include "testbase.h"

#include "Framework/dbgroupsingleproductnode.h"

class TestDbGroupSingleProductNode : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void aNewNodeMetersPlainVolume();
    void itsRecordsTravelByName();
};

void TestDbGroupSingleProductNode::aNewNodeMetersPlainVolume()
{
    const DbGroupSingleProductNode node(QStringLiteral("node.1"));
    QVERIFY(!node.getOperationalSettings().isRatioRate());
    QVERIFY(!node.getSwitchByteCalSettings().isInjection());
    QVERIFY(!node.getIsCarrier());
}

void TestDbGroupSingleProductNode::itsRecordsTravelByName()
{
    DbGroupSingleProductNode node(QStringLiteral("node.1"));
    const OrvikTypes::SPN_OperationalSetStruct ratio(true);
    const OrvikTypes::SPN_SwitchByteCalSettingsStruct injection(true);
    QCOMPARE(node.setProperty("operationalSettings", QVariant::fromValue(ratio)), 0);
    QCOMPARE(node.setProperty("switchByteCalSettings", QVariant::fromValue(injection)), 0);
    QCOMPARE(node.setProperty("operationalSettings", QVariant::fromValue(injection)),
             int(DataBrokerGroup::ErrWrongType));
    QVERIFY(node.getOperationalSettings().isRatioRate());
    QVERIFY(node.getSwitchByteCalSettings().isInjection());

    QVariant value;
    QCOMPARE(node.getProperty("operationalSettings", value), 0);
    QVERIFY(value.value<OrvikTypes::SPN_OperationalSetStruct>().isRatioRate());
}

RXMAP_TEST(TestDbGroupSingleProductNode, Core)
#include "tst_dbgroupsingleproductnode.moc"
