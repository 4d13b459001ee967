#pragma once

#include "Framework/rxsettings.h"

#include <QList>
#include <QObject>

#include <mutex>

/// What a property would be without a broker: a member, its lock and a signal.
class PlainSettings : public QObject {
    Q_OBJECT

public:
    QList<OrvikTypes::RX_SETTINGS> get() const
    {
        const std::lock_guard<std::recursive_mutex> guard(mutex);
        return settings;
    }

    void set(QList<OrvikTypes::RX_SETTINGS> value)
    {
        {
            const std::lock_guard<std::recursive_mutex> guard(mutex);
            settings = value;
        }
        Q_EMIT changed(value);
    }

Q_SIGNALS:
    void changed(QList<OrvikTypes::RX_SETTINGS> value);

private:
    mutable std::recursive_mutex mutex;
    QList<OrvikTypes::RX_SETTINGS> settings;
};

/// Counts the signals that it receives.
class SettingsListener : public QObject {
    Q_OBJECT

public:
    int taken() const { return count; }

public Q_SLOTS:
    void take(QList<OrvikTypes::RX_SETTINGS> /*value*/) { ++count; }

private:
    int count = 0;
};
