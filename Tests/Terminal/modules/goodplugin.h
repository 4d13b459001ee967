#pragma once

#include "leastplugin.h"

/// The smallest user-interface plug-in: it offers nothing.
class GoodPlugin : public LeastPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.orvik.uiPluginGood/2.13")
    Q_INTERFACES(UiPluginInterface)

public:
    QString getPluginName() override { return QStringLiteral("GoodPlugin"); }
    void getPluginVersion(unsigned long &major, unsigned long &minor) override;
};
