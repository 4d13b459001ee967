#include "folderlisting.h"

#include "Backend/naturalorder.h"
#include "Backend/prescriptionbackend.h"
#include "trackreader.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QLocale>

#include <algorithm>

namespace {

QString ageAndSize(const QFileInfo &info)
{
    const QLocale language;
    const QDateTime changed = info.lastModified();
    // The month in letters, so that nobody takes it for the day.
    const QString format = FolderListing::tr("d MMM yyyy", "a date, in QLocale's letters");
    const QString age = QStringLiteral("%1, %2").arg(language.toString(changed.date(), format),
                                                     language.toString(changed.time(), QLocale::ShortFormat));
    return info.isDir() ? age : language.formattedDataSize(info.size(), 1) + QStringLiteral("  \u00b7  ") + age;
}

/// Other texts may begin like a track by chance.
bool isCalledATrack(const QFileInfo &info)
{
    static const QStringList endings{QStringLiteral("csv"), QStringLiteral("nmea"), QStringLiteral("nma"),
                                     QStringLiteral("log"), QStringLiteral("txt")};
    return endings.contains(info.suffix(), Qt::CaseInsensitive);
}

} // namespace

bool FolderListing::isTrack(const QString &path)
{
    return !PrescriptionBackend::mayBePrescription(path) && TrackReader::mayRead(path);
}

QList<FileEntry> FolderListing::of(const QString &folder)
{
    QList<FileEntry> entries;
    const QFileInfoList found = QDir(folder).entryInfoList(QDir::Dirs | QDir::Files | QDir::NoDotAndDotDot);
    for (const QFileInfo &info : found) {
        const bool mayBeOne = PrescriptionBackend::mayBePrescription(info.filePath());
        const bool isFolder = info.isDir() && !mayBeOne;
        const bool isReplayed = !isFolder && isCalledATrack(info) && isTrack(info.filePath());
        if (!isFolder && !mayBeOne && !isReplayed)
            continue;
        const QString note = isFolder ? QString() : ageAndSize(info);
        entries.append({info.filePath(), info.fileName(), isFolder, true,
                        isReplayed ? tr("Track") + QStringLiteral("  \u00b7  ") + note : note});
    }
    const NaturalOrder order;
    std::stable_sort(entries.begin(), entries.end(), [&order](const FileEntry &a, const FileEntry &b) {
        return a.isFolder != b.isFolder ? a.isFolder : order(a.name, b.name);
    });
    return entries;
}

QList<FileEntry> FolderListing::ofFiles(const QStringList &paths)
{
    QList<FileEntry> entries;
    for (const QString &path : paths) {
        entries.append({path, PrescriptionBackend::nameOf(path), false, PrescriptionBackend::isThere(path),
                        QFileInfo(path).path()});
    }
    return entries;
}
