#pragma once

#include "trackparser.h"

#include <QByteArrayList>

#include <optional>

/// NMEA 0183: GGA and RMC give positions, VTG the course and speed of the entry before it; other sentences are passed
/// over. A checksum is compared where there is one. Times of day become seconds that go on over midnight.
class NmeaParser : public TrackParser {
public:
    QString read(const QByteArray &line, std::vector<TrackPoint> &points) override;
    void finish(std::vector<TrackPoint> &points) override;

private:
    QString readPosition(const QByteArrayList &fields, int time, int place, bool hasFix,
                         std::vector<TrackPoint> &points);
    void readCourse(const QByteArray &degrees, const QByteArray &knots);

    /// The entry that is being put together: sentences of one time belong together.
    std::optional<TrackPoint> open;
    /// Seconds of the days that have passed since the track began.
    double midnights = 0.0;
};
