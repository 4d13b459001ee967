#pragma once

#include "Framework/frameworkglobal.h"
#include "Framework/uigraphicslist.h"
#include "Framework/uigwidget.h"
#include "Framework/uiqmlwidget.h"

#include <QDir>
#include <QList>
#include <QMap>
#include <QObject>
#include <QPixmap>
#include <QPointF>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QVariant>

class DataBroker;
class QDeclarativeView;

/// The interface through which the host drives a user-interface plug-in. The order of the operations is binary
/// interface: new ones go to the end, under a new interface number. All calls come on the user-interface thread.
/// Maps are keyed by widget, list or feature name; texts for the operator come translated.
class FRAMEWORK_EXPORT UiPluginInterface : public QObject {
public:
    explicit UiPluginInterface(QObject *parent = nullptr);
    ~UiPluginInterface() override;

    /// Deletes every graphics list and widget that the plug-in made and that is still alive.
    virtual void deleteAllWidgets() = 0;
    virtual void deleteGraphicsList(QPointer<UiGraphicsList> list) = 0;
    virtual void deleteGWidget(QPointer<UiGWidget> widget) = 0;
    virtual void deleteQmlWidget(QPointer<UiQmlWidget> widget) = 0;
    virtual void languageChanged() { }
    virtual void setView(QDeclarativeView *view) = 0;
    /// Called once before anything is asked for: the broker (not owned), the plug-in's folder, its image folder.
    virtual void init(DataBroker *broker, QDir pluginDir, QDir imageDir) = 0;
    virtual void close() = 0;
    virtual QStringList getRequiredGroupNames() { return {}; }
    virtual void guidancePageChanged() { }
    virtual QObject *getSettingsObject() { return nullptr; }
    virtual bool hasSettings() { return false; }
    virtual void jobStarted() { }
    virtual void jobStopped() { }
    virtual void screenLocked() { }
    virtual void screenUnlocked() { }
    virtual QString getSettingsTitle() { return QStringLiteral(""); }
    virtual QString getHelpTopic() { return QStringLiteral(""); }
    virtual QStringList getAlarmNames() { return {}; }
    virtual QStringList getShortcutNames() { return {}; }
    virtual QList<QVariant> getShortcutSettings() { return {}; }
    virtual QPixmap getIcon() { return {}; }
    virtual QString getDescription() { return QStringLiteral(""); }
    virtual QStringList getGuidancePageWidgetNames() = 0;
    virtual QMap<QString, QString> getGuidancePageWidgetLibraryCategories() = 0;
    virtual QMap<QString, QString> getGuidancePageWidgetLibraryImageNames() = 0;
    virtual QMap<QString, QString> getGuidancePageWidgetLibraryPreviewNames()
    {
        return getGuidancePageWidgetLibraryImageNames();
    }
    virtual QMap<QString, QString> getGuidancePageWidgetLibraryDisplayNames() = 0;
    virtual QMap<QString, QString> getFeatureNames() = 0;
    virtual QMap<QString, QString> getFeatureDescriptions() { return {}; }
    virtual QMap<QString, QString> getFeatureImageNames() { return {}; }
    virtual QStringList getConfigPanelWidgetNames() = 0;
    virtual QStringList getGraphicsListNames() = 0;
    /// The plug-in owns the list, and may delete an earlier one when it makes a new one. Null for a name that it does
    /// not offer.
    virtual QPointer<UiGraphicsList> createUiGraphicsList(QString name, DataBroker *broker) = 0;
    /// `x`, `y`: place in the page's grid; `position`: top left corner on the page, pixels. Null for a name that the
    /// plug-in does not offer.
    virtual QPointer<UiGWidget> createUiGWidget(QString name, int x, int y, QPointF position, DataBroker *broker) = 0;
    virtual QPointer<UiQmlWidget> createUiQmlWidget(QString name, QPointF position, QDeclarativeView *view,
                                                    DataBroker *broker) = 0;
    virtual void getInterfaceVersion(unsigned long &major, unsigned long &minor) = 0;
    virtual void getDbVersion(unsigned long &major, unsigned long &minor) = 0;
    virtual QString getPluginName() = 0;
    virtual void getPluginVersion(unsigned long &major, unsigned long &minor) = 0;
};

Q_DECLARE_INTERFACE(UiPluginInterface, "com.orvik.UiPluginInterface/4")
