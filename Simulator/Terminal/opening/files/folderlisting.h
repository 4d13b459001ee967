#pragma once

#include <QCoreApplication>
#include <QList>
#include <QString>

/// A row of the file browser.
struct FileEntry {
    QString path;
    QString name;
    /// A folder to go into.
    bool isFolder = false;
    /// Whether it is still there.
    bool isThere = true;
    /// Where it lies, or its size and age; for an open file, what it feeds.
    QString note;
    /// Group of the open map made from it; empty for a file that is not open.
    QString group = {};
};

/// What can be opened in a folder: folders, and files that may be prescriptions or tracks.
class FolderListing {
    Q_DECLARE_TR_FUNCTIONS(FolderListing)

public:
    /// Folders first, each sorted as people read. Empty for a folder that cannot be read.
    static QList<FileEntry> of(const QString &folder);
    /// Files that were opened before, wherever they lie.
    static QList<FileEntry> ofFiles(const QStringList &paths);
    /// Whether a file of that name is a track to be replayed.
    static bool isTrack(const QString &path);
};
