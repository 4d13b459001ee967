#pragma once

#include <QScopedPointer>
#include <QSettings>

/// What the terminal remembers of its operator, in a file. One that is damaged, or no file at all, is put aside, and
/// the terminal starts as on the first day: Qt's reader hangs on a pipe, and unpacks a variant without asking how large
/// it is.
class OperatorSettings {
public:
    /// In the operator's folder for such files.
    OperatorSettings();
    explicit OperatorSettings(const QString &path);

    QSettings &values() { return *settings; }
    /// Line on a file that could not be used, and what became of it; empty where there was none.
    QString complaint() const { return problem; }
    /// Writes what is to be kept. Empty, or the line that says that it cannot be; once.
    QString keep();

private:
    QString path;
    QString problem;
    /// The complaint says that nothing is kept.
    bool isToldAlready = false;
    QScopedPointer<QSettings> settings;
};
