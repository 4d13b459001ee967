#pragma once

#include <QString>
#include <QStringList>

/// The sticks and cards that are plugged in.
class RemovableVolumes {
public:
    /// Their folders, in the order in which they were mounted. They are taken from the system's table alone: asking a
    /// volume itself would wait for one of the network that no longer answers.
    static QStringList mounted(const QString &table = QStringLiteral("/proc/self/mounts"));
};
