#include "taskdatafolder.h"

#include "Backend/backendtext.h"
#include "ziparchive.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace {

bool isXml(const QString &name)
{
    return name.endsWith(QLatin1String(".xml"), Qt::CaseInsensitive);
}

/// Path of the file in the archive that task data begins with: that of the wanted file, else of the only TASKDATA.XML
/// in the wanted folder. Empty when there is none, or several.
QString mainEntry(const ZipArchive &archive, const QString &wanted)
{
    QStringList found;
    for (const ZipArchive::Entry &entry : archive.entries()) {
        if (isXml(entry.path) && entry.path.compare(wanted, Qt::CaseInsensitive) == 0)
            return entry.path;
        const bool isInside = wanted.isEmpty() || entry.path.startsWith(wanted + QLatin1Char('/'), Qt::CaseInsensitive);
        if (isInside && TaskDataFolder::isMainFile(entry.name()))
            found.append(entry.path);
    }
    return found.size() == 1 ? found.first() : QString();
}

} // namespace

TaskDataFolder::TaskDataFolder(const QString &path)
{
    const QFileInfo info(path);
    if (info.isDir()) {
        takeFolder(info.absoluteFilePath());
    } else if (info.isFile() && isXml(path)) {
        takeFolder(info.absolutePath());
        main = info.fileName();
    } else {
        takeArchive(path);
    }
}

TaskDataFolder::~TaskDataFolder() = default;

bool TaskDataFolder::isMainFile(const QString &name)
{
    return name.compare(QLatin1String("TASKDATA.XML"), Qt::CaseInsensitive) == 0;
}

void TaskDataFolder::takeFolder(const QString &path)
{
    prefix = path + QLatin1Char('/');
    // Opening a pipe could wait forever.
    names = QDir(path).entryList(QDir::Files, QDir::Name);
    const auto found = std::find_if(names.cbegin(), names.cend(), isMainFile);
    main = found == names.cend() ? QString() : *found;
}

void TaskDataFolder::takeArchive(const QString &path)
{
    QString inner;
    const QString whole = ZipArchive::find(path, inner);
    if (whole.isEmpty())
        return;
    archive = std::make_unique<ZipArchive>(whole);
    // Faults of an archive are reported by those who look for other prescriptions in it.
    const QString entry = archive->open() ? mainEntry(*archive, inner) : QString();
    main = entry.section(QLatin1Char('/'), -1);
    prefix = entry.left(entry.size() - main.size());
    for (const ZipArchive::Entry &any : archive->entries()) {
        if (any.path.size() - any.name().size() == prefix.size() && any.path.startsWith(prefix))
            names.append(any.name());
    }
}

QString TaskDataFolder::find(const QString &baseName, const QString &extension) const
{
    const QString wanted = baseName + QLatin1Char('.') + extension;
    const int exact = names.indexOf(wanted);
    if (exact >= 0)
        return wanted;
    for (const QString &name : names) {
        if (name.compare(wanted, Qt::CaseInsensitive) == 0)
            return name;
    }
    return {};
}

bool TaskDataFolder::read(const QString &name, qint64 most, QByteArray &bytes, QString &error) const
{
    if (sizeOf(name) > most) {
        error = BackendText::tr("%1 has more than %2 bytes").arg(name, QString::number(most));
        return false;
    }
    return archive ? unpack(name, bytes, error) : readFile(name, bytes, error);
}

bool TaskDataFolder::readFile(const QString &name, QByteArray &bytes, QString &error) const
{
    QFile file(prefix + name);
    const qint64 size = file.open(QIODevice::ReadOnly) ? file.size() : -1;
    bytes = size > 0 ? file.read(size) : QByteArray();
    const bool isRead = size >= 0 && file.error() == QFileDevice::NoError;
    if (!isRead)
        error = BackendText::tr("%1 cannot be read: %2").arg(name, file.errorString());
    return isRead;
}

bool TaskDataFolder::unpack(const QString &name, QByteArray &bytes, QString &error) const
{
    const ZipArchive::Entry *entry = archive->entry(prefix + name);
    const bool isRead = entry != nullptr && archive->unpack(*entry, bytes);
    if (!isRead)
        error = archive->error();
    return isRead;
}

qint64 TaskDataFolder::sizeOf(const QString &name) const
{
    if (!archive)
        return QFileInfo(prefix + name).size();
    const ZipArchive::Entry *entry = archive->entry(prefix + name);
    return entry == nullptr ? -1 : entry->size;
}
