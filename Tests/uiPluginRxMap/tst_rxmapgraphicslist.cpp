#include "currentcontext.h"
#include "foreignmapgroup.h"
#include "maphost.h"
#include "rxmap3dprobe.h"
#include "rxmapgraphicslistprobe.h"
#include "testbase.h"

#include "Framework/dbgroupaam.h"
#include "Framework/dbgroupjob.h"
#include "Framework/dbgroupproductgroupinfo.h"
#include "Framework/dbgroupqmlunitsconverter.h"
#include "Framework/xyz.h"
#include "bePluginRxMap/dbgrouprxmap.h"

#include <QCoreApplication>
#include <QPointer>
#include <QTranslator>

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
    void theFactorIsTakenBeforeTheMapIsAsked();
    void answersOfOtherTypesAreConverted_data();
    void answersOfOtherTypesAreConverted();
    void groupNamesArePassedAsLatin1();
    void theTextIsTranslatedInTheListsContext();
    void aMapMayReplaceTheListWhileItAnswers();
    void withoutABrokerThereIsAListThatSaysNothing();

    void theMetaObjectHasOneSlot();
    void groupsOfOtherClassesCountAsAbsent();
    void settingAnEqualNameLooksTheAamUpAgain();
    void everySetCallsTheSlotOnce();
    void theDrawableIsToldBeforeTheProductIsRead();

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
    DbGroupRxMap *group = addAnsweringMap(host, QStringLiteral("field"), {3.0F}, true);
    RxMapGraphicsList list(&host.broker, nullptr);
    int asked = 0;
    connect(group, &DbGroupRxMap::queryRatesAtXYZChanged, this, [&asked] { ++asked; });
    QVERIFY(list.getPointDescription({}).isEmpty());
    QCOMPARE(asked, 0);
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

void TestRxMapGraphicsList::theFactorIsTakenBeforeTheMapIsAsked()
{
    MapHost host;
    host.activateProduct(1);
    DbGroupRxMap *group = addAnsweringMap(host, QStringLiteral("field"), {3.0F}, true);
    connect(group, &DbGroupRxMap::queryRatesAtXYZChanged, this, [&host] { host.units->setWeightRateToDisplay(100.0); });
    RxMapGraphicsList list(&host.broker, nullptr);
    QCOMPARE(list.getPointDescription({}), QStringLiteral("Rx Rate: 3.00\n\n"));
}

void TestRxMapGraphicsList::answersOfOtherTypesAreConverted_data()
{
    QTest::addColumn<QString>("valid");
    QTest::newRow("text true, rates of another type") << "true";
    QTest::newRow("text false") << "false";
}

void TestRxMapGraphicsList::answersOfOtherTypesAreConverted()
{
    QFETCH(QString, valid);
    MapHost host;
    host.activateProduct(1);
    auto *group = new ForeignMapGroup(QStringLiteral("rxMap.foreign"));
    group->setRateCalMappings({mappingFor(MapHost::productGroup(1))});
    group->setRatesAtXYZ(QStringLiteral("7"));
    group->setRatesAtXYZValid(valid);
    host.broker.publishGroup(group);
    RxMapGraphicsList list(&host.broker, nullptr);
    // A text is no list of rates, so there is no entry at the mapping's position.
    QVERIFY(list.getPointDescription({}).isEmpty());
}

void TestRxMapGraphicsList::groupNamesArePassedAsLatin1()
{
    MapHost host;
    host.activateProduct(1);
    addAnsweringMap(host, QString::fromUtf8("Köln"), {3.0F}, true);
    RxMapGraphicsList list(&host.broker, nullptr);
    QCOMPARE(list.getPointDescription({}), QStringLiteral("Rx Rate: 3.00\n\n"));
}

void TestRxMapGraphicsList::theTextIsTranslatedInTheListsContext()
{
    class Translator : public QTranslator {
    public:
        bool isEmpty() const override { return false; }
        QString translate(const char *context, const char *source, const char *, int) const override
        {
            const bool isOurs = qstrcmp(context, "RxMapGraphicsList") == 0 && qstrcmp(source, "Rx Rate: ") == 0;
            return isOurs ? QStringLiteral("Dose: ") : QString();
        }
    };
    Translator translator;
    QCoreApplication::installTranslator(&translator);
    MapHost host;
    host.activateProduct(1);
    addAnsweringMap(host, QStringLiteral("field"), {3.0F}, true);
    RxMapGraphicsList list(&host.broker, nullptr);
    const QString text = list.getPointDescription({});
    QCoreApplication::removeTranslator(&translator);
    QCOMPARE(text, QStringLiteral("Dose: 3.00\n\n"));
}

void TestRxMapGraphicsList::aMapMayReplaceTheListWhileItAnswers()
{
    MapHost host;
    host.activateProduct(1);
    DbGroupRxMap *group = addAnsweringMap(host, QStringLiteral("field"), {3.0F}, true);
    QPointer<RxMapGraphicsList> list = new RxMapGraphicsList(&host.broker, nullptr);
    connect(group, &DbGroupRxMap::queryRatesAtXYZChanged, this, [&list] { delete list; });
    QCOMPARE(list->getPointDescription({}), QStringLiteral("Rx Rate: 3.00\n\n"));
    QVERIFY(list.isNull());
}

void TestRxMapGraphicsList::withoutABrokerThereIsAListThatSaysNothing()
{
    RxMapGraphicsList list(nullptr, nullptr);
    QVERIFY(list.getPointDescription({}).isEmpty());
    QCOMPARE(list.drawables()->size(), 1);
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

QTEST_MAIN(TestRxMapGraphicsList)
#include "tst_rxmapgraphicslist.moc"
