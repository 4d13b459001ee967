#include "Backend/prescriptionbackend.h"

#include "prescriptionbackendprivate.h"
#include "prescriptionreader.h"
#include "ratecolumns.h"

#include "bePluginRxMap/rxmaploader.h"

#include <QEventLoop>

PrescriptionBackend::PrescriptionBackend(DataBroker *broker, QObject *parent)
    : QObject(parent)
    , d(new PrescriptionBackendPrivate(this, broker))
{
    qRegisterMetaType<LoadReport>();
}

PrescriptionBackend::~PrescriptionBackend() = default;

ColumnSearch PrescriptionBackend::findColumns(const QString &path, const QStringList &wanted)
{
    ColumnSearch search;
    QStringList names;
    const LoadControl control;
    PrescriptionReader reader(path, {}, control);
    if (!reader.readColumnNames(names)) {
        search.error = QStringLiteral("%1: %2").arg(path, reader.error());
        return search;
    }
    for (const QString &name : wanted) {
        if (RateColumns::find(names, name) >= 0)
            search.found.append(name);
    }
    return search;
}

void PrescriptionBackend::load(const LoadRequest &request)
{
    d->enqueue(request, {});
}

LoadReport PrescriptionBackend::loadAndWait(const LoadRequest &request)
{
    LoadReport outcome;
    QEventLoop loop;
    d->enqueue(request, [&outcome, &loop](const LoadReport &report) {
        outcome = report;
        loop.quit();
    });
    // The back-end may be gone when the loop ends; nothing of it is touched then.
    loop.exec();
    return outcome;
}

void PrescriptionBackend::cancel()
{
    d->cancel();
}

bool PrescriptionBackend::isLoading() const
{
    return d->isLoading();
}

bool PrescriptionBackend::unload(const QString &group)
{
    return d->unload(group);
}

QList<LoadReport> PrescriptionBackend::maps() const
{
    return d->reports();
}

RxMapLoader *PrescriptionBackend::loader(int product)
{
    return d->loader(product);
}
