#include "currentcontext.h"
#include "foreignmapgroup.h"
#include "maphost.h"
#include "rxmap3dprobe.h"
#include "rxmapgraphicslistprobe.h"
#include "testbase.h"

#include "Framework/dbgroupaam.h"
#include "Framework/dbgroupjob.h"
#include "Framework/dbgroupproductgroupinfo.h"
#include "bePluginRxMap/dbgrouprxmap.h"

#include <QPointer>
#include <QScopedPointer>

/// In which order the list starts and ends its drawables, how it moves from product to product, and what it withstands
/// when the host acts while it reads.
class TestRxMapGraphicsListLifecycle : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void drawablesAreDeletedFromTheLastBeforeTheList();
    void drawablesAreInitialisedInOrderBeforeTheMapIsBound();
    void aProductWithoutInfoTakesTheInfoAway();
    void theInfoFollowsTheProduct();
    void aProductCanBeLostAndFoundAgain();
    void missingGroupsAreNotReported();
    void withoutABrokerAProductIsNotFollowed();
    void theListMayGoWhileADrawableIsInitialised();
    void theListMayGoWhileItReadsAProduct();
    void theListMayGoWhileItsMapIsBound();
    void aProductActivatedWhileTheOldOneIsReadCounts();
    void aProductActivatedWhileTheListIsMadeIsNotHeard();
    void aProductMayBeActivatedWhileTheListGoes();
    void theListMayGoWhileItReadsAMap();
    void theProductMayGoWhileAMapIsRead();
    void validityOfAnotherTypeIsConverted_data();
    void validityOfAnotherTypeIsConverted();
};

namespace {

using Probe = RxMapGraphicsListProbe;

/// A drawable that records what is done with it.
class NotingDrawable : public Object3D {
public:
    NotingDrawable(QString givenName, QStringList &givenNotes, const RxMapGraphicsList &givenList)
        : name(givenName)
        , notes(givenNotes)
        , list(givenList)
    {
    }
    ~NotingDrawable() override
    {
        const bool isHeld = const_cast<RxMapGraphicsList &>(list).drawables()->contains(this);
        notes.append(name + (isHeld ? QLatin1String(" deleted while held") : QLatin1String(" deleted")));
    }

    void draw(QMatrix4x4 /*mvp*/) override { }
    void init() override
    {
        const bool isBound = RxMap3DProbe::boundGroup(*Probe::map(list)) != nullptr;
        notes.append(name + (isBound ? QLatin1String(" after binding") : QLatin1String(" initialised")));
        // The map compiles its two shaders when it is initialised.
        mapWasInitialised = Probe::map(list)->children().size() == 2;
    }
    float drawingOrder() const override { return 0.0F; }

    bool mapWasInitialised = false;

private:
    const QString name;
    QStringList &notes;
    const RxMapGraphicsList &list;
};

/// A drawable whose initialisation deletes the list.
class EndingDrawable : public Object3D {
public:
    explicit EndingDrawable(RxMapGraphicsList *givenList)
        : list(givenList)
    {
    }

    void draw(QMatrix4x4 /*mvp*/) override { }
    void init() override { delete list; }
    float drawingOrder() const override { return 0.0F; }

private:
    RxMapGraphicsList *list;
};

/// What a hook needs to have at hand.
struct Reach {
    MapHost host;
    QPointer<RxMapGraphicsList> list;
    bool isDue = false;

    /// True once after each time that the hook was made due.
    bool takeTurn()
    {
        const bool isTurn = isDue;
        isDue = false;
        return isTurn;
    }
};

void deleteList(void *argument)
{
    auto &reach = *static_cast<Reach *>(argument);
    if (reach.takeTurn())
        delete reach.list;
}

void activateOther(void *argument)
{
    auto &reach = *static_cast<Reach *>(argument);
    if (reach.takeTurn())
        reach.host.activateProduct(2);
}

} // namespace

void TestRxMapGraphicsListLifecycle::drawablesAreDeletedFromTheLastBeforeTheList()
{
    MapHost host;
    QStringList notes;
    auto *list = new RxMapGraphicsList(&host.broker, nullptr);
    connect(Probe::map(*list), &QObject::destroyed, this, [&notes] { notes.append(QStringLiteral("map deleted")); });
    connect(list, &QObject::destroyed, this, [&notes] { notes.append(QStringLiteral("list deleted")); });
    list->drawables()->append(new NotingDrawable(QStringLiteral("second"), notes, *list));
    list->drawables()->append(new NotingDrawable(QStringLiteral("third"), notes, *list));
    delete list;
    QCOMPARE(notes, (QStringList{"third deleted", "second deleted", "map deleted", "list deleted"}));
}

void TestRxMapGraphicsListLifecycle::drawablesAreInitialisedInOrderBeforeTheMapIsBound()
{
    MapHost host;
    host.addMap(QStringLiteral("field"), {1});
    host.activateProduct(1);
    const CurrentContext current;
    QStringList notes;
    RxMapGraphicsList list(&host.broker, nullptr);
    auto *second = new NotingDrawable(QStringLiteral("second"), notes, list);
    auto *third = new NotingDrawable(QStringLiteral("third"), notes, list);
    *list.drawables() += {second, third};
    list.init();
    QCOMPARE(notes, (QStringList{"second initialised", "third initialised"}));
    QVERIFY(second->mapWasInitialised);
    QVERIFY(RxMap3DProbe::boundGroup(*Probe::map(list)) != nullptr);
}

void TestRxMapGraphicsListLifecycle::aProductWithoutInfoTakesTheInfoAway()
{
    MapHost host;
    host.broker.removeGroup(MapHost::productGroup(2));
    RxMapGraphicsList list(&host.broker, nullptr);
    host.activateProduct(1);
    QVERIFY(Probe::productGroupInfo(list) != nullptr);
    host.activateProduct(2);
    QCOMPARE(Probe::aamGroup(list), host.aam(2));
    QCOMPARE(Probe::productGroupInfo(list), nullptr);
}

void TestRxMapGraphicsListLifecycle::theInfoFollowsTheProduct()
{
    MapHost host;
    RxMapGraphicsList list(&host.broker, nullptr);
    for (int product : {1, 2, 1}) {
        host.activateProduct(product);
        QVERIFY(Probe::productGroupInfo(list) != nullptr);
        QCOMPARE(Probe::productGroupInfo(list)->name(), MapHost::productGroup(product));
    }
}

void TestRxMapGraphicsListLifecycle::aProductCanBeLostAndFoundAgain()
{
    MapHost host;
    host.broker.removeGroup(MapHost::productGroup(1));
    RxMapGraphicsList list(&host.broker, nullptr);
    for (int product : {1, 2}) {
        host.activateProduct(product);
        QCOMPARE(Probe::aamGroup(list), host.aam(product));
        host.job->setActiveAAMGroupName(QString());
        QCOMPARE(Probe::aamGroup(list), nullptr);
        QCOMPARE(Probe::productGroupInfo(list), nullptr);
        host.activateProduct(product);
        QCOMPARE(Probe::aamGroup(list), host.aam(product));
        QCOMPARE(RxMap3DProbe::aamGroup(*Probe::map(list)), host.aam(product));
        QCOMPARE(Probe::productGroupInfo(list) != nullptr, product == 2);
    }
}

void TestRxMapGraphicsListLifecycle::missingGroupsAreNotReported()
{
    DataBroker empty;
    const RxMapGraphicsList first(&empty, nullptr);
    MapHost host;
    host.broker.removeGroup(MapHost::productGroup(1));
    host.activateProduct(1);
    const RxMapGraphicsList second(&host.broker, nullptr);
    for (const char *name : {"", "system.aam.9", "QmlUnitsConverter"})
        host.job->setActiveAAMGroupName(QString::fromLatin1(name));
    QCOMPARE(Probe::aamGroup(second), nullptr);
    QCOMPARE(messages().debugLines(), QStringList());
}

void TestRxMapGraphicsListLifecycle::withoutABrokerAProductIsNotFollowed()
{
    RxMapGraphicsList list(nullptr, nullptr);
    list.activeAamChanged(QStringLiteral("system.aam.1"));
    list.init();
    QCOMPARE(Probe::aamGroup(list), nullptr);
    QCOMPARE(Probe::productGroupInfo(list), nullptr);
}

void TestRxMapGraphicsListLifecycle::theListMayGoWhileADrawableIsInitialised()
{
    MapHost host;
    const QPointer<RxMapGraphicsList> list(new RxMapGraphicsList(&host.broker, nullptr));
    *list->drawables() += {new EndingDrawable(list), new EndingDrawable(nullptr)};
    list->init();
    QVERIFY(list.isNull());
}

void TestRxMapGraphicsListLifecycle::theListMayGoWhileItReadsAProduct()
{
    Reach reach;
    reach.list = new RxMapGraphicsList(&reach.host.broker, nullptr);
    QVERIFY(reach.host.aam(1)->setBeforeReadHook("productGroupName", deleteList, &reach));
    reach.isDue = true;
    reach.host.activateProduct(1);
    QVERIFY(reach.list.isNull());
}

void TestRxMapGraphicsListLifecycle::theListMayGoWhileItsMapIsBound()
{
    Reach reach;
    const CurrentContext current;
    DbGroupRxMap *field = reach.host.addMap(QStringLiteral("field"), {1});
    reach.list = new RxMapGraphicsList(&reach.host.broker, nullptr);
    reach.list->init();
    QVERIFY(field->setBeforeReadHook("rateCalMappings", deleteList, &reach));
    reach.isDue = true;
    reach.host.activateProduct(1);
    QVERIFY(reach.list.isNull());
}

void TestRxMapGraphicsListLifecycle::aProductActivatedWhileTheOldOneIsReadCounts()
{
    Reach reach;
    const QScopedPointer<RxMapGraphicsList> list(new RxMapGraphicsList(&reach.host.broker, nullptr));
    QVERIFY(reach.host.aam(1)->setBeforeReadHook("productGroupName", activateOther, &reach));
    reach.isDue = true;
    reach.host.activateProduct(1);
    QCOMPARE(Probe::aamGroup(*list), reach.host.aam(2));
    QCOMPARE(Probe::productGroupInfo(*list)->name(), MapHost::productGroup(2));
}

void TestRxMapGraphicsListLifecycle::aProductActivatedWhileTheListIsMadeIsNotHeard()
{
    Reach reach;
    reach.host.activateProduct(1);
    QVERIFY(reach.host.aam(1)->setBeforeReadHook("productGroupName", activateOther, &reach));
    reach.isDue = true;
    const RxMapGraphicsList list(&reach.host.broker, nullptr);
    QVERIFY(!reach.isDue);
    QCOMPARE(Probe::aamGroup(list), reach.host.aam(1));
}

void TestRxMapGraphicsListLifecycle::aProductMayBeActivatedWhileTheListGoes()
{
    MapHost host;
    host.addMap(QStringLiteral("field"), {1});
    const CurrentContext current;
    auto *list = new RxMapGraphicsList(&host.broker, nullptr);
    list->init();
    bool isActivated = false;
    connect(Probe::map(*list), &QObject::destroyed, this, [&] {
        host.activateProduct(1);
        isActivated = Probe::aamGroup(*list) == host.aam(1);
    });
    delete list;
    QVERIFY(isActivated);
}

void TestRxMapGraphicsListLifecycle::theListMayGoWhileItReadsAMap()
{
    Reach reach;
    reach.host.activateProduct(1);
    DbGroupRxMap *other = reach.host.addMap(QStringLiteral("other"), {2});
    DbGroupRxMap *field = reach.host.addMap(QStringLiteral("field"), {1});
    field->setRatesAtXYZ({12.5F});
    field->setRatesAtXYZValid(true);
    reach.list = new RxMapGraphicsList(&reach.host.broker, nullptr);
    QVERIFY(other->setBeforeReadHook("rateCalMappings", deleteList, &reach));
    reach.isDue = true;
    QCOMPARE(reach.list->getPointDescription({}), QStringLiteral("Rx Rate: 12.50\n\n"));
    QVERIFY(reach.list.isNull());
}

void TestRxMapGraphicsListLifecycle::theProductMayGoWhileAMapIsRead()
{
    Reach reach;
    reach.host.activateProduct(1);
    DbGroupRxMap *field = reach.host.addMap(QStringLiteral("field"), {1});
    field->setRatesAtXYZ({12.5F});
    field->setRatesAtXYZValid(true);
    RxMapGraphicsList list(&reach.host.broker, nullptr);
    const auto deactivate = [](void *argument) {
        auto &active = *static_cast<Reach *>(argument);
        if (active.takeTurn())
            active.host.job->setActiveAAMGroupName(QString());
    };
    QVERIFY(field->setBeforeReadHook("rateCalMappings", deactivate, &reach));
    reach.isDue = true;
    // The product described is the one that was active when the point was touched.
    QCOMPARE(list.getPointDescription({}), QStringLiteral("Rx Rate: 12.50\n\n"));
    QCOMPARE(Probe::aamGroup(list), nullptr);
    QVERIFY(list.getPointDescription({}).isEmpty());
}

void TestRxMapGraphicsListLifecycle::validityOfAnotherTypeIsConverted_data()
{
    QTest::addColumn<QString>("valid");
    QTest::addColumn<QString>("text");
    QTest::newRow("true") << "true"
                          << "Rx Rate: 7.00\n\n";
    QTest::newRow("false") << "false"
                           << "";
}

void TestRxMapGraphicsListLifecycle::validityOfAnotherTypeIsConverted()
{
    QFETCH(QString, valid);
    MapHost host;
    host.activateProduct(1);
    auto *group = new TextValidityMapGroup(QStringLiteral("rxMap.foreign"));
    group->setRateCalMappings({mappingFor(MapHost::productGroup(1))});
    group->setRatesAtXYZ({7.0F});
    group->setRatesAtXYZValid(valid);
    host.broker.publishGroup(group);
    RxMapGraphicsList list(&host.broker, nullptr);
    QTEST(list.getPointDescription({}), "text");
}

RXMAP_TEST(TestRxMapGraphicsListLifecycle, Widgets)
#include "tst_rxmapgraphicslist_lifecycle.moc"
