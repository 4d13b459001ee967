#pragma once

#include <QObject>

/// Claims to be a user-interface plug-in, but does not have that interface.
class LacksInterface : public QObject {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.orvik.uiPluginLacksInterface/1.0")
};
