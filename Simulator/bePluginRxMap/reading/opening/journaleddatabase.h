#pragma once

#include <QString>

class QDir;

/// A database beside which the journal of a change lies: rows that are not in the file yet, or what the file held
/// before a change that was broken off. Read alone, the file tells what nobody has written. Read as its own programs
/// do, it is changed, or cannot be read where nothing may be written. So a copy of both is read.
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
    /// Of the file and its journal, to see that nobody changes them meanwhile.
    QString state() const;

    QString path;
    QString ending;
    QString reason;
};
