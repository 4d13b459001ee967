#include "currentcontext.h"
#include "maphost.h"
#include "rxmap3dprobe.h"
#include "testbase.h"

#include "Framework/dbgroupaam.h"
#include "bePluginRxMap/dbgrouprxmap.h"

#include <QPointer>

#include <functional>
#include <utility>

/// Reading a property runs the host's hooks, and a hook may do anything to the host or to the drawable: choose another
/// product, remove a map, delete the drawable.
class TestRxMap3DHooks : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theChoiceMayLoseItsProduct_data();
    void theChoiceMayLoseItsProduct();
    void theNewerChoiceStays();
    void beforeInitTheNewerChoiceIsBoundToo_data();
    void beforeInitTheNewerChoiceIsBoundToo();
    void aHostThatNeverComesToRestEndsTheChoice();
    void theChoiceMayLoseTheDrawable_data();
    void theChoiceMayLoseTheDrawable();
    void aMapTakenOutWhileChoosingIsSkipped();
    void aMapPublishedWhileChoosingIsNotLookedFor();
    void aRebuildMayLoseItsProduct_data();
    void aRebuildMayLoseItsProduct();
    void aRebuildWithinARebuildLeavesOneBank_data();
    void aRebuildWithinARebuildLeavesOneBank();
    void aRebuildMayBindAnotherMap_data();
    void aRebuildMayBindAnotherMap();
    void aMapThatGrowsWhileItIsBoundIsBuiltAnew();
    void aRebuildMayLoseItsMap_data();
    void aRebuildMayLoseItsMap();
    void aRebuildMayLoseTheDrawable_data();
    void aRebuildMayLoseTheDrawable();
    void aRebuildMayLoseItsPolygons_data();
    void aRebuildMayLoseItsPolygons();

private:
    /// Makes the next read of the property do something first, once.
    void onNextRead(DataBrokerGroup *from, const char *property, std::function<void()> what);

    QScopedPointer<CurrentContext> context;
    QScopedPointer<MapHost> host;
    DbGroupRxMap *firstMap = nullptr;  ///< Maps product 1; one square.
    DbGroupRxMap *secondMap = nullptr; ///< Maps product 2; two squares.
    HandMadeChain firstChain;
    HandMadeChain secondChain;
    RxMap3D *drawable = nullptr; ///< Shows product 1.
    std::function<void()> action;
};

namespace {

const QList<OrvikTypes::RX_RATECOLOR> oneClass{{100.0, QColor(255, 0, 0)}};

void rebuildProperties()
{
    QTest::addColumn<QByteArray>("property");
    for (const char *property : {"polygonBuffer", "polygonCount", "rateCalMappings", "rateColors"})
        QTest::newRow(property) << QByteArray(property);
}

} // namespace

void TestRxMap3DHooks::init()
{
    TestBase::init();
    context.reset(new CurrentContext);
    QVERIFY(context->isValid());
    host.reset(new MapHost);
    firstMap = host->addMap(QStringLiteral("first"), {1});
    secondMap = host->addMap(QStringLiteral("second"), {2});
    firstChain = HandMadeChain();
    firstChain.addOuter(square(0, 0, 10));
    secondChain = HandMadeChain();
    secondChain.addOuter(square(0, 0, 10));
    secondChain.addOuter(square(20, 0, 10));
    MapHost::publish(*firstMap, firstChain, oneClass);
    MapHost::publish(*secondMap, secondChain, oneClass);
    drawable = new RxMap3D(&host->broker, nullptr);
    drawable->init();
    drawable->setAamGroup(host->aam(1));
    QCOMPARE(RxMap3DProbe::boundGroup(*drawable), firstMap);
    QCOMPARE(RxMap3DProbe::banks(*drawable).size(), 1);
}

void TestRxMap3DHooks::cleanup()
{
    delete drawable;
    drawable = nullptr;
    host.reset();
    context.reset();
    action = nullptr;
    TestBase::cleanup();
}

void TestRxMap3DHooks::onNextRead(DataBrokerGroup *from, const char *property, std::function<void()> what)
{
    action = std::move(what);
    const auto hook = [](void *argument) {
        auto &pending = *static_cast<std::function<void()> *>(argument);
        const std::function<void()> now = std::exchange(pending, nullptr);
        if (now)
            now();
    };
    QVERIFY(from->setBeforeReadHook(property, hook, &action));
}

void TestRxMap3DHooks::theChoiceMayLoseItsProduct_data()
{
    QTest::addColumn<bool>("fromProductName");
    QTest::newRow("while the product's name is read") << true;
    QTest::newRow("while a map is read") << false;
}

void TestRxMap3DHooks::theChoiceMayLoseItsProduct()
{
    QFETCH(bool, fromProductName);
    const auto takeAway = [this] { drawable->setAamGroup(nullptr); };
    if (fromProductName)
        onNextRead(host->aam(1), "productGroupName", takeAway);
    else
        onNextRead(firstMap, "rateCalMappings", takeAway);
    drawable->updateRxMapGroup();
    QCOMPARE(RxMap3DProbe::boundGroup(*drawable), nullptr);
    QVERIFY(RxMap3DProbe::banks(*drawable).isEmpty());
}

void TestRxMap3DHooks::theNewerChoiceStays()
{
    onNextRead(firstMap, "rateCalMappings", [this] { drawable->setAamGroup(host->aam(2)); });
    drawable->updateRxMapGroup();
    QCOMPARE(RxMap3DProbe::boundGroup(*drawable), secondMap);
    QCOMPARE(RxMap3DProbe::banks(*drawable).at(0).vertices.size(), 12);
}

void TestRxMap3DHooks::beforeInitTheNewerChoiceIsBoundToo_data()
{
    rebuildProperties();
    QTest::newRow("the product's name") << QByteArray("productGroupName");
}

void TestRxMap3DHooks::beforeInitTheNewerChoiceIsBoundToo()
{
    QFETCH(QByteArray, property);
    RxMap3D uninitialised(&host->broker, nullptr);
    uninitialised.setAamGroup(host->aam(1));
    DataBrokerGroup *aam = host->aam(1);
    onNextRead(property == "productGroupName" ? aam : firstMap, property,
               [this, &uninitialised] { uninitialised.setAamGroup(host->aam(2)); });
    uninitialised.updateRxMapGroup();
    QCOMPARE(RxMap3DProbe::boundGroup(uninitialised), secondMap);
    QCOMPARE(RxMap3DProbe::banks(uninitialised).at(0).vertices.size(), 12);
}

void TestRxMap3DHooks::aHostThatNeverComesToRestEndsTheChoice()
{
    struct Swing {
        MapHost *host;
        RxMap3D drawable;
        int product = 1;
    } swing{host.data(), RxMap3D(&host->broker, nullptr)};
    const auto activateTheOther = [](void *argument) {
        auto &all = *static_cast<Swing *>(argument);
        all.product = 3 - all.product;
        all.drawable.setAamGroup(all.host->aam(all.product));
    };
    swing.drawable.setAamGroup(host->aam(1));
    QVERIFY(firstMap->setBeforeReadHook("rateCalMappings", activateTheOther, &swing));
    swing.drawable.updateRxMapGroup();
    QVERIFY(RxMap3DProbe::boundGroup(swing.drawable) != nullptr);
    QVERIFY(firstMap->setBeforeReadHook("rateCalMappings", nullptr, nullptr));
}

void TestRxMap3DHooks::theChoiceMayLoseTheDrawable_data()
{
    theChoiceMayLoseItsProduct_data();
}

void TestRxMap3DHooks::theChoiceMayLoseTheDrawable()
{
    QFETCH(bool, fromProductName);
    const QPointer<RxMap3D> watched(drawable);
    DataBrokerGroup *aam = host->aam(1);
    onNextRead(fromProductName ? aam : firstMap, fromProductName ? "productGroupName" : "rateCalMappings",
               [this] { delete std::exchange(drawable, nullptr); });
    drawable->updateRxMapGroup();
    QVERIFY(watched.isNull());
}

void TestRxMap3DHooks::aMapTakenOutWhileChoosingIsSkipped()
{
    DataBrokerGroup *third = host->addMap(QStringLiteral("third"), {2});
    onNextRead(firstMap, "rateCalMappings", [this] { host->broker.removeGroup(QStringLiteral("rxMap.second")); });
    messages().clear();
    drawable->setAamGroup(host->aam(2));
    QCOMPARE(RxMap3DProbe::boundGroup(*drawable), third);
    QCOMPARE(messages().debugLines(), QStringList());
}

void TestRxMap3DHooks::aMapPublishedWhileChoosingIsNotLookedFor()
{
    host->broker.removeGroup(QStringLiteral("rxMap.second"));
    onNextRead(firstMap, "rateCalMappings", [this] { host->addMap(QStringLiteral("second"), {2}); });
    drawable->setAamGroup(host->aam(2));
    QCOMPARE(RxMap3DProbe::boundGroup(*drawable), nullptr);
}

void TestRxMap3DHooks::aRebuildMayLoseItsProduct_data()
{
    rebuildProperties();
}

void TestRxMap3DHooks::aRebuildMayLoseItsProduct()
{
    QFETCH(QByteArray, property);
    onNextRead(firstMap, property, [this] { drawable->setAamGroup(nullptr); });
    drawable->updatePolygons();
    QCOMPARE(RxMap3DProbe::boundGroup(*drawable), nullptr);
    QVERIFY(RxMap3DProbe::banks(*drawable).isEmpty());
}

void TestRxMap3DHooks::aRebuildWithinARebuildLeavesOneBank_data()
{
    rebuildProperties();
}

void TestRxMap3DHooks::aRebuildWithinARebuildLeavesOneBank()
{
    QFETCH(QByteArray, property);
    onNextRead(firstMap, property, [this] { drawable->updatePolygons(); });
    drawable->updatePolygons();
    QCOMPARE(RxMap3DProbe::banks(*drawable).size(), 1);
    QCOMPARE(RxMap3DProbe::banks(*drawable).at(0).vertices.size(), 6);
}

void TestRxMap3DHooks::aRebuildMayBindAnotherMap_data()
{
    rebuildProperties();
}

void TestRxMap3DHooks::aRebuildMayBindAnotherMap()
{
    QFETCH(QByteArray, property);
    onNextRead(firstMap, property, [this] { drawable->setAamGroup(host->aam(2)); });
    drawable->updatePolygons();
    QCOMPARE(RxMap3DProbe::boundGroup(*drawable), secondMap);
    QCOMPARE(RxMap3DProbe::banks(*drawable).size(), 1);
    QCOMPARE(RxMap3DProbe::banks(*drawable).at(0).vertices.size(), 12);
}

void TestRxMap3DHooks::aMapThatGrowsWhileItIsBoundIsBuiltAnew()
{
    drawable->setDbGroup(nullptr);
    onNextRead(firstMap, "rateColors", [this] {
        firstChain.addOuter(square(20, 0, 10));
        firstMap->setPolygonCount(firstChain.count());
    });
    drawable->setDbGroup(firstMap);
    QCOMPARE(RxMap3DProbe::banks(*drawable).size(), 1);
    QCOMPARE(RxMap3DProbe::banks(*drawable).at(0).vertices.size(), 12);
}

void TestRxMap3DHooks::aRebuildMayLoseItsMap_data()
{
    rebuildProperties();
}

void TestRxMap3DHooks::aRebuildMayLoseItsMap()
{
    QFETCH(QByteArray, property);
    onNextRead(firstMap, property, [this] {
        host->broker.removeGroup(QStringLiteral("rxMap.first"));
        drawable->setAamGroup(host->aam(1));
        firstChain = HandMadeChain();
    });
    drawable->updatePolygons();
    QCOMPARE(RxMap3DProbe::boundGroup(*drawable), nullptr);
    QVERIFY(RxMap3DProbe::banks(*drawable).isEmpty());
}

void TestRxMap3DHooks::aRebuildMayLoseTheDrawable_data()
{
    rebuildProperties();
}

void TestRxMap3DHooks::aRebuildMayLoseTheDrawable()
{
    QFETCH(QByteArray, property);
    const QPointer<RxMap3D> watched(drawable);
    onNextRead(firstMap, property, [this] { delete std::exchange(drawable, nullptr); });
    drawable->updatePolygons();
    QVERIFY(watched.isNull());
}

void TestRxMap3DHooks::aRebuildMayLoseItsPolygons_data()
{
    rebuildProperties();
}

void TestRxMap3DHooks::aRebuildMayLoseItsPolygons()
{
    QFETCH(QByteArray, property);
    // As a back-end does it: the count first, then the memory.
    const auto withdraw = [](void *argument) {
        auto &test = *static_cast<TestRxMap3DHooks *>(argument);
        const HandMadeChain withdrawn = std::exchange(test.firstChain, HandMadeChain());
        if (withdrawn.count() > 0)
            test.firstMap->setPolygonCount(0);
    };
    QVERIFY(firstMap->setAfterReadHook(property, withdraw, this));
    drawable->updatePolygons();
    QCOMPARE(firstChain.count(), 0U);
    QCOMPARE(RxMap3DProbe::banks(*drawable).size(), 1);
    QVERIFY(RxMap3DProbe::banks(*drawable).at(0).vertices.isEmpty());
}

RXMAP_TEST(TestRxMap3DHooks, Widgets)
#include "tst_rxmap3d_hooks.moc"
