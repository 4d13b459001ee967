#include "backendtest.h"

void BackendTest::init()
{
    TestBase::init();
    broker.reset(new DataBroker);
    backend.reset(new PrescriptionBackend(broker.data()));
}

void BackendTest::cleanup()
{
    backend.reset();
    broker.reset();
    TestBase::cleanup();
}

DbGroupRxMap *BackendTest::group(const QString &name) const
{
    return qobject_cast<DbGroupRxMap *>(broker->getGroup(name, false));
}

LoadReport BackendTest::load(const char *name)
{
    return backend->loadAndWait(requestFor(fixture(name)));
}

QStringList BackendTest::channels(const DbGroupRxMap *group)
{
    QStringList names;
    for (const auto &mapping : group->getRateCalMappings())
        names.append(mapping.rateCalName);
    return names;
}
