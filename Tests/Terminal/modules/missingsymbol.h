#pragma once

#include <QObject>

/// Has the right identifier, but needs a function that does not exist anywhere.
class MissingSymbol : public QObject {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.orvik.uiPluginMissingSymbol/1.0")

public:
    MissingSymbol();
};
