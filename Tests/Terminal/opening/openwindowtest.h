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

/// Base of the tests of the window in which the operator opens prescriptions: for each test function one of its own,
/// with the real back-end behind it, a folder for files, and nothing remembered.
class OpenWindowTest : public TestBase {
    Q_OBJECT

protected Q_SLOTS:
    void init();
    void cleanup();

protected:
    static QString fixture(const char *name) { return sourcePath("Tests/fixtures/%1").arg(QLatin1String(name)); }
    /// The control of that name that is seen.
    QWidget *find(const QString &name) const;
    void touch(const QString &name);
    /// Opens what is shown; units that are not known are taken as they are assumed, fields far away are to be closed.
    void accept();
    QString text(const QString &name) const;
    /// Until the page with this control is seen.
    bool waitFor(const char *name) const;
    /// Anew; what is remembered stays.
    void startWindow();
    /// A prescription with these columns, each of rate 1 and 2 in its two records.
    QString write(const QList<QByteArray> &columns, const QString &name = QStringLiteral("sketch.shp"));
    /// A file that takes seconds to read.
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
