#include "currentcontext.h"
#include "maphost.h"
#include "rxmap3dprobe.h"
#include "rxmapgraphicslistprobe.h"
#include "testbase.h"

#include "Framework/dbgroupaam.h"
#include "Framework/dbgroupjob.h"
#include "Framework/dbgroupproductgroupinfo.h"
#include "Framework/dbgroupqmlunitsconverter.h"
#include "bePluginRxMap/dbgrouprxmap.h"

#include <QPointer>

using Probe = RxMapGraphicsListProbe;

/// Which groups the list follows, and the drawable that it holds.
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
    void theMetaObjectHasOneSlot();
    void groupsOfOtherClassesCountAsAbsent();
    void settingAnEqualNameLooksTheAamUpAgain();
    void everySetCallsTheSlotOnce();
    void theDrawableIsToldBeforeTheProductIsRead();
};

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

void TestRxMapGraphicsList::theMetaObjectHasOneSlot()
{
    const QMetaObject &meta = RxMapGraphicsList::staticMetaObject;
    QCOMPARE(QString::fromLatin1(meta.className()), QStringLiteral("RxMapGraphicsList"));
    QCOMPARE(meta.methodCount(), meta.methodOffset() + 1);
    QCOMPARE(QString::fromLatin1(meta.method(meta.methodOffset()).methodSignature()),
             QStringLiteral("activeAamChanged(QString)"));
    QCOMPARE(meta.method(meta.methodOffset()).methodType(), QMetaMethod::Slot);
}

void TestRxMapGraphicsList::groupsOfOtherClassesCountAsAbsent()
{
    DataBroker broker;
    for (const char *name : {"QmlUnitsConverter", "rxMap.%1", "system.current.job"})
        broker.publishGroup(new DbGroupAAM(QString::fromLatin1(name)));
    RxMapGraphicsList list(&broker, nullptr);
    QCOMPARE(Probe::unitsConverter(list), nullptr);
    QCOMPARE(Probe::rxMapGroup(list), nullptr);
    QCOMPARE(Probe::aamGroup(list), nullptr);

    MapHost host;
    host.broker.removeGroup(MapHost::productGroup(1));
    host.broker.publishGroup(new DbGroupAAM(MapHost::productGroup(1)));
    host.activateProduct(1);
    RxMapGraphicsList other(&host.broker, nullptr);
    QCOMPARE(Probe::aamGroup(other), host.aam(1));
    QCOMPARE(Probe::productGroupInfo(other), nullptr);
}

void TestRxMapGraphicsList::settingAnEqualNameLooksTheAamUpAgain()
{
    MapHost host;
    host.job->setActiveAAMGroupName(QStringLiteral("system.aam.late"));
    RxMapGraphicsList list(&host.broker, nullptr);
    QCOMPARE(Probe::aamGroup(list), nullptr);
    auto *late = new DbGroupAAM(QStringLiteral("system.aam.late"));
    host.broker.publishGroup(late);
    host.job->setActiveAAMGroupName(QStringLiteral("system.aam.late"));
    QCOMPARE(Probe::aamGroup(list), late);
}

void TestRxMapGraphicsList::everySetCallsTheSlotOnce()
{
    MapHost host;
    RxMapGraphicsList list(&host.broker, nullptr);
    int reads = 0;
    const auto count = [](void *argument) { ++*static_cast<int *>(argument); };
    host.aam(1)->setBeforeReadHook("productGroupName", count, &reads);
    host.activateProduct(1);
    QCOMPARE(reads, 1);
    QVERIFY(!host.job->connectPropertySetSlot("activeAAMGroupName", &list, SLOT(activeAamChanged(QString)),
                                              Qt::UniqueConnection, true));
}

void TestRxMapGraphicsList::theDrawableIsToldBeforeTheProductIsRead()
{
    MapHost host;
    RxMapGraphicsList list(&host.broker, nullptr);
    struct Seen {
        RxMap3D *map;
        DbGroupAAM *aam;
    } seen{Probe::map(list), nullptr};
    host.aam(1)->setBeforeReadHook(
        "productGroupName",
        [](void *argument) {
            auto *what = static_cast<Seen *>(argument);
            what->aam = RxMap3DProbe::aamGroup(*what->map);
        },
        &seen);
    host.activateProduct(1);
    QCOMPARE(seen.aam, host.aam(1));
}

RXMAP_TEST(TestRxMapGraphicsList, Widgets)
#include "tst_rxmapgraphicslist.moc"
