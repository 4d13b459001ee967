#pragma once

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

/// A user at a shell, in a folder with the sample field and the example files, where `terminal-simulator` is the
/// program of this build. Nothing is kept from one session to the next, not even remembered choices.
class ShellSession {
public:
    ShellSession();

    /// Standard output and error of a command, as they come.
    QStringList run(const QString &command) const;

private:
    QTemporaryDir folder;
};
