#include "prescriptionbackendprivate.h"

#include "Backend/backendtext.h"
#include "Backend/prescriptionbackend.h"
#include "loadfindings.h"
#include "prescriptionloader.h"

#include "Framework/databroker.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QMetaObject>
#include <QPointer>

#include <algorithm>
#include <cmath>

namespace {

/// The smallest step, as a share, and the shortest interval in which progress is reported: each report wakes the other
/// thread.
constexpr double progressStep = 0.01;
constexpr qint64 progressIntervalMs = 1;

/// One name for one file, however it is reached.
QString fileKey(const QString &path)
{
    const QString canonical = QFileInfo(path).canonicalFilePath();
    return canonical.isEmpty() ? QFileInfo(path).absoluteFilePath() : canonical;
}

/// Group names are Latin-1, and "*" is a wildcard in them.
QString nameForGroup(const QString &fileName)
{
    QString name = fileName;
    for (QChar &letter : name) {
        if (letter.unicode() > 0xff || letter == QLatin1Char('*'))
            letter = QLatin1Char('_');
    }
    return QStringLiteral("rxMap.%1").arg(name);
}

} // namespace

PrescriptionBackendPrivate::PrescriptionBackendPrivate(PrescriptionBackend *backend, DataBroker *dataBroker)
    : q(backend)
    , broker(dataBroker)
    , checker(backend,
              [this](const QString &group, const MapChecker::Outcome &outcome) { tellChecked(group, outcome); })
{
}

PrescriptionBackendPrivate::~PrescriptionBackendPrivate()
{
    cancel();
    if (worker.joinable())
        worker.join();
    const std::deque<std::shared_ptr<LoadJob>> unfinished = std::move(jobs);
    jobs.clear();
    for (const std::shared_ptr<LoadJob> &job : unfinished) {
        if (job->done)
            job->done(refuse(job->request.path, BackendText::tr("loading was cancelled")));
    }
    while (!entries.empty())
        entries.pop_back();
}

std::shared_ptr<LoadJob> PrescriptionBackendPrivate::enqueue(const LoadRequest &request,
                                                             std::function<void(const LoadReport &)> done)
{
    auto job = std::make_shared<LoadJob>();
    job->request = request;
    job->done = std::move(done);
    enqueue(job);
    return job;
}

void PrescriptionBackendPrivate::enqueueSurvey(const LoadRequest &request)
{
    const auto job = std::make_shared<LoadJob>();
    job->request = request;
    job->request.columns.clear();
    job->request.units.clear();
    job->isSurvey = true;
    enqueue(job);
}

void PrescriptionBackendPrivate::enqueue(const std::shared_ptr<LoadJob> &job)
{
    jobs.push_back(job);
    if (jobs.size() == 1)
        startNext();
}

void PrescriptionBackendPrivate::cancel()
{
    for (const std::shared_ptr<LoadJob> &job : jobs)
        job->cancelled = true;
}

void PrescriptionBackendPrivate::startNext()
{
    if (worker.joinable())
        worker.join();
    if (jobs.empty())
        return;
    const std::shared_ptr<LoadJob> job = jobs.front();
    const std::vector<LocalPlane> known = planes();
    worker = std::thread([this, job, known] { work(job, known); });
}

void PrescriptionBackendPrivate::work(const std::shared_ptr<LoadJob> &job, const std::vector<LocalPlane> &known)
{
    // The thread is joined before the back-end goes, so it may post to it as long as it runs.
    double reported = -progressStep;
    QElapsedTimer sinceReport;
    LoadControl control;
    control.cancelled = &job->cancelled;
    control.progress = [this, job, &reported, &sinceReport](double fraction) {
        const bool isDue = fraction - reported >= progressStep
            && (!sinceReport.isValid() || sinceReport.hasExpired(progressIntervalMs));
        if (!isDue && fraction < 1.0)
            return;
        reported = fraction;
        sinceReport.start();
        const QString path = job->request.path;
        QMetaObject::invokeMethod(
            q, [this, path, fraction] { Q_EMIT q->progress(path, fraction); }, Qt::QueuedConnection);
    };
    PrescriptionLoader loader(job->request, known, control);
    if (job->isSurvey) {
        const SurveyReport survey = loader.survey();
        QMetaObject::invokeMethod(
            q, [this, survey] { finishSurvey(survey); }, Qt::QueuedConnection);
        return;
    }
    const std::shared_ptr<LoadedMap> map = loader.load();
    QMetaObject::invokeMethod(
        q, [this, map] { finishCurrent(std::make_unique<LoadedMap>(std::move(*map))); }, Qt::QueuedConnection);
}

void PrescriptionBackendPrivate::finishSurvey(SurveyReport survey)
{
    if (jobs.front()->cancelled)
        survey.error = refuse(survey.path, BackendText::tr("loading was cancelled")).error;
    jobs.pop_front();
    startNext();
    Q_EMIT q->surveyed(survey);
}

void PrescriptionBackendPrivate::finishCurrent(std::unique_ptr<LoadedMap> map)
{
    const std::shared_ptr<LoadJob> job = jobs.front();
    if (map->report.isOk() && job->cancelled)
        map->report = refuse(map->report.path, BackendText::tr("loading was cancelled"));
    const bool isChange = map->report.isOk();
    // Listeners may do anything, even delete the back-end, whose destructor then reports how the load ended.
    const QPointer<PrescriptionBackend> backend = q;
    if (isChange && !map->report.columnProducts.isEmpty())
        Q_EMIT q->productsMade(map->report.columnProducts);
    if (!backend)
        return;
    if (isChange)
        remarkPlane(*map, job->request.replacedGroups);
    const LoadReport report = isChange ? publish(std::move(map)) : map->report;
    if (!backend)
        return;
    jobs.pop_front();
    startNext();
    if (isChange)
        Q_EMIT backend->mapsChanged();
    if (backend)
        Q_EMIT backend->finished(report);
    if (job->done)
        job->done(report);
}

LoadReport PrescriptionBackendPrivate::refuse(const QString &path, const QString &reason)
{
    LoadReport refused;
    refused.path = path;
    refused.error = QStringLiteral("%1: %2").arg(path, reason);
    return refused;
}

std::vector<LocalPlane> PrescriptionBackendPrivate::planes() const
{
    std::vector<LocalPlane> result;
    for (const Entry &entry : entries)
        result.push_back(entry.map->plane());
    return result;
}

QString PrescriptionBackendPrivate::freeGroupName(const QString &file) const
{
    const QString name = nameForGroup(QFileInfo(file).fileName());
    QString candidate = name;
    for (int i = 2; broker->getGroup(candidate, false) != nullptr; ++i)
        candidate = QStringLiteral("%1 (%2)").arg(name, QString::number(i));
    return candidate;
}

LoadReport PrescriptionBackendPrivate::publish(std::unique_ptr<LoadedMap> map)
{
    const QString file = fileKey(map->report.path);
    const QStringList channels = map->rateCalNames;
    auto known =
        std::find_if(entries.begin(), entries.end(), [&file](const Entry &entry) { return entry.file == file; });
    const QList<OrvikTypes::RX_SETTINGS> settings =
        entries.empty() ? QList<OrvikTypes::RX_SETTINGS>() : entries.front().map->settings();
    Entry entry;
    if (known != entries.end()) {
        entry = std::move(*known);
        entries.erase(known);
    } else {
        entry.file = file;
        entry.map = std::make_shared<PublishedMap>(broker, freeGroupName(file));
    }
    // Who reads the groups may delete the back-end; the entry then goes with this call.
    const QPointer<PrescriptionBackend> backend = q;
    shareOut(channels);
    if (!backend)
        return {};
    map->report.group = entry.map->groupName();
    LoadReport report = map->report;
    checker.drop(report.group);
    const bool isPublished = entry.map->publish(std::move(map), channels, settings);
    if (!backend)
        return {};
    if (isPublished)
        entries.push_back(std::move(entry));
    // Gives products back that could not be taken, or that a listener's unloading gave to another map.
    shareOut({});
    if (!isPublished)
        return refuse(report.path, BackendText::tr("the group name \"%1\" is taken").arg(report.group));
    if (backend)
        useDefaultRates(report);
    return report;
}

void PrescriptionBackendPrivate::remarkPlane(LoadedMap &map, const QStringList &replaced) const
{
    const QPointF origin = map.report.origin;
    const QString file = fileKey(map.report.path);
    double distance = HUGE_VAL; // To the nearest.
    for (const Entry &entry : entries) {
        if (entry.map->report().origin == origin)
            return;
        if (entry.file != file && !replaced.contains(entry.map->groupName()))
            distance = std::min(distance, entry.map->plane().distanceTo(origin.x(), origin.y()));
    }
    if (std::isfinite(distance))
        LoadFindings(map.report)
            .remark(BackendText::tr("lies %1 km from what is loaded and gets a plane of its own")
                        .arg(distance / 1000.0, 0, 'f', 0));
}

void PrescriptionBackendPrivate::useDefaultRates(const LoadReport &report)
{
    const QPointer<PrescriptionBackend> backend = q;
    for (const RateSource &source : report.sources) {
        const double rate = source.placeRates.defaultRate();
        if (!backend || std::isnan(rate))
            continue;
        RxMapLoader *fed = loader(source.product - 1);
        fed->defaultRate = rate;
        fed->defaultRateChanged(rate);
    }
}

QStringList PrescriptionBackendPrivate::channelsLeft(size_t place, const QStringList &newest) const
{
    QStringList channels = entries[place].map->wantedRateCalNames();
    for (QString &channel : channels) {
        const bool isTaken = newest.contains(channel)
            || std::any_of(entries.begin() + static_cast<std::ptrdiff_t>(place) + 1, entries.end(),
                           [&channel](const Entry &later) {
                               return later.map->wantedRateCalNames().contains(channel);
                           });
        if (isTaken)
            channel.clear();
    }
    return channels;
}

void PrescriptionBackendPrivate::shareOut(const QStringList &newest)
{
    const QPointer<PrescriptionBackend> backend = q;
    for (size_t i = 0; backend && i < entries.size(); ++i) {
        const std::shared_ptr<PublishedMap> map = entries[i].map;
        map->feed(channelsLeft(i, newest));
    }
}

void PrescriptionBackendPrivate::check(const QString &group, double machineWidth)
{
    for (const Entry &entry : entries) {
        if (entry.map->groupName() == group)
            checker.start(group, entry.map->checkInput(), machineWidth);
    }
}

void PrescriptionBackendPrivate::tellChecked(const QString &group, const MapChecker::Outcome &outcome)
{
    for (const Entry &entry : entries) {
        if (entry.map->groupName() == group) {
            const LoadReport report = entry.map->report();
            const QString problem =
                outcome.problem.isEmpty() ? QString() : QStringLiteral("%1: %2").arg(report.path, outcome.problem);
            Q_EMIT q->checked(group, report.findings + outcome.findings, problem);
            return;
        }
    }
}

bool PrescriptionBackendPrivate::unload(const QString &group)
{
    checker.drop(group);
    const auto found = std::find_if(entries.begin(), entries.end(),
                                    [&group](const Entry &entry) { return entry.map->groupName() == group; });
    if (found == entries.end())
        return false;
    std::shared_ptr<PublishedMap> gone = std::move(found->map);
    entries.erase(found);
    const QPointer<DataBrokerGroup> retired = broker->getGroup(group, false);
    // The group goes first, so that no product is ever fed by two maps.
    const QPointer<PrescriptionBackend> backend = q;
    gone.reset();
    if (backend)
        retire(retired);
    if (backend)
        shareOut({});
    if (backend)
        Q_EMIT backend->mapsChanged();
    return true;
}

void PrescriptionBackendPrivate::retire(const QPointer<DataBrokerGroup> &group)
{
    retiredGroups.push_back(group);
    if (retiredGroups.size() <= PrescriptionBackend::retiredGroupsKept)
        return;
    const QPointer<DataBrokerGroup> oldest = retiredGroups.front();
    retiredGroups.pop_front();
    delete oldest;
}

QList<LoadReport> PrescriptionBackendPrivate::reports() const
{
    QList<LoadReport> result;
    for (const Entry &entry : entries)
        result.append(entry.map->report());
    return result;
}

RxMapLoader *PrescriptionBackendPrivate::loader(int product)
{
    RxMapLoader *&loader = loaders[product];
    if (loader == nullptr)
        loader = new RxMapLoader(0.0, q);
    return loader;
}
