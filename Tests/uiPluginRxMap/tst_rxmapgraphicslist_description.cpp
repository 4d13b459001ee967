#include "foreignmapgroup.h"
#include "maphost.h"
#include "rxmapgraphicslist.h"
#include "testbase.h"

#include "Framework/dbgroupqmlunitsconverter.h"
#include "Framework/xyz.h"
#include "bePluginRxMap/dbgrouprxmap.h"

#include <QCoreApplication>
#include <QPointer>
#include <QTranslator>

/// The text that the list gives for a point: which map it asks and how, and what it makes of the answer.
class TestRxMapGraphicsListDescription : public TestBase {
    Q_OBJECT

private Q_SLOTS:
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
    void theFactorIsTakenBeforeMapsAreRead();
    void ratesThatDoNotConvertGiveNothing();
    void groupNamesArePassedAsLatin1();
    void theTextIsTranslatedInTheListsContext();
    void aMapMayReplaceTheListWhileItAnswers();
    void withoutABrokerThereIsAListThatSaysNothing();

private:
    /// A map of product 1 that answers every query with `rates`.
    static DbGroupRxMap *addAnsweringMap(MapHost &host, const QString &name, const QList<float> &rates, bool valid);
};

DbGroupRxMap *TestRxMapGraphicsListDescription::addAnsweringMap(MapHost &host, const QString &name,
                                                                const QList<float> &rates, bool valid)
{
    DbGroupRxMap *group = host.addMap(name, {1});
    connect(group, &DbGroupRxMap::queryRatesAtXYZChanged, group, [group, rates, valid] {
        group->setRatesAtXYZ(rates);
        group->setRatesAtXYZValid(valid);
    });
    return group;
}

void TestRxMapGraphicsListDescription::aValidAnswerGivesTheRateLine()
{
    MapHost host;
    host.activateProduct(1);
    addAnsweringMap(host, QStringLiteral("field"), {12.5F}, true);
    RxMapGraphicsList list(&host.broker, nullptr);
    QCOMPARE(list.getPointDescription({1, 2, 3}), QStringLiteral("Rx Rate: 12.50\n\n"));
}

void TestRxMapGraphicsListDescription::theRateIsWidenedBeforeItIsMultiplied()
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

void TestRxMapGraphicsListDescription::theFactorComesFromTheActiveProduct_data()
{
    QTest::addColumn<int>("areaUnitSystem");
    QTest::addColumn<QString>("text");
    // 1 kg/ha = 1 lb / 0.45359237 kg × 0.40468564224 ha/ac; turf: × 0.009290304 ha per 1000 ft².
    QTest::newRow("kg/ha") << 1 << "Rx Rate: 200.00\n\n";
    QTest::newRow("lb/ac") << 0 << "Rx Rate: 178.44\n\n";
    QTest::newRow("lb/1000 ft2") << 2 << "Rx Rate: 4.10\n\n";
}

void TestRxMapGraphicsListDescription::theFactorComesFromTheActiveProduct()
{
    QFETCH(int, areaUnitSystem);
    MapHost host;
    host.activateProduct(1);
    host.units->setAreaUnitSystem(areaUnitSystem);
    addAnsweringMap(host, QStringLiteral("field"), {200.0F}, true);
    RxMapGraphicsList list(&host.broker, nullptr);
    QTEST(list.getPointDescription({}), "text");
}

void TestRxMapGraphicsListDescription::withoutProductInfoTheRateIsUnconverted()
{
    MapHost host;
    host.broker.removeGroup(MapHost::productGroup(1));
    host.activateProduct(1);
    host.units->setAreaUnitSystem(0);
    addAnsweringMap(host, QStringLiteral("field"), {200.0F}, true);
    RxMapGraphicsList list(&host.broker, nullptr);
    QCOMPARE(list.getPointDescription({}), QStringLiteral("Rx Rate: 200.00\n\n"));
}

void TestRxMapGraphicsListDescription::onlyTheFirstMapOfTheProductIsAsked()
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

void TestRxMapGraphicsListDescription::anInvalidAnswerEndsTheSearch()
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

void TestRxMapGraphicsListDescription::aRateListTooShortForThePositionGivesNothing()
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

void TestRxMapGraphicsListDescription::mapsWithoutTheProductArePassedOver()
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

void TestRxMapGraphicsListDescription::withoutAnActiveAamTheTextIsEmpty()
{
    MapHost host;
    DbGroupRxMap *group = addAnsweringMap(host, QStringLiteral("field"), {3.0F}, true);
    RxMapGraphicsList list(&host.broker, nullptr);
    int asked = 0;
    connect(group, &DbGroupRxMap::queryRatesAtXYZChanged, this, [&asked] { ++asked; });
    QVERIFY(list.getPointDescription({}).isEmpty());
    QCOMPARE(asked, 0);
}

void TestRxMapGraphicsListDescription::withoutMapsTheTextIsEmpty()
{
    MapHost host;
    host.activateProduct(1);
    RxMapGraphicsList list(&host.broker, nullptr);
    QVERIFY(list.getPointDescription({}).isEmpty());
}

void TestRxMapGraphicsListDescription::thePointIsWidenedAndWrittenBeforeTheAnswerIsRead()
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

void TestRxMapGraphicsListDescription::theFactorIsTakenBeforeMapsAreRead()
{
    MapHost host;
    host.activateProduct(1);
    DbGroupRxMap *group = addAnsweringMap(host, QStringLiteral("field"), {3.0F}, true);
    const auto changeUnits = [](void *argument) {
        static_cast<DbGroupQmlUnitsConverter *>(argument)->setWeightRateToDisplay(100.0);
    };
    QVERIFY(group->setBeforeReadHook("rateCalMappings", changeUnits, host.units));
    RxMapGraphicsList list(&host.broker, nullptr);
    QCOMPARE(list.getPointDescription({}), QStringLiteral("Rx Rate: 3.00\n\n"));
}

void TestRxMapGraphicsListDescription::ratesThatDoNotConvertGiveNothing()
{
    MapHost host;
    host.activateProduct(1);
    auto *group = new ForeignMapGroup(QStringLiteral("rxMap.foreign"));
    group->setRateCalMappings({mappingFor(MapHost::productGroup(1))});
    group->setRatesAtXYZ(QStringLiteral("7"));
    group->setRatesAtXYZValid(QStringLiteral("true"));
    host.broker.publishGroup(group);
    RxMapGraphicsList list(&host.broker, nullptr);
    // A text is not a list of rates, so there is no entry at the mapping's position.
    QVERIFY(list.getPointDescription({}).isEmpty());
}

void TestRxMapGraphicsListDescription::groupNamesArePassedAsLatin1()
{
    MapHost host;
    host.activateProduct(1);
    addAnsweringMap(host, QString::fromUtf8("Köln"), {3.0F}, true);
    RxMapGraphicsList list(&host.broker, nullptr);
    QCOMPARE(list.getPointDescription({}), QStringLiteral("Rx Rate: 3.00\n\n"));
}

void TestRxMapGraphicsListDescription::theTextIsTranslatedInTheListsContext()
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

void TestRxMapGraphicsListDescription::aMapMayReplaceTheListWhileItAnswers()
{
    MapHost host;
    host.activateProduct(1);
    DbGroupRxMap *group = addAnsweringMap(host, QStringLiteral("field"), {3.0F}, true);
    QPointer<RxMapGraphicsList> list = new RxMapGraphicsList(&host.broker, nullptr);
    connect(group, &DbGroupRxMap::queryRatesAtXYZChanged, this, [&list] { delete list; });
    QCOMPARE(list->getPointDescription({}), QStringLiteral("Rx Rate: 3.00\n\n"));
    QVERIFY(list.isNull());
}

void TestRxMapGraphicsListDescription::withoutABrokerThereIsAListThatSaysNothing()
{
    RxMapGraphicsList list(nullptr, nullptr);
    QVERIFY(list.getPointDescription({}).isEmpty());
    QCOMPARE(list.drawables()->size(), 1);
}

RXMAP_TEST(TestRxMapGraphicsListDescription, Widgets)
#include "tst_rxmapgraphicslist_description.moc"
