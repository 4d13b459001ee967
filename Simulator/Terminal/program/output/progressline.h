#pragma once

#include <QString>

#include <optional>

/// How far something is and how long it is likely to take: a line at every tenth of it, but none within a second of the
/// one before.
class ProgressLine {
public:
    explicit ProgressLine(const QString &what);

    /// The line to print now; empty when there is none. `fraction` from 0 to 1 is done `passed` milliseconds after the
    /// start.
    QString at(double fraction, qint64 passed);

private:
    QString what;
    int reachedTenths = 0;
    std::optional<qint64> toldAt; ///< Milliseconds after the start.
};
