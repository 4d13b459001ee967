#pragma once

#include "messagewatch.h"

#include <QObject>
#include <QScopedPointer>
#include <QString>
#include <QtTest>

/// Base of every test class: a warning that a test function did not expect fails it.
/// A subclass with an init() or cleanup() of its own calls these first.
class TestBase : public QObject {
    Q_OBJECT

protected Q_SLOTS:
    void init();
    void cleanup();

protected:
    MessageWatch &messages();
    /// Path of a real prescription below the data folder beside the project; empty where the folder is absent.
    static QString realData(const QString &relativePath);

private:
    QScopedPointer<MessageWatch> watch;
};

/// Skips the test function, with a message, where the real prescriptions are absent.
#define RXMAP_NEED_REAL_DATA()                                                                                         \
    if (realData(QString()).isEmpty())                                                                                 \
    QSKIP("no folder with real prescriptions beside the project")
