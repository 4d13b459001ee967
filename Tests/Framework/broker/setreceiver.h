#pragma once

#include "Framework/rxsettings.h"

#include <QList>
#include <QObject>
#include <QStringList>

/// Counts and keeps what property-set subscriptions bring.
class SetReceiver : public QObject {
    Q_OBJECT

public:
    int calls = 0;
    QStringList texts;
    QList<unsigned int> counts;
    QList<QList<OrvikTypes::RX_SETTINGS>> settings;
    QList<void *> buffers;

public Q_SLOTS:
    void onSet() { ++calls; }
    void onText(const QString &text) { texts.append(text); }
    void onCount(unsigned int count) { counts.append(count); }
    void onSettings(const QList<OrvikTypes::RX_SETTINGS> &list) { settings.append(list); }
    void onBuffer(void *buffer) { buffers.append(buffer); }
    void onObject(QObject *) { ++calls; }

Q_SIGNALS:
    void passedOn(unsigned int count);
};
