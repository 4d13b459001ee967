#include "testbase.h"

#include "Framework/uiplugininterface.h"

namespace {

using Names = QMap<QString, QString>;

const Names images{{QStringLiteral("Rates"), QStringLiteral("rates.png")}};

/// Answers only what every plug-in must answer.
class LeastPlugin : public UiPluginInterface {
public:
    using UiPluginInterface::UiPluginInterface;

    void deleteAllWidgets() override { }
    void deleteGraphicsList(QPointer<UiGraphicsList>) override { }
    void deleteGWidget(QPointer<UiGWidget>) override { }
    void deleteQmlWidget(QPointer<UiQmlWidget>) override { }
    void setView(QDeclarativeView *) override { }
    void init(DataBroker *, QDir, QDir) override { }
    void close() override { }
    QStringList getGuidancePageWidgetNames() override { return images.keys(); }
    Names getGuidancePageWidgetLibraryCategories() override { return {}; }
    Names getGuidancePageWidgetLibraryImageNames() override { return images; }
    Names getGuidancePageWidgetLibraryDisplayNames() override { return {}; }
    Names getFeatureNames() override { return {}; }
    QStringList getConfigPanelWidgetNames() override { return {}; }
    QStringList getGraphicsListNames() override { return {}; }
    QPointer<UiGraphicsList> createUiGraphicsList(QString, DataBroker *) override { return {}; }
    QPointer<UiGWidget> createUiGWidget(QString, int, int, QPointF, DataBroker *) override { return {}; }
    QPointer<UiQmlWidget> createUiQmlWidget(QString, QPointF, QDeclarativeView *, DataBroker *) override { return {}; }
    void getInterfaceVersion(unsigned long &, unsigned long &) override { }
    void getDbVersion(unsigned long &, unsigned long &) override { }
    QString getPluginName() override { return QStringLiteral("least"); }
    void getPluginVersion(unsigned long &, unsigned long &) override { }
};

} // namespace

/// The answers of a plug-in that leaves the optional operations alone.
class TestUiPluginInterface : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void aPreviewIsTheImageUntilThePluginHasOne();
    void nothingIsOfferedThatThePluginDoesNotName();
    void itGoesWithItsParent();
};

void TestUiPluginInterface::aPreviewIsTheImageUntilThePluginHasOne()
{
    LeastPlugin plugin;
    QCOMPARE(plugin.getGuidancePageWidgetLibraryPreviewNames(), images);
}

void TestUiPluginInterface::nothingIsOfferedThatThePluginDoesNotName()
{
    LeastPlugin plugin;
    QVERIFY(plugin.getRequiredGroupNames().isEmpty());
    QVERIFY(!plugin.hasSettings());
    QVERIFY(plugin.getSettingsObject() == nullptr);
    QVERIFY(plugin.getAlarmNames().isEmpty());
    QVERIFY(plugin.getShortcutNames().isEmpty());
    QVERIFY(plugin.getShortcutSettings().isEmpty());
    QVERIFY(plugin.getIcon().isNull());
    QVERIFY(plugin.getFeatureDescriptions().isEmpty());
    QVERIFY(plugin.getFeatureImageNames().isEmpty());
    // The texts are empty, but not null.
    for (const QString &text : {plugin.getSettingsTitle(), plugin.getHelpTopic(), plugin.getDescription()})
        QVERIFY(text.isEmpty() && !text.isNull());
}

void TestUiPluginInterface::itGoesWithItsParent()
{
    auto *const parent = new QObject;
    const QPointer<QObject> plugin(new LeastPlugin(parent));
    QCOMPARE(plugin->parent(), parent);
    delete parent;
    QVERIFY(plugin.isNull());
}

RXMAP_TEST(TestUiPluginInterface, Widgets)
#include "tst_uiplugininterface.moc"
