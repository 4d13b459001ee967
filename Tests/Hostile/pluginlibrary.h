#pragma once

#include <QPluginLoader>
#include <QPointer>

class DataBroker;
class UiPluginInterface;

/// The plug-in's library, loaded as a host loads it, and really unloaded.
class PluginLibrary {
public:
    PluginLibrary();
    /// The plug-in; if there is none, it is made and initialised with `broker`. Ends the program if the library does
    /// not load.
    UiPluginInterface &plugin(DataBroker &broker);
    /// Deletes the plug-in; the library stays loaded.
    void deletePlugin();
    /// Unloads the library; true if no part of it is left in memory. Nothing that the plug-in made may still exist.
    bool unload();

private:
    QPluginLoader loader{QStringLiteral(RXMAP_PLUGIN_FILE)};
    QPointer<QObject> instance;
};
