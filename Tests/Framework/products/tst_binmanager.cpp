#include "testbase.h"

#include "Framework/binmanager.h"
#include "Framework/databroker.h"
#include "Framework/productlineitem.h"

#include <QPointer>

class TestBinManager : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void beforeTheFirstBrokerTheListIsEmpty();
    void theManagerIsFoundWithoutItsBroker();
    void theManagerGoesWithItsBroker();
    void productsComeInTheirOrder();
    void replacedProductsAreDeletedAndKeptOnesAreNot();
    void aProductDeletedElsewhereLeavesItsPlaceEmpty();
    void theEmptyManagerStaysEmpty();
};

void TestBinManager::beforeTheFirstBrokerTheListIsEmpty()
{
    QVERIFY(BinManager::instance(nullptr) != nullptr);
    QCOMPARE(BinManager::instance(nullptr)->loadedFilteredProducts(), QList<QObject *>());
}

void TestBinManager::theManagerIsFoundWithoutItsBroker()
{
    DataBroker broker;
    DataBroker other;
    BinManager *const manager = BinManager::instance(&broker);
    QCOMPARE(manager->parent(), &broker);
    QCOMPARE(BinManager::instance(nullptr), manager);
    QCOMPARE(BinManager::instance(&broker), manager);
    QCOMPARE(BinManager::instance(&other), manager);
}

void TestBinManager::theManagerGoesWithItsBroker()
{
    QPointer<QObject> product = new ProductLineItem(ProductLineItem::Weight);
    {
        DataBroker broker;
        BinManager::instance(&broker)->setLoadedProducts({product});
        QCOMPARE(BinManager::instance(nullptr)->loadedFilteredProducts().size(), 1);
    }
    QVERIFY(product.isNull());
    QCOMPARE(BinManager::instance(nullptr)->loadedFilteredProducts(), QList<QObject *>());
    DataBroker next;
    QCOMPARE(BinManager::instance(&next)->parent(), &next);
}

void TestBinManager::productsComeInTheirOrder()
{
    DataBroker broker;
    const QList<QObject *> products{new ProductLineItem(ProductLineItem::Weight), nullptr,
                                    new ProductLineItem(ProductLineItem::Count)};
    BinManager::instance(&broker)->setLoadedProducts(products);
    QCOMPARE(BinManager::instance(nullptr)->loadedFilteredProducts(), products);
}

void TestBinManager::replacedProductsAreDeletedAndKeptOnesAreNot()
{
    DataBroker broker;
    QPointer<QObject> replaced = new ProductLineItem(ProductLineItem::Weight);
    QPointer<QObject> kept = new ProductLineItem(ProductLineItem::Count);
    BinManager *const manager = BinManager::instance(&broker);
    manager->setLoadedProducts({replaced, kept});
    manager->setLoadedProducts({kept});
    QVERIFY(replaced.isNull());
    QVERIFY(!kept.isNull());
    QCOMPARE(manager->loadedFilteredProducts(), QList<QObject *>{kept});
}

void TestBinManager::aProductDeletedElsewhereLeavesItsPlaceEmpty()
{
    DataBroker broker;
    auto *const first = new ProductLineItem(ProductLineItem::Weight);
    auto *const second = new ProductLineItem(ProductLineItem::Count);
    BinManager::instance(&broker)->setLoadedProducts({first, second});
    delete first;
    QCOMPARE(BinManager::instance(&broker)->loadedFilteredProducts(), (QList<QObject *>{nullptr, second}));
}

void TestBinManager::theEmptyManagerStaysEmpty()
{
    QPointer<QObject> product = new ProductLineItem(ProductLineItem::Weight);
    BinManager::instance(nullptr)->setLoadedProducts({product, product});
    QVERIFY(product.isNull());
    QCOMPARE(BinManager::instance(nullptr)->loadedFilteredProducts(), QList<QObject *>());
}

RXMAP_TEST(TestBinManager, Core)
#include "tst_binmanager.moc"
