#pragma once

#include <QString>

class QDir;

/// A database with the journal of a change beside it: rows that are not in the file yet, or what the file held before
/// an unfinished change. The file alone would show what nobody meant to write. Reading it as database programs do
/// changes it, or fails where nothing may be written. So a copy of both is read.
class JournaledDatabase {
public:
    explicit JournaledDatabase(const QString &path);

    /// Whether a journal with content lies beside the file.
    bool hasJournal() const { return !ending.isEmpty(); }
    /// Copies both into a folder; the database's path there. Empty, with the reason in error(), when that cannot be
    /// done.
    QString copyTo(const QDir &folder);
    QString error() const { return reason; }

private:
    /// The state of the file and its journal, to see whether somebody changes them meanwhile.
    QString state() const;

    QString path;
    QString ending;
    QString reason;
};
