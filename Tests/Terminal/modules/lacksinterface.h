#pragma once

#include <QObject>

/// Says that it is a user-interface plug-in, and has no such interface.
class LacksInterface : public QObject {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.orvik.uiPluginLacksInterface/1.0")
};
