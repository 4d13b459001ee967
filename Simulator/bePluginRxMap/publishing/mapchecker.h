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
    /// What came of a check.
    struct Outcome {
        QList<MapFinding> findings;
        /// Why the map could not be checked; empty when it was.
        QString problem;
    };
    /// Takes the group and what came of the check of its map, in the thread of `context`.
    using Done = std::function<void(const QString &group, const Outcome &outcome)>;

    /// `context` is not owned and outlives this.
    MapChecker(QObject *context, Done done);
    /// Cancels the check in progress.
    ~MapChecker();

    /// Checks a map, blocking; nothing when it was cancelled.
    static std::optional<Outcome> check(const CheckInput &input, double machineWidth, const LoadControl &control);

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
    void finish(const std::optional<Outcome> &outcome);

    QObject *context;
    Done done;
    std::deque<std::shared_ptr<Job>> jobs; ///< The first one is being worked on.
    std::thread worker;
};
