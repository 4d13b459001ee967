#pragma once

#include <QTemporaryDir>

/// A folder for unpacked files; it is deleted with this object. Folders left behind by a program that was killed are
/// deleted when the next such folder is made.
class UnpackingFolder {
public:
    /// How the folders' names begin, in the system's folder for temporary files.
    static const char prefix[];

    UnpackingFolder();
    ~UnpackingFolder();

    /// Whether the folder exists, and other processes are kept from removing it.
    bool isValid() const { return folder.isValid() && problem.isEmpty(); }
    QString path() const { return folder.path(); }
    QString error() const { return folder.isValid() ? problem : folder.errorString(); }

private:
    Q_DISABLE_COPY(UnpackingFolder)

    QTemporaryDir folder;
    /// A descriptor of the folder whose lock says that it is in use.
    int inUse;
    QString problem; ///< Why the folder cannot be locked.
};
