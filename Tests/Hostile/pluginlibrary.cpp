#include "pluginlibrary.h"

#include "paths.h"

#include "Framework/uiplugininterface.h"

#include <QDir>

#include <cstring>
#include <dlfcn.h>
#include <link.h>

// Libraries stay loaded, so that the leak check can name what the OpenGL driver keeps; only the plug-in is unloaded.
extern "C" Q_DECL_EXPORT int dlclose(void *handle)
{
    const link_map *library = nullptr;
    if (dlinfo(handle, RTLD_DI_LINKMAP, &library) != 0 || std::strstr(library->l_name, "libuiPluginRxMap") == nullptr)
        return 0;
    using Close = int (*)(void *);
    static const auto close = reinterpret_cast<Close>(dlsym(RTLD_NEXT, "dlclose"));
    return close(handle);
}

PluginLibrary::PluginLibrary()
{
    // With its default hints Qt never unloads libraries.
    loader.setLoadHints({});
}

UiPluginInterface &PluginLibrary::plugin(DataBroker &broker)
{
    const bool isNew = instance == nullptr;
    if (isNew)
        instance = loader.instance();
    auto *plugin = qobject_cast<UiPluginInterface *>(instance.data());
    if (plugin == nullptr)
        qFatal("%s", qPrintable(loader.errorString()));
    if (isNew)
        plugin->init(&broker, QDir(), QDir(buildPath("Simulator/Resources/images")));
    return *plugin;
}

void PluginLibrary::deletePlugin()
{
    delete instance;
}

bool PluginLibrary::unload()
{
    loader.unload();
    void *left = dlopen(RXMAP_PLUGIN_FILE, RTLD_LAZY | RTLD_NOLOAD);
    if (left != nullptr)
        dlclose(left);
    return left == nullptr;
}
