#pragma once

#include "trackpoint.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

#include <vector>

/// Reads a track of one format, line by line.
class TrackParser {
    Q_DECLARE_TR_FUNCTIONS(TrackParser)

public:
    virtual ~TrackParser() = default;
    /// Appends the entries that a line completes. Why the line is bad; empty for a good one.
    virtual QString read(const QByteArray &line, std::vector<TrackPoint> &points) = 0;
    /// Appends what the last line left open.
    virtual void finish(std::vector<TrackPoint> &points) = 0;
};
