#include "leastplugin.h"
#include "testbase.h"

#include "Framework/databroker.h"

namespace {

class PointList : public UiGraphicsList {
public:
    using UiGraphicsList::UiGraphicsList;
    QString getPointDescription(QVector3D) override { return {}; }
    void init() override { }
};

UiGWidget *newWidget()
{
    return new UiGWidget(QStringLiteral("UiPlugin"), QStringLiteral("Widget"), 0, 0, QDir(), QPointF(), nullptr, false);
}

/// Makes what the base keeps accessible.
class SamplePlugin : public LeastPlugin {
public:
    using UiPluginBase::dataBroker;
    using UiPluginBase::graphicsLists;
    using UiPluginBase::graphicsWidgets;
    using UiPluginBase::imageDir;
    using UiPluginBase::pluginDir;

    QMap<QString, QString> getGuidancePageWidgetLibraryImageNames() override
    {
        return {{QStringLiteral("Widget"), QStringLiteral("image.png")}};
    }
};

} // namespace

class TestUiPluginBase : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void itKeepsWhatInitIsGiven();
    void deletingAllReachesWhatIsStillAlive();
    void singleObjectsAreDeletedOnRequest();
    void whatThePluginMadeOutlivesIt();
    void unansweredOperationsHaveEmptyDefaults();
    void previewImagesAreTheLibraryImages();
    void bothBasesReachTheSameObject();
    void interfaceAndDbVersionsAreGiven();
};

void TestUiPluginBase::itKeepsWhatInitIsGiven()
{
    SamplePlugin plugin;
    QCOMPARE(plugin.dataBroker(), nullptr);
    DataBroker broker;
    plugin.init(&broker, QDir(QStringLiteral("/plugins")), QDir(QStringLiteral("/images")));
    QCOMPARE(plugin.dataBroker(), &broker);
    QCOMPARE(plugin.pluginDir(), QDir(QStringLiteral("/plugins")));
    QCOMPARE(plugin.imageDir(), QDir(QStringLiteral("/images")));
}

void TestUiPluginBase::deletingAllReachesWhatIsStillAlive()
{
    SamplePlugin plugin;
    const QPointer<UiGraphicsList> list = new PointList(nullptr);
    const QPointer<UiGWidget> widget = newWidget();
    const QPointer<UiGWidget> gone = newWidget();
    plugin.graphicsLists().insert(QStringLiteral("List"), list);
    plugin.graphicsWidgets().insert(QStringLiteral("Widget"), widget);
    plugin.graphicsWidgets().insert(QStringLiteral("Gone"), gone);
    delete gone;

    plugin.deleteAllWidgets();

    QVERIFY(list.isNull());
    QVERIFY(widget.isNull());
    QVERIFY(plugin.graphicsLists().value(QStringLiteral("List")).isNull());
    QVERIFY(plugin.graphicsWidgets().contains(QStringLiteral("Widget")));
    plugin.deleteAllWidgets();
}

void TestUiPluginBase::singleObjectsAreDeletedOnRequest()
{
    SamplePlugin plugin;
    const QPointer<UiGraphicsList> list = new PointList(nullptr);
    const QPointer<UiGWidget> widget = newWidget();
    const QPointer<UiQmlWidget> qmlWidget = new UiQmlWidget;
    plugin.deleteGraphicsList(list);
    plugin.deleteGWidget(widget);
    plugin.deleteQmlWidget(qmlWidget);
    QVERIFY(list.isNull());
    QVERIFY(widget.isNull());
    QVERIFY(qmlWidget.isNull());
    plugin.deleteGraphicsList(list);
    plugin.deleteGWidget(nullptr);
    plugin.deleteQmlWidget(nullptr);
}

void TestUiPluginBase::whatThePluginMadeOutlivesIt()
{
    const QPointer<UiGWidget> widget = newWidget();
    {
        SamplePlugin plugin;
        plugin.graphicsWidgets().insert(QStringLiteral("Widget"), widget);
        plugin.close();
    }
    QVERIFY(!widget.isNull());
    delete widget;
}

void TestUiPluginBase::unansweredOperationsHaveEmptyDefaults()
{
    SamplePlugin plugin;
    plugin.setView(nullptr);
    plugin.languageChanged();
    plugin.guidancePageChanged();
    plugin.jobStarted();
    plugin.jobStopped();
    plugin.screenLocked();
    plugin.screenUnlocked();
    QCOMPARE(plugin.getRequiredGroupNames(), QStringList());
    QCOMPARE(plugin.getSettingsObject(), nullptr);
    QCOMPARE(plugin.hasSettings(), false);
    for (const QString &text : {plugin.getSettingsTitle(), plugin.getHelpTopic(), plugin.getDescription()}) {
        QVERIFY(text.isEmpty());
        QVERIFY(!text.isNull());
    }
    QCOMPARE(plugin.getAlarmNames(), QStringList());
    QCOMPARE(plugin.getShortcutNames(), QStringList());
    QCOMPARE(plugin.getShortcutSettings(), QList<QVariant>());
    QVERIFY(plugin.getIcon().isNull());
    QVERIFY(plugin.getFeatureDescriptions().isEmpty());
    QVERIFY(plugin.getFeatureImageNames().isEmpty());
}

void TestUiPluginBase::previewImagesAreTheLibraryImages()
{
    SamplePlugin plugin;
    QCOMPARE(plugin.getGuidancePageWidgetLibraryPreviewNames(), plugin.getGuidancePageWidgetLibraryImageNames());
    QCOMPARE(plugin.getGuidancePageWidgetLibraryPreviewNames().size(), 1);
}

void TestUiPluginBase::bothBasesReachTheSameObject()
{
    SamplePlugin plugin;
    UiPluginInterface &asInterface = plugin;
    BasePlugInProvides &asProvider = plugin;
    QCOMPARE(asInterface.getPluginName(), QStringLiteral("LeastPlugin"));
    QCOMPARE(asProvider.getPluginName(), QStringLiteral("LeastPlugin"));
    unsigned long major = 0;
    unsigned long minor = 9;
    asProvider.getPluginVersion(major, minor);
    QCOMPARE(major, 1ul);
    QCOMPARE(minor, 0ul);
    QCOMPARE(dynamic_cast<UiPluginInterface *>(&asProvider), &asInterface);
}

void TestUiPluginBase::interfaceAndDbVersionsAreGiven()
{
    SamplePlugin plugin;
    unsigned long major = 0;
    unsigned long minor = 9;
    plugin.getInterfaceVersion(major, minor);
    // The major number is that of the interface identifier.
    QVERIFY(QByteArray(qobject_interface_iid<UiPluginInterface *>()).endsWith('/' + QByteArray::number(uint(major))));
    QCOMPARE(minor, 0ul);
    plugin.getDbVersion(major, minor);
    QCOMPARE(major, 1ul);
    QCOMPARE(minor, 0ul);
}

RXMAP_TEST(TestUiPluginBase, Widgets)
#include "tst_uipluginbase.moc"
