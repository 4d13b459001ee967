#include "maphost.h"
#include "paths.h"
#include "rxmap3d.h"
#include "rxmapgraphicslist.h"
#include "rxmapwidget.h"
#include "testbase.h"
#include "uipluginrxmap.h"

#include "Framework/dbgroupjob.h"
#include "Framework/orvikbuttonqgw.h"

#include <functional>

/// What the entry object makes for the host, and what happens to it.
class TestUiPluginRxMapFactories : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void aSecondGraphicsListReplacesTheFirst();
    void theFirstGraphicsListIsGoneBeforeTheSecondIsMade();
    void anyOtherNameDeletesTheGraphicsList_data();
    void anyOtherNameDeletesTheGraphicsList();
    void theHostCanDeleteTheGraphicsListFirst();
    void destructionDeletesTheGraphicsListAndNoWidget();
    void noListIsMadeWhileOneGoes();
    void aListAskedForWhileANewOneIsMadeIsReplaced();
    void thePluginMayGoWhileItMakesAList_data();
    void thePluginMayGoWhileItMakesAList();
    void aFreshPluginHasNoListOfAnUnknownName();
    void theHostCanDeleteAllThatThePluginMade();
    void twoWidgetsLiveAndTheMapHoldsTheSecond();
    void unknownWidgetNamesGiveNull_data();
    void unknownWidgetNamesGiveNull();
    void qmlWidgetsAreNeverMade();
    void widgetsTakeImagesFromTheSecondDirectory();
    void aWidgetAsksTheBrokerThatItsMakingNames();
};

namespace {

/// Makes the host's maps of what the plug-in made accessible.
class OpenPlugin : public UiPluginRxMap {
public:
    using UiPluginBase::graphicsLists;
    using UiPluginBase::graphicsWidgets;
};

const QString listName = QStringLiteral("RxMapGraphicsList");
const QString widgetName = QStringLiteral("RxMapWidget");

} // namespace

void TestUiPluginRxMapFactories::aSecondGraphicsListReplacesTheFirst()
{
    MapHost host;
    OpenPlugin plugin;
    const QPointer<UiGraphicsList> first = plugin.createUiGraphicsList(listName, &host.broker);
    QVERIFY(qobject_cast<RxMapGraphicsList *>(first));
    QCOMPARE(first->parent(), nullptr);
    QCOMPARE(plugin.graphicsLists().value(listName), first);
    const QPointer<UiGraphicsList> second = plugin.createUiGraphicsList(listName, &host.broker);
    QVERIFY(first.isNull());
    QVERIFY(!second.isNull());
    QCOMPARE(plugin.graphicsLists().size(), 1);
    QCOMPARE(plugin.graphicsLists().value(listName), second);
}

void TestUiPluginRxMapFactories::theFirstGraphicsListIsGoneBeforeTheSecondIsMade()
{
    struct Look {
        QPointer<UiGraphicsList> first;
        QList<bool> wasGone;
    } look;
    MapHost host;
    UiPluginRxMap plugin;
    look.first = plugin.createUiGraphicsList(listName, &host.broker);
    QVERIFY(!look.first.isNull());
    // A new list reads the active map while it is being made.
    const auto note = [](void *argument) {
        auto *noted = static_cast<Look *>(argument);
        noted->wasGone.append(noted->first.isNull());
    };
    QVERIFY(host.job->setBeforeReadHook("activeAAMGroupName", note, &look));
    const QPointer<UiGraphicsList> second = plugin.createUiGraphicsList(listName, &host.broker);
    QVERIFY(host.job->setBeforeReadHook("activeAAMGroupName", nullptr, nullptr));
    QVERIFY(!second.isNull());
    QVERIFY(!look.wasGone.isEmpty());
    QVERIFY(!look.wasGone.contains(false));
}

void TestUiPluginRxMapFactories::anyOtherNameDeletesTheGraphicsList_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("other") << "Other";
    QTest::newRow("letter case") << "rxmapgraphicslist";
    QTest::newRow("empty") << "";
}

void TestUiPluginRxMapFactories::anyOtherNameDeletesTheGraphicsList()
{
    QFETCH(QString, name);
    MapHost host;
    OpenPlugin plugin;
    const QPointer<UiGraphicsList> first = plugin.createUiGraphicsList(listName, &host.broker);
    QVERIFY(plugin.createUiGraphicsList(name, &host.broker).isNull());
    QVERIFY(first.isNull());
    QCOMPARE(plugin.graphicsLists().keys(), QStringList{listName});
    QVERIFY(plugin.graphicsLists().value(listName).isNull());
    QCOMPARE(messages().debugLines(), QStringList());
}

void TestUiPluginRxMapFactories::theHostCanDeleteTheGraphicsListFirst()
{
    MapHost host;
    UiPluginRxMap plugin;
    const QPointer<UiGraphicsList> first = plugin.createUiGraphicsList(listName, &host.broker);
    plugin.deleteGraphicsList(first);
    QVERIFY(first.isNull());
    QVERIFY(!plugin.createUiGraphicsList(listName, &host.broker).isNull());
}

void TestUiPluginRxMapFactories::destructionDeletesTheGraphicsListAndNoWidget()
{
    MapHost host;
    auto *plugin = new UiPluginRxMap;
    plugin->init(&host.broker, QDir(), QDir());
    const QPointer<UiGraphicsList> list = plugin->createUiGraphicsList(listName, &host.broker);
    const QPointer<UiGWidget> widget = plugin->createUiGWidget(widgetName, 0, 0, {}, &host.broker);
    delete plugin;
    QVERIFY(list.isNull());
    QVERIFY(!widget.isNull());
    delete widget;
}

void TestUiPluginRxMapFactories::noListIsMadeWhileOneGoes()
{
    MapHost host;
    auto *plugin = new OpenPlugin;
    QVector<QPointer<UiGraphicsList>> given;
    // A host that asks for a list whenever its list is deleted; it gives up if that would never end.
    const std::function<void()> ask = [&] {
        if (given.size() == 100)
            return;
        given.append(plugin->createUiGraphicsList(listName, &host.broker));
        if (given.constLast())
            connect(given.constLast().data(), &QObject::destroyed, this, ask);
    };
    ask();
    QVERIFY(given.constLast());
    ask();
    QCOMPARE(given.size(), 3);
    QVERIFY(given.at(0).isNull() && given.at(1).isNull());
    const QPointer<UiGraphicsList> latest = given.at(2);
    QVERIFY(latest);
    QCOMPARE(plugin->graphicsLists().value(listName), latest);
    delete plugin;
    QCOMPARE(given.size(), 4);
    QVERIFY(latest.isNull() && given.at(3).isNull());
}

void TestUiPluginRxMapFactories::aListAskedForWhileANewOneIsMadeIsReplaced()
{
    struct Asking {
        OpenPlugin plugin;
        MapHost host;
        bool isDue = true;
        QPointer<UiGraphicsList> inner;
    } asking;
    const auto askOnce = [](void *argument) {
        auto &asked = *static_cast<Asking *>(argument);
        if (!asked.isDue)
            return;
        asked.isDue = false;
        asked.inner = asked.plugin.createUiGraphicsList(listName, &asked.host.broker);
    };
    QVERIFY(asking.host.job->setBeforeReadHook("activeAAMGroupName", askOnce, &asking));
    const QPointer<UiGraphicsList> outer = asking.plugin.createUiGraphicsList(listName, &asking.host.broker);
    QVERIFY(asking.host.job->setBeforeReadHook("activeAAMGroupName", nullptr, nullptr));
    QVERIFY(!asking.isDue);
    QVERIFY(asking.inner.isNull());
    QVERIFY(!outer.isNull());
    QCOMPARE(asking.plugin.graphicsLists().value(listName), outer);
    delete outer;
}

void TestUiPluginRxMapFactories::thePluginMayGoWhileItMakesAList_data()
{
    QTest::addColumn<QString>("ending");
    QTest::newRow("with the old list's map") << "map";
    QTest::newRow("with the old list") << "list";
    QTest::newRow("while the new one reads") << "";
}

void TestUiPluginRxMapFactories::thePluginMayGoWhileItMakesAList()
{
    QFETCH(QString, ending);
    MapHost host;
    QPointer<UiPluginRxMap> plugin = new UiPluginRxMap;
    const auto end = [](void *ended) { delete *static_cast<QPointer<UiPluginRxMap> *>(ended); };
    if (ending.isEmpty()) {
        QVERIFY(host.job->setBeforeReadHook("activeAAMGroupName", end, &plugin));
    } else {
        const QPointer<UiGraphicsList> list = plugin->createUiGraphicsList(listName, &host.broker);
        const QObject *ended = list;
        if (ending == QLatin1String("map"))
            ended = list->findChild<RxMap3D *>();
        connect(ended, &QObject::destroyed, this, [&] { end(&plugin); });
    }
    QVERIFY(plugin->createUiGraphicsList(listName, &host.broker).isNull());
    QVERIFY(plugin.isNull());
}

void TestUiPluginRxMapFactories::aFreshPluginHasNoListOfAnUnknownName()
{
    MapHost host;
    OpenPlugin plugin;
    QVERIFY(plugin.createUiGraphicsList(QStringLiteral("Other"), &host.broker).isNull());
    QVERIFY(plugin.graphicsLists().isEmpty());
}

void TestUiPluginRxMapFactories::theHostCanDeleteAllThatThePluginMade()
{
    MapHost host;
    UiPluginRxMap plugin;
    plugin.init(&host.broker, QDir(), QDir());
    const QPointer<UiGraphicsList> list = plugin.createUiGraphicsList(listName, &host.broker);
    const QPointer<UiGWidget> widget = plugin.createUiGWidget(widgetName, 0, 0, {}, &host.broker);
    QVERIFY(!list.isNull() && !widget.isNull());
    plugin.deleteAllWidgets();
    QVERIFY(list.isNull());
    QVERIFY(widget.isNull());
}

void TestUiPluginRxMapFactories::twoWidgetsLiveAndTheMapHoldsTheSecond()
{
    MapHost host;
    OpenPlugin plugin;
    plugin.init(&host.broker, QDir(), QDir());
    const QPointer<UiGWidget> first = plugin.createUiGWidget(widgetName, 1, 2, {3, 4}, &host.broker);
    const QPointer<UiGWidget> second = plugin.createUiGWidget(widgetName, 5, 6, {7, 8}, &host.broker);
    QVERIFY(!first.isNull() && !second.isNull());
    QVERIFY(qobject_cast<RxMapWidget *>(first));
    QCOMPARE(plugin.graphicsWidgets().size(), 1);
    QCOMPARE(plugin.graphicsWidgets().value(widgetName), second);
    QCOMPARE(first->gridPosition(), QPoint(1, 2));
    QCOMPARE(first->pos(), QPointF(3, 4));
    QCOMPARE(first->pluginName(), QStringLiteral("UiPluginRxMap"));
    QCOMPARE(first->widgetName(), widgetName);
    delete first;
    delete second;
}

void TestUiPluginRxMapFactories::unknownWidgetNamesGiveNull_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("letter case") << "rxmapwidget";
    QTest::newRow("other") << "Other";
    QTest::newRow("empty") << "";
}

void TestUiPluginRxMapFactories::unknownWidgetNamesGiveNull()
{
    QFETCH(QString, name);
    MapHost host;
    OpenPlugin plugin;
    plugin.init(&host.broker, QDir(), QDir());
    const QScopedPointer<UiGWidget> before(plugin.createUiGWidget(widgetName, 0, 0, {}, &host.broker).data());
    QVERIFY(plugin.createUiGWidget(name, 0, 0, {}, &host.broker).isNull());
    QCOMPARE(plugin.graphicsWidgets().keys(), QStringList{widgetName});
    QCOMPARE(plugin.graphicsWidgets().value(widgetName).data(), before.data());
    QVERIFY(before);
    QCOMPARE(messages().debugLines(), QStringList());
}

void TestUiPluginRxMapFactories::qmlWidgetsAreNeverMade()
{
    MapHost host;
    UiPluginRxMap plugin;
    for (const QString &name : {widgetName, listName, QString()})
        QVERIFY(plugin.createUiQmlWidget(name, {}, nullptr, &host.broker).isNull());
}

void TestUiPluginRxMapFactories::widgetsTakeImagesFromTheSecondDirectory()
{
    MapHost host;
    UiPluginRxMap plugin;
    plugin.init(&host.broker, QDir(QStringLiteral("/nowhere")), QDir(buildPath("Simulator/Resources/images")));
    const QPointer<UiGWidget> widget = plugin.createUiGWidget(widgetName, 0, 0, {}, &host.broker);
    QVERIFY(widget->size().width() > 40.0);
    delete widget;
}

void TestUiPluginRxMapFactories::aWidgetAsksTheBrokerThatItsMakingNames()
{
    DataBroker empty;
    MapHost host;
    host.addMap(QStringLiteral("field"), {1});
    UiPluginRxMap plugin;
    plugin.init(&empty, QDir(), QDir());
    const QScopedPointer<UiGWidget> widget(plugin.createUiGWidget(widgetName, 0, 0, {}, &host.broker).data());
    QCOMPARE(widget->childItems().size(), 1);
    const auto *button = qobject_cast<OrvikButtonQgw *>(widget->childItems().constFirst()->toGraphicsObject());
    QVERIFY(button);
    QCOMPARE(button->currentImage(), 0);
}

RXMAP_TEST(TestUiPluginRxMapFactories, Widgets)
#include "tst_uipluginrxmap_factories.moc"
