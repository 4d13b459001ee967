#pragma once

#include "loadcontrol.h"
#include "loadedmap.h"

#include <QObject>

#include <atomic>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <thread>

/// Checks published maps one after the other in a thread of its own, so that nobody waits for it.
class MapChecker {
public:
    /// Takes the group and what was found in its map, in the thread of `context`.
    using Done = std::function<void(const QString &group, const QList<MapFinding> &findings)>;

    /// `context` is not owned and outlives this.
    MapChecker(QObject *context, Done done);
    /// Cancels the check in progress.
    ~MapChecker();

    /// What a check finds in a map. Blocks; nothing when it was cancelled or could not finish.
    static std::optional<QList<MapFinding>> findings(const CheckInput &input, double machineWidth,
                                                     const LoadControl &control);

    /// Starts a check of the map that is published as `group` now; an earlier check of that group is given up.
    void start(const QString &group, const CheckInput &input, double machineWidth);
    /// Gives up the group's checks, running or waiting.
    void drop(const QString &group);

private:
    struct Job {
        QString group;
        CheckInput input;
        double machineWidth;
        std::atomic<bool> cancelled{false};
    };

    void startNext();
    void finish(const std::optional<QList<MapFinding>> &findings);

    QObject *context;
    Done done;
    std::deque<std::shared_ptr<Job>> jobs; ///< The first one is being worked on.
    std::thread worker;
};
