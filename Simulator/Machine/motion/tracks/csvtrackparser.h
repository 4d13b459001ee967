#pragma once

#include "trackparser.h"

#include <QByteArrayList>

#include <optional>

/// Comma-separated values under a head that names them: "time" (seconds, or ISO 8601), "x" and "y" (metres of the local
/// plane) or "lon" and "lat" (degrees), and optionally "heading" (degrees), "speed" (metres per second) and "working"
/// (0 or 1).
class CsvTrackParser : public TrackParser {
public:
    QString read(const QByteArray &line, std::vector<TrackPoint> &points) override;
    void finish(std::vector<TrackPoint> &) override { }

private:
    QString readHead(const QByteArrayList &names);

    bool hasHead = false;
    int time = -1;
    int x = -1;
    int y = -1;
    int heading = -1;
    int speed = -1;
    int working = -1;
    bool isInDegrees = false;
};
