#pragma once

#include "loadedmap.h"
#include "loadjob.h"
#include "mapchecker.h"
#include "publishedmap.h"

#include "bePluginRxMap/rxmaploader.h"

#include <QHash>
#include <QPointer>

#include <deque>
#include <functional>
#include <memory>
#include <thread>
#include <vector>

class DataBroker;
class DataBrokerGroup;
class PrescriptionBackend;
struct SurveyReport;

/// The queue of loads, with the thread that works on its head, and the list of published maps.
class PrescriptionBackendPrivate {
public:
    PrescriptionBackendPrivate(PrescriptionBackend *backend, DataBroker *dataBroker);
    ~PrescriptionBackendPrivate();

    /// `done` is called when the load has ended, at the latest when the back-end goes.
    std::shared_ptr<LoadJob> enqueue(const LoadRequest &request, std::function<void(const LoadReport &)> done);
    void enqueueSurvey(const LoadRequest &request);
    /// The report of a load that was refused.
    static LoadReport refuse(const QString &path, const QString &reason);
    void cancel();
    bool isLoading() const { return !jobs.empty(); }
    void check(const QString &group, double machineWidth);
    bool unload(const QString &group);
    QList<LoadReport> reports() const;
    RxMapLoader *loader(int product);

private:
    /// A published map and the file that it came from.
    struct Entry {
        QString file;
        std::shared_ptr<PublishedMap> map; ///< Shared with the call that changes it, whose listeners may unload it.
    };

    void enqueue(const std::shared_ptr<LoadJob> &job);
    void startNext();
    /// What the loading thread does.
    void work(const std::shared_ptr<LoadJob> &job, const std::vector<LocalPlane> &known);
    void finishCurrent(std::unique_ptr<LoadedMap> map);
    void finishSurvey(SurveyReport survey);
    LoadReport publish(std::unique_ptr<LoadedMap> map);
    /// Adds a remark where the map has a plane of its own and maps on other planes stay open: maps of other files, and
    /// not in the groups that it replaces.
    void remarkPlane(LoadedMap &map, const QStringList &replaced) const;
    /// Where a file gives rates for places without a prescription, the products' default rates follow.
    void useDefaultRates(const LoadReport &report);
    std::vector<LocalPlane> planes() const;
    QString freeGroupName(const QString &file) const;
    /// The channels that each mapping of a map may feed after later maps, and `newest`, have taken theirs.
    QStringList channelsLeft(size_t entry, const QStringList &newest) const;
    void shareOut(const QStringList &newest);
    void tellChecked(const QString &group, const MapChecker::Outcome &outcome);
    /// Keeps the group of an unloaded map for whoever still holds it; deletes the one unloaded longest ago.
    void retire(const QPointer<DataBrokerGroup> &group);

    PrescriptionBackend *q;
    DataBroker *broker;
    std::deque<std::shared_ptr<LoadJob>> jobs; ///< The first one is being worked on.
    std::thread worker;
    MapChecker checker;
    std::vector<Entry> entries; ///< In the order of loading; a later one takes over the channels of an earlier one.
    QHash<int, RxMapLoader *> loaders;
    std::deque<QPointer<DataBrokerGroup>> retiredGroups; ///< Of unloaded maps, oldest first; the broker's.
};
