#pragma once

#include <QPluginLoader>
#include <QPointer>

class DataBroker;
class UiPluginInterface;

/// The plug-in's library, loaded as a host loads it, and really unloaded.
class PluginLibrary {
public:
    PluginLibrary();
    /// The plug-in, made, and introduced to `broker`, where there is none. Ends the program where the library does not
    /// load.
    UiPluginInterface &plugin(DataBroker &broker);
    /// The library stays.
    void deletePlugin();
    /// Whether no part of the library is left in memory. Nothing that the plug-in made may live.
    bool unload();

private:
    QPluginLoader loader{QStringLiteral(RXMAP_PLUGIN_FILE)};
    QPointer<QObject> instance;
};
