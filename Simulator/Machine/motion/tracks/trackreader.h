#pragma once

#include "fieldplane.h"
#include "result.h"
#include "trackparser.h"

#include <QCoreApplication>
#include <QFile>

#include <functional>
#include <memory>

/// A recorded track, read entry by entry as it is needed, so that its length takes no memory: NMEA 0183, or
/// comma-separated values. Entries that cannot be read, go back in time or jump are left out and counted.
class TrackReader {
    Q_DECLARE_TR_FUNCTIONS(TrackReader)

public:
    /// What was read so far.
    struct Summary {
        qint64 points = 0;
        qint64 badLines = 0;
        /// "line 7: its checksum is wrong"; empty without bad lines.
        QString firstBad;
        /// Seconds from the first entry to the last.
        double seconds = 0.0;
    };

    /// Takes the share that was read, 0 to 1; false ends the reading.
    using Progress = std::function<bool(double)>;

    /// Whether the file begins as a track does.
    static bool mayRead(const QString &path);
    /// Reads the track once, to make sure that it can be replayed. `plane` takes its degrees to the field; null where
    /// no field is loaded, for a track in metres alone. A failure if `progress` ends it.
    static Result<Summary> check(const QString &path, const std::shared_ptr<const FieldPlane> &plane,
                                 const Progress &progress = {});

    /// `plane` as above.
    TrackReader(const QString &path, const std::shared_ptr<const FieldPlane> &plane);
    ~TrackReader();

    /// The next good entry, its place in metres of the plane; false at the end.
    bool next(TrackPoint &point);
    const Summary &summary() const { return told; }
    /// Why the file cannot be read; empty when it can.
    QString error() const { return problem; }

private:
    bool takeWaiting(TrackPoint &point);
    /// Reads one more line; false when the file is at its end.
    bool readOn();
    bool readLine(QByteArray &line);
    /// False once the progress function has ended the reading.
    bool mayGoOn();
    void complain(const QString &reason);
    /// Why an entry cannot follow the last good one; empty when it can.
    QString misfit(TrackPoint &point);

    QFile file;
    std::shared_ptr<const FieldPlane> plane;
    std::unique_ptr<TrackParser> parser;
    std::vector<TrackPoint> waiting;
    size_t nextWaiting = 0;
    std::optional<TrackPoint> lastPlaced;
    double firstTime = 0.0;
    std::optional<double> lastTime;
    qint64 lineNumber = 0;
    Progress progress;
    QString problem;
    Summary told;
};
