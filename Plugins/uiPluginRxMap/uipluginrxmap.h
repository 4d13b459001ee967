#pragma once

#include "Framework/uipluginbase.h"

/// The entry object that the host loads: tells what the plug-in offers and makes it on request.
class UiPluginRxMap : public UiPluginBase {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.orvik.uiPluginRxMap/1.0")
    Q_INTERFACES(UiPluginInterface)

public:
    UiPluginRxMap();
    /// Deletes the graphics list. Widgets belong to the host.
    ~UiPluginRxMap() override;

    QStringList getGuidancePageWidgetNames() override;
    QMap<QString, QString> getGuidancePageWidgetLibraryCategories() override;
    QMap<QString, QString> getGuidancePageWidgetLibraryImageNames() override;
    QMap<QString, QString> getGuidancePageWidgetLibraryDisplayNames() override;
    QMap<QString, QString> getFeatureNames() override;
    QStringList getConfigPanelWidgetNames() override;
    QStringList getGraphicsListNames() override;
    QPointer<UiGraphicsList> createUiGraphicsList(QString name, DataBroker *broker) override;
    QPointer<UiGWidget> createUiGWidget(QString name, int x, int y, QPointF position, DataBroker *broker) override;
    QPointer<UiQmlWidget> createUiQmlWidget(QString name, QPointF position, QDeclarativeView *view,
                                            DataBroker *broker) override;
    QString getPluginName() override;
    void getPluginVersion(unsigned long &major, unsigned long &minor) override;

private:
    void deleteList();

    QPointer<UiGraphicsList> graphicsList; ///< The list made last: there is at most one.
    bool isDeletingList = false;           ///< While true no list is made: it would be deleted at once.
};
