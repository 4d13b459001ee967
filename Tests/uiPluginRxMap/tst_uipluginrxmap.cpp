#include "maphost.h"
#include "paths.h"
#include "rxmapgraphicslist.h"
#include "rxmapwidget.h"
#include "testbase.h"
#include "uipluginrxmap.h"

#include "Framework/dbgroupjob.h"

#include <QTranslator>

/// The entry object: its catalogue and its factories.
class TestUiPluginRxMap : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void theCatalogueIsComplete();
    void featureNamesComeInKeyOrder();
    void catalogueTextsAreTranslatedInTheirContexts();
    void operationsThatAreNotOverriddenAnswerTheirDefaults();
    void previewNamesFollowImageNames();
    void theMetaObjectAnswersItsNameAndTheInterface();
    void theSecondBaseReachesTheSameObject();

    void aSecondGraphicsListReplacesTheFirst();
    void theFirstGraphicsListIsGoneBeforeTheSecondIsMade();
    void anyOtherNameDeletesTheGraphicsList_data();
    void anyOtherNameDeletesTheGraphicsList();
    void theHostCanDeleteTheGraphicsListFirst();
    void destructionDeletesTheGraphicsListAndNoWidget();

    void twoWidgetsLiveAndTheMapHoldsTheSecond();
    void unknownWidgetNamesGiveNull_data();
    void unknownWidgetNamesGiveNull();
    void qmlWidgetsAreNeverMade();
    void widgetsTakeImagesFromTheSecondDirectory();
};

namespace {

/// Opens the host's maps of what the plug-in made.
class OpenPlugin : public UiPluginRxMap {
public:
    using UiPluginBase::graphicsLists;
    using UiPluginBase::graphicsWidgets;
};

class ContextTranslator : public QTranslator {
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        return QString::fromLatin1(context) + QLatin1Char('|') + QString::fromLatin1(source);
    }
};

const QString listName = QStringLiteral("RxMapGraphicsList");
const QString widgetName = QStringLiteral("RxMapWidget");

} // namespace

void TestUiPluginRxMap::theCatalogueIsComplete()
{
    using Names = QMap<QString, QString>;
    UiPluginRxMap plugin;
    QCOMPARE(plugin.getGuidancePageWidgetNames(), QStringList{widgetName});
    QCOMPARE(plugin.getGraphicsListNames(), QStringList{listName});
    QVERIFY(plugin.getConfigPanelWidgetNames().isEmpty());
    QCOMPARE(plugin.getGuidancePageWidgetLibraryCategories(), (Names{{widgetName, "Product Control"}}));
    QCOMPARE(plugin.getGuidancePageWidgetLibraryDisplayNames(), (Names{{widgetName, "Rx Map Settings"}}));
    QCOMPARE(plugin.getGuidancePageWidgetLibraryImageNames(), (Names{{widgetName, "RxOptionsLibrary_11_01.png"}}));
    QCOMPARE(plugin.getPluginName(), QStringLiteral("UiPluginRxMap"));
    unsigned long major = 0;
    unsigned long minor = 99;
    plugin.getPluginVersion(major, minor);
    QCOMPARE(major, 1UL);
    QCOMPARE(minor, 0UL);
}

void TestUiPluginRxMap::featureNamesComeInKeyOrder()
{
    UiPluginRxMap plugin;
    QCOMPARE(plugin.getFeatureNames().keys(), (QStringList{"multiVra", "singleVra"}));
    QCOMPARE(plugin.getFeatureNames().values(), (QStringList{"Multi VRA", "Single VRA"}));
}

void TestUiPluginRxMap::catalogueTextsAreTranslatedInTheirContexts()
{
    ContextTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    UiPluginRxMap plugin;
    QCOMPARE(plugin.getGuidancePageWidgetLibraryCategories().value(widgetName),
             QStringLiteral("RxMapWidget|Product Control"));
    QCOMPARE(plugin.getGuidancePageWidgetLibraryDisplayNames().value(widgetName),
             QStringLiteral("RxMapWidget|Rx Map Settings"));
    QCOMPARE(plugin.getGuidancePageWidgetLibraryImageNames().value(widgetName),
             QStringLiteral("RxOptionsLibrary_11_01.png"));
    QCOMPARE(plugin.getFeatureNames().value(QStringLiteral("singleVra")), QStringLiteral("UiPluginRxMap|Single VRA"));
    QCOMPARE(plugin.getFeatureNames().value(QStringLiteral("multiVra")), QStringLiteral("UiPluginRxMap|Multi VRA"));
    QCoreApplication::removeTranslator(&translator);
}

void TestUiPluginRxMap::operationsThatAreNotOverriddenAnswerTheirDefaults()
{
    UiPluginRxMap plugin;
    UiPluginInterface &host = plugin;
    QVERIFY(host.getRequiredGroupNames().isEmpty());
    QCOMPARE(host.getSettingsObject(), nullptr);
    QVERIFY(!host.hasSettings());
    for (const QString &text : {host.getSettingsTitle(), host.getHelpTopic(), host.getDescription()})
        QVERIFY(text.isEmpty() && !text.isNull());
    QVERIFY(host.getAlarmNames().isEmpty());
    QVERIFY(host.getShortcutNames().isEmpty());
    QVERIFY(host.getShortcutSettings().isEmpty());
    QVERIFY(host.getIcon().isNull());
    QVERIFY(host.getFeatureDescriptions().isEmpty());
    QVERIFY(host.getFeatureImageNames().isEmpty());
    host.languageChanged();
    host.guidancePageChanged();
    host.jobStarted();
    host.jobStopped();
    host.screenLocked();
    host.screenUnlocked();
}

void TestUiPluginRxMap::previewNamesFollowImageNames()
{
    UiPluginRxMap plugin;
    QCOMPARE(plugin.getGuidancePageWidgetLibraryPreviewNames(), plugin.getGuidancePageWidgetLibraryImageNames());
    QVERIFY(!plugin.getGuidancePageWidgetLibraryPreviewNames().isEmpty());
}

void TestUiPluginRxMap::theMetaObjectAnswersItsNameAndTheInterface()
{
    UiPluginRxMap plugin;
    QCOMPARE(plugin.qt_metacast("UiPluginRxMap"), static_cast<void *>(&plugin));
    QCOMPARE(plugin.qt_metacast("com.orvik.UiPluginInterface/4"),
             static_cast<void *>(static_cast<UiPluginInterface *>(&plugin)));
    QCOMPARE(plugin.qt_metacast("com.orvik.UiPluginInterface/4 "), nullptr);
    QCOMPARE(plugin.qt_metacast("com.orvik.UiPluginInterface"), nullptr);
    QCOMPARE(plugin.qt_metacast("UiPluginBase"), nullptr);
    QCOMPARE(plugin.qt_metacast("QObject"), static_cast<void *>(static_cast<QObject *>(&plugin)));
    QCOMPARE(qobject_cast<UiPluginInterface *>(static_cast<QObject *>(&plugin)), &plugin);
    const QMetaObject &meta = *plugin.metaObject();
    QCOMPARE(meta.methodCount(), meta.methodOffset());
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
}

void TestUiPluginRxMap::theSecondBaseReachesTheSameObject()
{
    UiPluginRxMap plugin;
    BasePlugInProvides &provides = plugin;
    QCOMPARE(provides.getPluginName(), QStringLiteral("UiPluginRxMap"));
    unsigned long major = 0;
    unsigned long minor = 0;
    provides.getPluginVersion(major, minor);
    QCOMPARE(major, 1UL);
    provides.getInterfaceVersion(major, minor);
    QCOMPARE(major, 4UL);
}

void TestUiPluginRxMap::aSecondGraphicsListReplacesTheFirst()
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

void TestUiPluginRxMap::theFirstGraphicsListIsGoneBeforeTheSecondIsMade()
{
    struct Look {
        QPointer<UiGraphicsList> first;
        QList<bool> wasGone;
    } look;
    MapHost host;
    UiPluginRxMap plugin;
    look.first = plugin.createUiGraphicsList(listName, &host.broker);
    QVERIFY(!look.first.isNull());
    // A new list reads the active map while it is made.
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

void TestUiPluginRxMap::anyOtherNameDeletesTheGraphicsList_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("other") << "Other";
    QTest::newRow("letter case") << "rxmapgraphicslist";
    QTest::newRow("empty") << "";
}

void TestUiPluginRxMap::anyOtherNameDeletesTheGraphicsList()
{
    QFETCH(QString, name);
    MapHost host;
    OpenPlugin plugin;
    const QPointer<UiGraphicsList> first = plugin.createUiGraphicsList(listName, &host.broker);
    QVERIFY(plugin.createUiGraphicsList(name, &host.broker).isNull());
    QVERIFY(first.isNull());
    QCOMPARE(plugin.graphicsLists().keys(), QStringList{listName});
    QVERIFY(plugin.graphicsLists().value(listName).isNull());
}

void TestUiPluginRxMap::theHostCanDeleteTheGraphicsListFirst()
{
    MapHost host;
    UiPluginRxMap plugin;
    const QPointer<UiGraphicsList> first = plugin.createUiGraphicsList(listName, &host.broker);
    plugin.deleteGraphicsList(first);
    QVERIFY(first.isNull());
    QVERIFY(!plugin.createUiGraphicsList(listName, &host.broker).isNull());
}

void TestUiPluginRxMap::destructionDeletesTheGraphicsListAndNoWidget()
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

void TestUiPluginRxMap::twoWidgetsLiveAndTheMapHoldsTheSecond()
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

void TestUiPluginRxMap::unknownWidgetNamesGiveNull_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("letter case") << "rxmapwidget";
    QTest::newRow("other") << "Other";
    QTest::newRow("empty") << "";
}

void TestUiPluginRxMap::unknownWidgetNamesGiveNull()
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
}

void TestUiPluginRxMap::qmlWidgetsAreNeverMade()
{
    MapHost host;
    UiPluginRxMap plugin;
    for (const QString &name : {widgetName, listName, QString()})
        QVERIFY(plugin.createUiQmlWidget(name, {}, nullptr, &host.broker).isNull());
}

void TestUiPluginRxMap::widgetsTakeImagesFromTheSecondDirectory()
{
    MapHost host;
    UiPluginRxMap plugin;
    plugin.init(&host.broker, QDir(QStringLiteral("/nowhere")), QDir(buildPath("Simulator/Resources/images")));
    const QPointer<UiGWidget> widget = plugin.createUiGWidget(widgetName, 0, 0, {}, &host.broker);
    QVERIFY(widget->size().width() > 40.0);
    delete widget;
}

QTEST_MAIN(TestUiPluginRxMap)
#include "tst_uipluginrxmap.moc"
