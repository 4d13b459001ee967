#include "maphost.h"
#include "testbase.h"
#include "uipluginrxmap.h"

#include <QTranslator>

/// The entry object: its catalogue, and what it tells the host about itself.
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
    void deletingTheSecondBaseDeletesThePlugin();
};

namespace {

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
    QCOMPARE(plugin.qt_metacast("BasePlugInProvides"), nullptr);
    QCOMPARE(plugin.qt_metacast("QObject"), static_cast<void *>(static_cast<QObject *>(&plugin)));
    QCOMPARE(qobject_cast<UiPluginInterface *>(static_cast<QObject *>(&plugin)), &plugin);
    const QMetaObject &meta = *plugin.metaObject();
    QCOMPARE(meta.methodCount(), meta.methodOffset());
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
}

void TestUiPluginRxMap::theSecondBaseReachesTheSameObject()
{
    class Closing : public UiPluginRxMap {
    public:
        void close() override { ++closed; }

        int closed = 0;
    } plugin;
    using Version = QPair<unsigned long, unsigned long>;
    BasePlugInProvides &provides = plugin;
    QCOMPARE(provides.getPluginName(), QStringLiteral("UiPluginRxMap"));
    Version version(99, 99);
    provides.getPluginVersion(version.first, version.second);
    QCOMPARE(version, Version(1, 0));
    version = Version(99, 99);
    provides.getInterfaceVersion(version.first, version.second);
    QCOMPARE(version, Version(4, 0));
    version = Version(99, 99);
    provides.getDbVersion(version.first, version.second);
    QCOMPARE(version, Version(1, 0));
    provides.close();
    QCOMPARE(plugin.closed, 1);
}

void TestUiPluginRxMap::deletingTheSecondBaseDeletesThePlugin()
{
    MapHost host;
    auto *plugin = new UiPluginRxMap;
    const QPointer<QObject> watch(plugin);
    const QPointer<UiGraphicsList> list = plugin->createUiGraphicsList(listName, &host.broker);
    QVERIFY(!list.isNull());
    delete static_cast<BasePlugInProvides *>(plugin);
    QVERIFY(watch.isNull());
    QVERIFY(list.isNull());
}

RXMAP_TEST(TestUiPluginRxMap, Widgets)
#include "tst_uipluginrxmap.moc"
