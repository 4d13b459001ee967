#include "Backend/prescriptionbackend.h"

#include "Backend/backendtext.h"
#include "columnpolicy.h"
#include "prescriptionbackendprivate.h"
#include "prescriptionloader.h"
#include "prescriptionreader.h"
#include "ziparchive.h"

#include <QEventLoop>
#include <QFileInfo>

#include <memory>

PrescriptionBackend::PrescriptionBackend(DataBroker *broker, QObject *parent)
    : QObject(parent)
    , d(new PrescriptionBackendPrivate(this, broker))
{
    qRegisterMetaType<LoadReport>();
    qRegisterMetaType<SurveyReport>();
}

PrescriptionBackend::~PrescriptionBackend() = default;

ColumnShares PrescriptionBackend::shareColumns(const QStringList &paths, const LoadRequest &request)
{
    ColumnShares shares;
    if (request.columns.isEmpty() || paths.size() == 1) {
        for (int i = 0; i < paths.size(); ++i)
            shares.columns.append(request.columns);
        return shares;
    }
    QList<ColumnPolicy::File> files;
    for (int i = 0; i < paths.size() && shares.isOk(); ++i) {
        const QString &path = paths.at(i);
        const LoadControl control;
        PrescriptionReader reader({path, request.columns, request.layer, request.task}, ColumnPolicy::chanceOf,
                                  control);
        ColumnPolicy::File file{path, {}};
        if (!reader.readColumnNames(file.columns)) {
            shares.error = QStringLiteral("%1: %2").arg(path, reader.error());
            shares.path = path;
        }
        files.append(file);
    }
    return shares.isOk() ? ColumnPolicy::share(files, request.columns) : shares;
}

void PrescriptionBackend::load(const LoadRequest &request)
{
    d->enqueue(request, {});
}

LoadReport PrescriptionBackend::loadAndWait(const LoadRequest &request)
{
    // Something else may end the event loop before the load is done, so what the load's end touches outlives this call.
    struct Wait {
        LoadReport outcome;
        QEventLoop loop;
    };
    const auto wait = std::make_shared<Wait>();
    wait->outcome = PrescriptionBackendPrivate::refuse(request.path, BackendText::tr("loading was given up"));
    const std::shared_ptr<LoadJob> job = d->enqueue(request, [wait](const LoadReport &report) {
        wait->outcome = report;
        wait->loop.quit();
    });
    wait->loop.exec();
    // The back-end may be gone by now; nothing of it is touched any more. A load that goes on must change nothing.
    job->cancelled = true;
    return wait->outcome;
}

void PrescriptionBackend::survey(const LoadRequest &request)
{
    d->enqueueSurvey(request);
}

bool PrescriptionBackend::mayBePrescription(const QString &path)
{
    return PrescriptionReader::mayRead(path);
}

QString PrescriptionBackend::nameOf(const QString &path)
{
    QString inner;
    const QString archive = ZipArchive::find(path, inner);
    return archive.isEmpty() || inner.isEmpty() ? QFileInfo(path).fileName()
                                                : QFileInfo(archive).fileName() + QLatin1Char('/') + inner;
}

bool PrescriptionBackend::isThere(const QString &path)
{
    QString inner;
    return QFileInfo::exists(path) || !ZipArchive::find(path, inner).isEmpty();
}

LoadReport PrescriptionBackend::checkFile(const LoadRequest &request, double machineWidth)
{
    const LoadControl control;
    const std::unique_ptr<LoadedMap> map = PrescriptionLoader(request, {}, control).load();
    if (!map->report.isOk())
        return map->report;
    // Nothing cancels it.
    const MapChecker::Outcome outcome = *MapChecker::check(map->checkInput(), machineWidth, control);
    map->report.findings += outcome.findings;
    if (!outcome.problem.isEmpty())
        map->report.error = QStringLiteral("%1: %2").arg(request.path, outcome.problem);
    return map->report;
}

void PrescriptionBackend::startCheck(const QString &group, double machineWidth)
{
    d->check(group, machineWidth);
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
