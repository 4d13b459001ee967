#include "unpackingfolder.h"

#include <QDateTime>
#include <QDir>
#include <QFile>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace {

/// A younger folder may be about to be locked.
constexpr int leastAge = 60; // Seconds.

int openFolder(const QString &path)
{
    return open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
}

void removeLeftOnes(const QDir &temporary)
{
    const QFileInfoList folders = temporary.entryInfoList({QLatin1String(UnpackingFolder::prefix) + QLatin1Char('*')},
                                                          QDir::Dirs | QDir::NoSymLinks);
    const QDateTime latest = QDateTime::currentDateTime().addSecs(-leastAge);
    for (const QFileInfo &info : folders) {
        const int folder = info.lastModified() < latest ? openFolder(info.filePath()) : -1;
        if (folder >= 0 && flock(folder, LOCK_EX | LOCK_NB) == 0)
            QDir(info.filePath()).removeRecursively();
        if (folder >= 0)
            close(folder);
    }
}

QString nextName()
{
    const QDir temporary(QDir::tempPath());
    removeLeftOnes(temporary);
    return temporary.filePath(QLatin1String(UnpackingFolder::prefix) + QStringLiteral("XXXXXX"));
}

} // namespace

const char UnpackingFolder::prefix[] = "rxmap-unpacked-";

UnpackingFolder::UnpackingFolder()
    : folder(nextName())
    , inUse(openFolder(folder.path()))
{
    if (inUse < 0 || flock(inUse, LOCK_SH) != 0)
        problem = qt_error_string();
}

UnpackingFolder::~UnpackingFolder()
{
    if (inUse >= 0)
        close(inUse);
}
