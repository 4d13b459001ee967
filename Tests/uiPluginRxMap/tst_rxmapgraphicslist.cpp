#include "currentcontext.h"
#include "maphost.h"
#include "rxmap3dprobe.h"
#include "rxmapgraphicslist.h"
#include "testbase.h"

#include "Framework/dbgroupaam.h"
#include "Framework/dbgroupjob.h"
#include "Framework/dbgroupproductgroupinfo.h"
#include "Framework/dbgroupqmlunitsconverter.h"
#include "Framework/xyz.h"
#include "bePluginRxMap/dbgrouprxmap.h"

#include <QPointer>

/// Lets the test see what the list keeps to itself.
class RxMapGraphicsListProbe {
public:
    static DbGroupRxMap *rxMapGroup(const RxMapGraphicsList &list) { return list.rxMapGroup; }
    static DbGroupAAM *aamGroup(const RxMapGraphicsList &list) { return list.aamGroup; }
    static DbGroupProductGroupInfo *productGroupInfo(const RxMapGraphicsList &list) { return list.productGroupInfo; }
    static DbGroupQmlUnitsConverter *unitsConverter(const RxMapGraphicsList &list) { return list.unitsConverter; }
    static RxMap3D *map(const RxMapGraphicsList &list) { return list.rxMap3D; }
};

using Probe = RxMapGraphicsListProbe;

class TestRxMapGraphicsList : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void withoutAJobGroupNothingIsTracked();
    void constructionTakesUpTheActiveAam();
    void everySetOfTheAamNameIsFollowed();
    void aNameThatIsNoAamGroupUnbinds_data();
    void aNameThatIsNoAamGroupUnbinds();
    void anAamWithoutProductInfoIsTracked();
    void thePlaceholderNameIsLookedUpAsItStands();
    void theListHoldsOneDrawableForLife();
    void initInitialisesTheDrawableAndBindsIt();
    void destructionDeletesTheDrawableOnce();
    void aJobPublishedLaterIsNotFollowed();

    void aValidAnswerGivesTheRateLine();
    void theRateIsWidenedBeforeItIsMultiplied();
    void theFactorComesFromTheActiveProduct_data();
    void theFactorComesFromTheActiveProduct();
    void withoutProductInfoTheRateIsUnconverted();
    void onlyTheFirstMapOfTheProductIsAsked();
    void anInvalidAnswerEndsTheSearch();
    void aRateListTooShortForThePositionGivesNothing();
    void mapsWithoutTheProductArePassedOver();
    void withoutAnActiveAamTheTextIsEmpty();
    void withoutMapsTheTextIsEmpty();
    void thePointIsWidenedAndWrittenBeforeTheAnswerIsRead();

private:
    /// A map of product 1 that answers every query with `rates`.
    static DbGroupRxMap *addAnsweringMap(MapHost &host, const QString &name, const QList<float> &rates, bool valid);
};

DbGroupRxMap *TestRxMapGraphicsList::addAnsweringMap(MapHost &host, const QString &name, const QList<float> &rates,
                                                     bool valid)
{
    DbGroupRxMap *group = host.addMap(name, {1});
    connect(group, &DbGroupRxMap::queryRatesAtXYZChanged, group, [group, rates, valid] {
        group->setRatesAtXYZ(rates);
        group->setRatesAtXYZValid(valid);
    });
    return group;
}

void TestRxMapGraphicsList::withoutAJobGroupNothingIsTracked()
{
    DataBroker broker;
    RxMapGraphicsList list(&broker, nullptr);
    QCOMPARE(Probe::aamGroup(list), nullptr);
    QCOMPARE(Probe::productGroupInfo(list), nullptr);
    QCOMPARE(Probe::unitsConverter(list), nullptr);
    QCOMPARE(list.drawables()->size(), 1);
}

void TestRxMapGraphicsList::constructionTakesUpTheActiveAam()
{
    MapHost host;
    host.activateProduct(2);
    RxMapGraphicsList list(&host.broker, nullptr);
    QCOMPARE(Probe::aamGroup(list), host.aam(2));
    QCOMPARE(RxMap3DProbe::aamGroup(*Probe::map(list)), host.aam(2));
    QCOMPARE(Probe::productGroupInfo(list)->name(), MapHost::productGroup(2));
    QCOMPARE(Probe::unitsConverter(list), host.units);
}

void TestRxMapGraphicsList::everySetOfTheAamNameIsFollowed()
{
    MapHost host;
    RxMapGraphicsList list(&host.broker, nullptr);
    QCOMPARE(Probe::aamGroup(list), nullptr);
    host.activateProduct(1);
    QCOMPARE(Probe::aamGroup(list), host.aam(1));
    host.activateProduct(2);
    QCOMPARE(Probe::aamGroup(list), host.aam(2));
    QCOMPARE(RxMap3DProbe::aamGroup(*Probe::map(list)), host.aam(2));
}

void TestRxMapGraphicsList::aNameThatIsNoAamGroupUnbinds_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("no group") << "system.aam.9";
    QTest::newRow("empty") << "";
    QTest::newRow("group of another class") << "QmlUnitsConverter";
}

void TestRxMapGraphicsList::aNameThatIsNoAamGroupUnbinds()
{
    QFETCH(QString, name);
    MapHost host;
    host.addMap(QStringLiteral("field"), {1});
    host.activateProduct(1);
    const CurrentContext current;
    RxMapGraphicsList list(&host.broker, nullptr);
    list.init();
    QVERIFY(RxMap3DProbe::boundGroup(*Probe::map(list)) != nullptr);
    host.job->setActiveAAMGroupName(name);
    QCOMPARE(Probe::aamGroup(list), nullptr);
    QCOMPARE(Probe::productGroupInfo(list), nullptr);
    QCOMPARE(RxMap3DProbe::aamGroup(*Probe::map(list)), nullptr);
    QCOMPARE(RxMap3DProbe::boundGroup(*Probe::map(list)), nullptr);
}

void TestRxMapGraphicsList::anAamWithoutProductInfoIsTracked()
{
    MapHost host;
    host.broker.removeGroup(MapHost::productGroup(1));
    host.activateProduct(1);
    RxMapGraphicsList list(&host.broker, nullptr);
    QCOMPARE(Probe::aamGroup(list), host.aam(1));
    QCOMPARE(Probe::productGroupInfo(list), nullptr);
}

void TestRxMapGraphicsList::thePlaceholderNameIsLookedUpAsItStands()
{
    MapHost host;
    host.addMap(QStringLiteral("field"), {1});
    QCOMPARE(Probe::rxMapGroup(RxMapGraphicsList(&host.broker, nullptr)), nullptr);
    DbGroupRxMap *literal = host.addMap(QStringLiteral("%1"), {1});
    QCOMPARE(Probe::rxMapGroup(RxMapGraphicsList(&host.broker, nullptr)), literal);
}

void TestRxMapGraphicsList::theListHoldsOneDrawableForLife()
{
    MapHost host;
    host.activateProduct(1);
    RxMapGraphicsList list(&host.broker, nullptr);
    const QList<Object3D *> before = *list.drawables();
    QCOMPARE(before, QList<Object3D *>{Probe::map(list)});
    QCOMPARE(Probe::map(list)->parent(), &list);
    host.activateProduct(2);
    QCOMPARE(*list.drawables(), before);
}

void TestRxMapGraphicsList::initInitialisesTheDrawableAndBindsIt()
{
    MapHost host;
    DataBrokerGroup *group = host.addMap(QStringLiteral("field"), {1});
    host.activateProduct(1);
    const CurrentContext current;
    RxMapGraphicsList list(&host.broker, nullptr);
    QCOMPARE(RxMap3DProbe::boundGroup(*Probe::map(list)), nullptr);
    list.init();
    QCOMPARE(RxMap3DProbe::boundGroup(*Probe::map(list)), group);
    QCOMPARE(Probe::map(list)->children().size(), 2);
}

void TestRxMapGraphicsList::destructionDeletesTheDrawableOnce()
{
    MapHost host;
    auto *list = new RxMapGraphicsList(&host.broker, nullptr);
    const QPointer<RxMap3D> map = Probe::map(*list);
    int deletions = 0;
    connect(map.data(), &QObject::destroyed, this, [&deletions] { ++deletions; });
    delete list;
    QVERIFY(map.isNull());
    QCOMPARE(deletions, 1);
}

void TestRxMapGraphicsList::aJobPublishedLaterIsNotFollowed()
{
    DataBroker broker;
    RxMapGraphicsList list(&broker, nullptr);
    auto *job = new DbGroupJob(QStringLiteral("system.current.job"));
    broker.publishGroup(job);
    auto *aam = new DbGroupAAM(QStringLiteral("system.aam.1"));
    broker.publishGroup(aam);
    job->setActiveAAMGroupName(QStringLiteral("system.aam.1"));
    QCOMPARE(Probe::aamGroup(list), nullptr);
}

void TestRxMapGraphicsList::aValidAnswerGivesTheRateLine()
{
    MapHost host;
    host.activateProduct(1);
    addAnsweringMap(host, QStringLiteral("field"), {12.5F}, true);
    RxMapGraphicsList list(&host.broker, nullptr);
    QCOMPARE(list.getPointDescription({1, 2, 3}), QStringLiteral("Rx Rate: 12.50\n\n"));
}

void TestRxMapGraphicsList::theRateIsWidenedBeforeItIsMultiplied()
{
    MapHost host;
    host.activateProduct(1);
    host.units->setWeightRateToDisplay(1000000.0);
    addAnsweringMap(host, QStringLiteral("field"), {0.1F}, true);
    RxMapGraphicsList list(&host.broker, nullptr);
    // 0.1 as a float is 0.100000001490116...
    QCOMPARE(list.getPointDescription({}), QStringLiteral("Rx Rate: 100000.00\n\n"));
    host.units->setWeightRateToDisplay(1e10);
    QCOMPARE(list.getPointDescription({}), QStringLiteral("Rx Rate: 1000000014.90\n\n"));
}

void TestRxMapGraphicsList::theFactorComesFromTheActiveProduct_data()
{
    QTest::addColumn<int>("areaUnitSystem");
    QTest::addColumn<QString>("text");
    // 1 kg/ha = 1 lb / 0.45359237 kg × 0.40468564224 ha/ac; turf: × 0.009290304 ha per 1000 ft².
    QTest::newRow("kg/ha") << 1 << "Rx Rate: 200.00\n\n";
    QTest::newRow("lb/ac") << 0 << "Rx Rate: 178.44\n\n";
    QTest::newRow("lb/1000 ft2") << 2 << "Rx Rate: 4.10\n\n";
}

void TestRxMapGraphicsList::theFactorComesFromTheActiveProduct()
{
    QFETCH(int, areaUnitSystem);
    MapHost host;
    host.activateProduct(1);
    host.units->setAreaUnitSystem(areaUnitSystem);
    addAnsweringMap(host, QStringLiteral("field"), {200.0F}, true);
    RxMapGraphicsList list(&host.broker, nullptr);
    QTEST(list.getPointDescription({}), "text");
}

void TestRxMapGraphicsList::withoutProductInfoTheRateIsUnconverted()
{
    MapHost host;
    host.broker.removeGroup(MapHost::productGroup(1));
    host.activateProduct(1);
    host.units->setAreaUnitSystem(0);
    addAnsweringMap(host, QStringLiteral("field"), {200.0F}, true);
    RxMapGraphicsList list(&host.broker, nullptr);
    QCOMPARE(list.getPointDescription({}), QStringLiteral("Rx Rate: 200.00\n\n"));
}

void TestRxMapGraphicsList::onlyTheFirstMapOfTheProductIsAsked()
{
    MapHost host;
    host.activateProduct(1);
    addAnsweringMap(host, QStringLiteral("zzz"), {1.0F}, true);
    DbGroupRxMap *second = addAnsweringMap(host, QStringLiteral("aaa"), {2.0F}, true);
    RxMapGraphicsList list(&host.broker, nullptr);
    int asked = 0;
    connect(second, &DbGroupRxMap::queryRatesAtXYZChanged, this, [&asked] { ++asked; });
    QCOMPARE(list.getPointDescription({}), QStringLiteral("Rx Rate: 1.00\n\n"));
    QCOMPARE(asked, 0);
}

void TestRxMapGraphicsList::anInvalidAnswerEndsTheSearch()
{
    MapHost host;
    host.activateProduct(1);
    addAnsweringMap(host, QStringLiteral("first"), {1.0F}, false);
    DbGroupRxMap *second = addAnsweringMap(host, QStringLiteral("second"), {2.0F}, true);
    RxMapGraphicsList list(&host.broker, nullptr);
    int asked = 0;
    connect(second, &DbGroupRxMap::queryRatesAtXYZChanged, this, [&asked] { ++asked; });
    QVERIFY(list.getPointDescription({}).isEmpty());
    QCOMPARE(asked, 0);
}

void TestRxMapGraphicsList::aRateListTooShortForThePositionGivesNothing()
{
    MapHost host;
    host.activateProduct(1);
    DbGroupRxMap *group = addAnsweringMap(host, QStringLiteral("field"), {1.0F, 2.0F}, true);
    group->setRateCalMappings({mappingFor(QStringLiteral("other")), mappingFor(MapHost::productGroup(2)),
                               mappingFor(MapHost::productGroup(1))});
    RxMapGraphicsList list(&host.broker, nullptr);
    QVERIFY(list.getPointDescription({}).isEmpty());
    host.activateProduct(2);
    QCOMPARE(list.getPointDescription({}), QStringLiteral("Rx Rate: 2.00\n\n"));
}

void TestRxMapGraphicsList::mapsWithoutTheProductArePassedOver()
{
    MapHost host;
    host.activateProduct(1);
    DbGroupRxMap *empty = host.addMap(QStringLiteral("empty"), {});
    DbGroupRxMap *other = host.addMap(QStringLiteral("other"), {2});
    addAnsweringMap(host, QStringLiteral("field"), {3.0F}, true);
    RxMapGraphicsList list(&host.broker, nullptr);
    int asked = 0;
    for (DbGroupRxMap *group : {empty, other})
        connect(group, &DbGroupRxMap::queryRatesAtXYZChanged, this, [&asked] { ++asked; });
    QCOMPARE(list.getPointDescription({}), QStringLiteral("Rx Rate: 3.00\n\n"));
    QCOMPARE(asked, 0);
}

void TestRxMapGraphicsList::withoutAnActiveAamTheTextIsEmpty()
{
    MapHost host;
    addAnsweringMap(host, QStringLiteral("field"), {3.0F}, true);
    RxMapGraphicsList list(&host.broker, nullptr);
    QVERIFY(list.getPointDescription({}).isEmpty());
}

void TestRxMapGraphicsList::withoutMapsTheTextIsEmpty()
{
    MapHost host;
    host.activateProduct(1);
    RxMapGraphicsList list(&host.broker, nullptr);
    QVERIFY(list.getPointDescription({}).isEmpty());
}

void TestRxMapGraphicsList::thePointIsWidenedAndWrittenBeforeTheAnswerIsRead()
{
    MapHost host;
    host.activateProduct(1);
    DbGroupRxMap *group = addAnsweringMap(host, QStringLiteral("field"), {3.0F}, true);
    QStringList order;
    const auto log = [](void *argument) { static_cast<QStringList *>(argument)->append(QStringLiteral("rates")); };
    const auto logValid = [](void *argument) { static_cast<QStringList *>(argument)->append(QStringLiteral("valid")); };
    group->setBeforeReadHook("ratesAtXYZ", log, &order);
    group->setBeforeReadHook("ratesAtXYZValid", logValid, &order);
    connect(group, &DbGroupRxMap::queryRatesAtXYZChanged, this, [&order](const OrvikTypes::XYZ &point) {
        order.append(QStringLiteral("query"));
        QCOMPARE(point, OrvikTypes::XYZ(static_cast<double>(0.1F), -2.5, 1e9));
    });
    RxMapGraphicsList list(&host.broker, nullptr);
    list.getPointDescription({0.1F, -2.5F, 1e9F});
    QCOMPARE(order, (QStringList{"query", "rates", "valid"}));
}

QTEST_MAIN(TestRxMapGraphicsList)
#include "tst_rxmapgraphicslist.moc"
