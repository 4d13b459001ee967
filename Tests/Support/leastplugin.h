#pragma once

#include "Framework/uipluginbase.h"

/// A user-interface plug-in that offers nothing, version 1.0.
class LeastPlugin : public UiPluginBase {
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
    QString getPluginName() override { return QStringLiteral("LeastPlugin"); }
    void getPluginVersion(unsigned long &major, unsigned long &minor) override
    {
        major = 1;
        minor = 0;
    }
};
