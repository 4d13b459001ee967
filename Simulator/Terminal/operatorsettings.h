#pragma once

#include <QScopedPointer>
#include <QSettings>

/// What the terminal remembers of its operator, in a file. One that is damaged, or is not a plain file, is moved aside,
/// and the terminal starts as on the first day: Qt's reader hangs on a pipe, and unpacks a variant without checking how
/// large it is.
class OperatorSettings {
public:
    /// Uses the file in the operator's configuration folder.
    OperatorSettings();
    explicit OperatorSettings(const QString &path);

    QSettings &values() { return *settings; }
    /// One line about a file that could not be used and what happened to it; empty when all was well.
    QString complaint() const { return problem; }
    /// Writes what is to be kept. Empty, or a line that says that it cannot be written, unless complaint() says so.
    QString keep();

private:
    QString path;
    QString problem;
    /// complaint() already says that nothing is kept.
    bool isToldAlready = false;
    QScopedPointer<QSettings> settings;
};
