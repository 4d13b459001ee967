#pragma once

#include <QDir>
#include <QList>
#include <QString>
#include <QStringList>

class UiPluginInterface;

/// Finds user-interface plug-ins in a folder. What a file says of itself is read before any of its code runs.
class PluginScanner {
public:
    struct Plugin {
        QString path;
        /// Not owned; the plug-in's one object.
        UiPluginInterface *instance;
    };

    struct Findings {
        QList<Plugin> plugins;
        /// One line for each file that was skipped: file name and reason.
        QStringList complaints;
    };

    /// Looks at every shared library (*.so) of the folder, in name order. Of several copies or versions of one plug-in
    /// the first is taken.
    static Findings scan(const QDir &folder);
};
