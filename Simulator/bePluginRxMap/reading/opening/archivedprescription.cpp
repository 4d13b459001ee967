#include "archivedprescription.h"

#include "Backend/backendtext.h"
#include "Backend/naturalorder.h"
#include "prescriptionfile.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace {

/// Longer lists than this are cut short.
constexpr int mostTold = 10;

bool isSame(const QString &a, const QString &b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

/// Whether it is one of the files that some systems add to an archive.
bool isLitter(const ZipArchive::Entry &entry)
{
    return entry.name().startsWith(QLatin1Char('.')) || entry.path.startsWith(QLatin1String("__MACOSX/"));
}

/// The files that belong to a prescription if they lie beside it: the other parts of a Shapefile, the journals of a
/// database.
QStringList partsOf(const ZipArchive::Entry &main)
{
    const QString ending = QFileInfo(main.name()).suffix();
    QStringList parts;
    if (isSame(ending, QStringLiteral("shp"))) {
        for (const char *other : {"shx", "dbf", "prj", "cpg"})
            parts.append(main.path.left(main.path.size() - ending.size()) + QLatin1String(other));
    } else if (isSame(ending, QStringLiteral("gpkg"))) {
        for (const char *journal : {"-wal", "-journal"})
            parts.append(main.path + QLatin1String(journal));
    }
    return parts;
}

QString list(const QStringList &paths)
{
    const int more = paths.size() - mostTold;
    return paths.mid(0, mostTold).join(QStringLiteral(", "))
        + (more > 0 ? BackendText::tr(" and %1 more").arg(more) : QString());
}

} // namespace

ArchivedPrescription::ArchivedPrescription(const QString &givenPath, const QString &innerPath)
    : archivePath(givenPath)
    , archive(givenPath)
    , isKmz(isSame(QFileInfo(givenPath).suffix(), QStringLiteral("kmz")))
    , inner(innerPath)
{
}

bool ArchivedPrescription::fail(const QString &text)
{
    reason = text;
    return false;
}

QString ArchivedPrescription::unpack(const QDir &folder)
{
    const ZipArchive::Entry *main = archive.open() ? choose() : nullptr;
    if (main == nullptr) {
        if (reason.isEmpty())
            fail(archive.error());
        return {};
    }
    const std::vector<const ZipArchive::Entry *> parts = withParts(*main);
    qint64 size = 0;
    for (const ZipArchive::Entry *part : parts)
        size += part->size;
    if (size > ZipArchive::mostBytes) {
        fail(BackendText::tr("\"%1\" in it has more than %2 MB")
                 .arg(main->path, QString::number(ZipArchive::mostBytes >> 20)));
        return {};
    }
    const QString base = folder.filePath(QFileInfo(main->name()).completeBaseName());
    for (const ZipArchive::Entry *part : parts) {
        if (!write(*part, base + QLatin1Char('.') + QFileInfo(part->name()).suffix().toLower()))
            return {};
    }
    return base + QLatin1Char('.') + QFileInfo(main->name()).suffix().toLower();
}

const ZipArchive::Entry *ArchivedPrescription::choose()
{
    std::vector<const ZipArchive::Entry *> found;
    for (const ZipArchive::Entry &entry : archive.entries()) {
        if (isSame(entry.path, inner))
            return &entry;
        if (isCandidate(entry))
            found.push_back(&entry);
    }
    // A .json beside a prescription of another format describes the archive.
    const auto isJson = [](const ZipArchive::Entry *entry) {
        return isSame(QFileInfo(entry->name()).suffix(), QStringLiteral("json"));
    };
    if (!std::all_of(found.begin(), found.end(), isJson))
        found.erase(std::remove_if(found.begin(), found.end(), isJson), found.end());
    keepDocument(found);
    if (found.size() == 1)
        return found.front();
    const QString place = inner.isEmpty() ? QString() : BackendText::tr(" in \"%1\"").arg(inner);
    for (const ZipArchive::Entry *entry : found)
        several.append(entry->path);
    std::stable_sort(several.begin(), several.end(), NaturalOrder());
    if (found.empty())
        fail(BackendText::tr("is an archive that holds no prescription%1").arg(place));
    else // In plain quotes in every language, so that it can be typed as it stands.
        fail(BackendText::tr(
                 "is an archive that holds several prescriptions%1: %2; open one by its path, such as \"%3\"")
                 .arg(place, list(several), archivePath + QLatin1Char('/') + several.front()));
    return nullptr;
}

bool ArchivedPrescription::isCandidate(const ZipArchive::Entry &entry) const
{
    const bool isInside = inner.isEmpty() || entry.path.startsWith(inner + QLatin1Char('/'), Qt::CaseInsensitive);
    // Task data that is alone in an archive is found elsewhere; here it may be one of several prescriptions.
    const bool isTaskData = isSame(entry.name(), QStringLiteral("TASKDATA.XML"));
    const QString ending = QFileInfo(entry.name()).suffix();
    return isInside && !isLitter(entry)
        && (isTaskData || PrescriptionFile::endings().contains(ending, Qt::CaseInsensitive));
}

void ArchivedPrescription::keepDocument(std::vector<const ZipArchive::Entry *> &found)
{
    const auto document = std::find_if(found.begin(), found.end(), [](const ZipArchive::Entry *entry) {
        return isSame(entry->path, QStringLiteral("doc.kml"));
    });
    QByteArray text;
    if (!isKmz || document == found.end() || found.size() == 1 || !archive.unpack(**document, text))
        return;
    if (text.contains("Placemark"))
        found = {*document};
    else
        found.erase(document);
}

std::vector<const ZipArchive::Entry *> ArchivedPrescription::withParts(const ZipArchive::Entry &main) const
{
    std::vector<const ZipArchive::Entry *> parts{&main};
    const QStringList names = partsOf(main);
    for (const QString &name : names) {
        const auto part = std::find_if(archive.entries().begin(), archive.entries().end(),
                                       [&name](const ZipArchive::Entry &entry) { return isSame(entry.path, name); });
        if (part != archive.entries().end())
            parts.push_back(&*part);
    }
    return parts;
}

bool ArchivedPrescription::write(const ZipArchive::Entry &entry, const QString &path)
{
    QByteArray bytes;
    if (!archive.unpack(entry, bytes))
        return fail(archive.error());
    QFile file(path);
    const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
    return isWritten
        || fail(BackendText::tr("\"%1\" in it cannot be unpacked: %2").arg(entry.path, file.errorString()));
}
