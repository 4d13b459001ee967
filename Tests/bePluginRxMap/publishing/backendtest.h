#pragma once

#include "Backend/prescriptionbackend.h"
#include "fixture.h"
#include "testbase.h"

#include "Framework/databroker.h"
#include "bePluginRxMap/dbgrouprxmap.h"

/// Base of the tests of the back-end: each test function gets a broker and a back-end that has loaded nothing.
class BackendTest : public TestBase {
    Q_OBJECT

protected Q_SLOTS:
    void init();
    void cleanup();

protected:
    /// The published group of that name, or null.
    DbGroupRxMap *group(const QString &name) const;
    /// Loads a fixture with the most likely columns.
    LoadReport load(const char *name);
    /// The rate channel of each mapping.
    static QStringList channels(const DbGroupRxMap *group);

    QScopedPointer<DataBroker> broker;
    QScopedPointer<PrescriptionBackend> backend;
};
