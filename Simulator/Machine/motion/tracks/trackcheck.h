#pragma once

#include "trackreader.h"

#include <QObject>
#include <QPointF>

#include <atomic>
#include <chrono>
#include <future>
#include <optional>

/// Makes sure, in a thread of its own, that a track can be replayed (TrackReader::check()).
class TrackCheck : public QObject {
    Q_OBJECT

public:
    /// Begins at once. `origin`: of the field's plane, degrees; nothing where no field is loaded.
    TrackCheck(const QString &path, const std::optional<QPointF> &origin);
    /// Gives up, and waits for the thread.
    ~TrackCheck() override;

    /// Waits that long for the end; whether it has come.
    bool endsWithin(std::chrono::milliseconds time) const;
    /// Ends it soon; the outcome is then a failure.
    void giveUp() { wantsEnd = true; }
    bool isGivenUp() const { return wantsEnd; }
    /// Once, and waits for the end.
    Result<TrackReader::Summary> takeOutcome() { return reading.get(); }

Q_SIGNALS:
    /// From the other thread: the share that was read, 0 to 1, in steps of a hundredth or more.
    void progress(double fraction);
    /// From the other thread.
    void ended();

private:
    Result<TrackReader::Summary> read(const QString &path, const std::optional<QPointF> &origin);

    std::atomic<bool> wantsEnd{false};
    std::future<Result<TrackReader::Summary>> reading;
};
