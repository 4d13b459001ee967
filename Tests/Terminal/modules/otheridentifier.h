#pragma once

#include <QObject>

/// A Qt plug-in of another kind.
class OtherIdentifier : public QObject {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.example.ImageFormat/1.0")
};
