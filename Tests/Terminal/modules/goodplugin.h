#pragma once

#include "Framework/uipluginbase.h"

/// The least user-interface plug-in: offers nothing.
class GoodPlugin : public UiPluginBase {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.orvik.uiPluginGood/2.13")
    Q_INTERFACES(UiPluginInterface)

public:
    QStringList getGuidancePageWidgetNames() override { return {}; }
    QMap<QString, QString> getGuidancePageWidgetLibraryCategories() override { return {}; }
    QMap<QString, QString> getGuidancePageWidgetLibraryImageNames() override { return {}; }
    QMap<QString, QString> getGuidancePageWidgetLibraryDisplayNames() override { return {}; }
    QMap<QString, QString> getFeatureNames() override { return {}; }
    QStringList getConfigPanelWidgetNames() override { return {}; }
    QStringList getGraphicsListNames() override { return {}; }
    QPointer<UiGraphicsList> createUiGraphicsList(QString, DataBroker *) override { return {}; }
    QPointer<UiGWidget> createUiGWidget(QString, int, int, QPointF, DataBroker *) override { return {}; }
    QPointer<UiQmlWidget> createUiQmlWidget(QString, QPointF, QDeclarativeView *, DataBroker *) override { return {}; }
    QString getPluginName() override { return QStringLiteral("GoodPlugin"); }
    void getPluginVersion(unsigned long &major, unsigned long &minor) override;
};
