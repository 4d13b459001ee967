#include "mapchecker.h"

#include "Backend/backendtext.h"
#include "mapcheck.h"

#include <QMetaObject>

#include <exception>
#include <new>
#include <utility>

MapChecker::MapChecker(QObject *owner, Done whenDone)
    : context(owner)
    , done(std::move(whenDone))
{
}

MapChecker::~MapChecker()
{
    for (const std::shared_ptr<Job> &job : jobs)
        job->cancelled = true;
    if (worker.joinable())
        worker.join();
}

std::optional<MapChecker::Outcome> MapChecker::check(const CheckInput &input, double machineWidth,
                                                     const LoadControl &control)
{
    try {
        const MapView map(input.chain->first(), input.records, input.chain->mappings(), input.joinedHoles);
        const std::optional<QList<MapFinding>> found = MapCheck::run(map, {machineWidth, input.columns}, control);
        return found ? std::optional<Outcome>({*found, {}}) : std::nullopt;
    } catch (const std::bad_alloc &) {
        return Outcome{{}, BackendText::tr("cannot be checked, there is not enough memory")};
    } catch (const std::exception &failure) {
        return Outcome{{}, BackendText::tr("cannot be checked: %1").arg(QString::fromUtf8(failure.what()))};
    }
}

void MapChecker::start(const QString &group, const CheckInput &input, double machineWidth)
{
    drop(group);
    auto job = std::make_shared<Job>();
    job->group = group;
    job->input = input;
    job->machineWidth = machineWidth;
    jobs.push_back(job);
    if (jobs.size() == 1)
        startNext();
}

void MapChecker::drop(const QString &group)
{
    for (const std::shared_ptr<Job> &job : jobs) {
        if (job->group == group)
            job->cancelled = true;
    }
}

void MapChecker::startNext()
{
    if (worker.joinable())
        worker.join();
    if (jobs.empty())
        return;
    const std::shared_ptr<Job> job = jobs.front();
    worker = std::thread([this, job] {
        LoadControl control;
        control.cancelled = &job->cancelled;
        const std::optional<Outcome> outcome = check(job->input, job->machineWidth, control);
        // The thread is joined before this goes, and this goes before the context.
        QMetaObject::invokeMethod(
            context, [this, outcome] { finish(outcome); }, Qt::QueuedConnection);
    });
}

void MapChecker::finish(const std::optional<Outcome> &outcome)
{
    const std::shared_ptr<Job> job = jobs.front();
    jobs.pop_front();
    startNext();
    if (outcome && !job->cancelled)
        done(job->group, *outcome);
}
