#pragma once

#include "Framework/basepluginprovides.h"
#include "Framework/uiplugininterface.h"

#include <QScopedPointer>

class UiPluginBasePrivate;

/// The host's share of a user-interface plug-in: keeps what init() is given and tracks, by guarded pointers, what the
/// plug-in made for the host, so that the host can delete it. It does not delete widgets when it is destroyed.
class FRAMEWORK_EXPORT UiPluginBase : public UiPluginInterface, public BasePlugInProvides {
public:
    explicit UiPluginBase(QObject *parent = nullptr);
    ~UiPluginBase() override;

    void deleteAllWidgets() override;
    void deleteGraphicsList(QPointer<UiGraphicsList> list) override;
    void deleteGWidget(QPointer<UiGWidget> widget) override;
    void deleteQmlWidget(QPointer<UiQmlWidget> widget) override;
    void setView(QDeclarativeView *view) override;
    void init(DataBroker *broker, QDir pluginDir, QDir imageDir) override;
    void close() override;
    void getInterfaceVersion(unsigned long &major, unsigned long &minor) override;
    void getDbVersion(unsigned long &major, unsigned long &minor) override;

protected:
    /// What the plug-in made, by name; an entry becomes null when its object is gone.
    QMap<QString, QPointer<UiGraphicsList>> &graphicsLists();
    QMap<QString, QPointer<UiGWidget>> &graphicsWidgets();
    DataBroker *dataBroker() const;
    QDir pluginDir() const;
    QDir imageDir() const;

private:
    QScopedPointer<UiPluginBasePrivate> d;
};
