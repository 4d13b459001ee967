#include "testbase.h"

#include "Framework/databroker.h"
#include "Framework/dbgroupsingleproductnode.h"
#include "Framework/productlineitem.h"

class TestProductLineItem : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void aProductIsOfItsOwnKindOnly_data();
    void aProductIsOfItsOwnKindOnly();
    void aNewProductHasNeitherNodeNorLoader();
    void aNodeThatIsGoneIsNotHandedOut();
    void theLoaderIsHandedOut();
};

void TestProductLineItem::aProductIsOfItsOwnKindOnly_data()
{
    QTest::addColumn<int>("basis");
    QTest::addColumn<QList<bool>>("is");
    QTest::newRow("none") << int(ProductLineItem::None) << QList<bool>{false, false, false, false};
    QTest::newRow("count") << int(ProductLineItem::Count) << QList<bool>{true, false, false, false};
    QTest::newRow("volume") << int(ProductLineItem::Volume) << QList<bool>{false, true, false, false};
    QTest::newRow("weight") << int(ProductLineItem::Weight) << QList<bool>{false, false, true, false};
    QTest::newRow("pressure") << int(ProductLineItem::Pressure) << QList<bool>{false, false, false, true};
}

void TestProductLineItem::aProductIsOfItsOwnKindOnly()
{
    QFETCH(int, basis);
    QFETCH(QList<bool>, is);
    const ProductLineItem item{ProductLineItem::Basis(basis)};
    QCOMPARE((QList<bool>{item.isCountBasedProduct(), item.isVolumeBasedProduct(), item.isWeightBasedProduct(),
                          item.isPressureBasedProduct()}),
             is);
}

void TestProductLineItem::aNewProductHasNeitherNodeNorLoader()
{
    const ProductLineItem item(ProductLineItem::Weight);
    QCOMPARE(item.primaryProductNodeGroup(), nullptr);
    QVERIFY(item.rxMapLoader() == nullptr);
}

void TestProductLineItem::aNodeThatIsGoneIsNotHandedOut()
{
    ProductLineItem item(ProductLineItem::Weight);
    {
        DataBroker broker;
        auto *const node = new DbGroupSingleProductNode(QStringLiteral("node.1"));
        broker.publishGroup(node);
        item.setPrimaryProductNodeGroup(node);
        QCOMPARE(item.primaryProductNodeGroup(), node);
    }
    QCOMPARE(item.primaryProductNodeGroup(), nullptr);
}

void TestProductLineItem::theLoaderIsHandedOut()
{
    ProductLineItem item(ProductLineItem::Weight);
    // The product only carries the pointer: the loader's class belongs to another library.
    int place = 0;
    auto *const loader = reinterpret_cast<RxMapLoader *>(&place);
    item.setRxMapLoader(loader);
    QVERIFY(item.rxMapLoader() == loader);
    item.setRxMapLoader(nullptr);
    QVERIFY(item.rxMapLoader() == nullptr);
}

RXMAP_TEST(TestProductLineItem, Core)
#include "tst_productlineitem.moc"
