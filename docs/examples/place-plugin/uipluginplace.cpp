#include "Framework/uipluginbase.h"

struct PlaceList : UiGraphicsList {
    using UiGraphicsList::UiGraphicsList;
    void init() override { }
    QString getPointDescription(QVector3D p) override { return QString("%1 m east, %2 m north").arg(p.x()).arg(p.y()); }
};

class UiPluginPlace : public UiPluginBase {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.orvik.uiPluginPlace/1.0")
    Q_INTERFACES(UiPluginInterface)
    using Texts = QMap<QString, QString>;
    QString getPluginName() override { return "UiPluginPlace"; }
    void getPluginVersion(unsigned long &major, unsigned long &minor) override { major = 1, minor = 0; }
    QStringList getGraphicsListNames() override { return {"PlaceList"}; }
    QPointer<UiGraphicsList> createUiGraphicsList(QString, DataBroker *broker) override
    {
        return new PlaceList(broker, this);
    }
    QStringList getGuidancePageWidgetNames() override { return {}; }
    Texts getGuidancePageWidgetLibraryCategories() override { return {}; }
    Texts getGuidancePageWidgetLibraryImageNames() override { return {}; }
    Texts getGuidancePageWidgetLibraryDisplayNames() override { return {}; }
    Texts getFeatureNames() override { return {}; }
    QStringList getConfigPanelWidgetNames() override { return {}; }
    QPointer<UiGWidget> createUiGWidget(QString, int, int, QPointF, DataBroker *) override { return {}; }
    QPointer<UiQmlWidget> createUiQmlWidget(QString, QPointF, QDeclarativeView *, DataBroker *) override { return {}; }
};

#include "uipluginplace.moc"
