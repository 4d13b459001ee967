#pragma once

#include "messagewatch.h"
#include "testmain.h"

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
    /// Path of a real prescription below the folder that RXMAP_REAL_DATA names; empty where there is no such folder.
    /// The file's name may be a pattern ("*.shp"), which stands for the first file that matches.
    static QString realData(const QString &relativePath);

private:
    QScopedPointer<MessageWatch> messageWatch;
};

/// Skips the test function, with a message, where the real prescriptions are absent.
#define RXMAP_NEED_REAL_DATA()                                                                                         \
    if (realData(QString()).isEmpty())                                                                                 \
    QSKIP("RXMAP_REAL_DATA names no folder with real prescriptions")
