#pragma once

#include "Backend/prescriptionbackend.h"
#include "machine.h"
#include "openrequest.h"
#include "openwindow.h"
#include "paths.h"
#include "productadoption.h"
#include "testbase.h"

#include "Framework/databroker.h"

#include <QSettings>
#include <QTemporaryDir>

/// Base of the tests of the window in which the operator opens prescriptions: each test function gets a window of its
/// own, with the real back-end behind it, a folder for files, and nothing remembered.
class OpenWindowTest : public TestBase {
    Q_OBJECT

protected Q_SLOTS:
    void init();
    void cleanup();

protected:
    static QString fixture(const char *name) { return sourcePath("Tests/fixtures/%1").arg(QLatin1String(name)); }
    /// The visible control of that name.
    QWidget *find(const QString &name) const;
    void touch(const QString &name);
    /// Opens the files shown: accepts the units assumed for unknown ones, and has maps of fields far away closed.
    void accept();
    QString text(const QString &name) const;
    /// Waits until the page with this control is visible.
    bool waitFor(const char *name) const;
    /// Replaces the window by a new one; what is remembered stays.
    void startWindow();
    /// Writes a prescription with these columns, each with rate 1 in its first record and 2 in its second.
    QString write(const QList<QByteArray> &columns, const QString &name = QStringLiteral("sketch.shp"));
    /// Writes a file that takes seconds to read.
    QString writeTangle();

    QScopedPointer<QTemporaryDir> folder;
    QScopedPointer<QSettings> settings;
    QScopedPointer<DataBroker> broker;
    QScopedPointer<PrescriptionBackend> backend;
    QScopedPointer<Machine> machine;
    QScopedPointer<ProductAdoption> adoption;
    QScopedPointer<OpenWindow> window;
    QList<OpenRequest> requests;
};
