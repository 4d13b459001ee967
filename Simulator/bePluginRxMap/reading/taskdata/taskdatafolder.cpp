#include "taskdatafolder.h"

#include <QDir>
#include <QFileInfo>

#include <cpl_vsi.h>
#include <memory>

namespace {

/// Archives with more entries are not searched.
constexpr int mostEntries = 20000;

struct DirClose {
    void operator()(VSIDIR *dir) const { VSICloseDir(dir); }
};
struct FileClose {
    void operator()(VSILFILE *file) const { VSIFCloseL(file); }
};

bool isMainFile(const QString &name)
{
    return name.compare(QLatin1String("TASKDATA.XML"), Qt::CaseInsensitive) == 0;
}

} // namespace

TaskDataFolder::TaskDataFolder(const QString &path)
{
    const QFileInfo info(path);
    const QString suffix = info.suffix().toLower();
    if (info.isDir()) {
        takeFolder(info.absoluteFilePath());
    } else if (info.isFile() && suffix == QLatin1String("xml")) {
        takeFolder(info.absolutePath());
        main = info.fileName();
    } else if (info.isFile() && suffix == QLatin1String("zip")) {
        takeArchive(info.absoluteFilePath());
    }
}

void TaskDataFolder::takeFolder(const QString &path)
{
    prefix = path + QLatin1Char('/');
    // A pipe would be waited on without end.
    names = QDir(path).entryList(QDir::Files, QDir::Name);
    for (const QString &name : qAsConst(names)) {
        if (isMainFile(name) && main.isEmpty())
            main = name;
    }
}

void TaskDataFolder::takeArchive(const QString &path)
{
    const QString root = QStringLiteral("/vsizip/{%1}").arg(path);
    const std::unique_ptr<VSIDIR, DirClose> archive(VSIOpenDir(root.toUtf8().constData(), -1, nullptr));
    // Entries whose paths leave the archive are none to GDAL.
    QStringList entries;
    const VSIDIREntry *entry = nullptr;
    while (archive && entries.size() < mostEntries && (entry = VSIGetNextDirEntry(archive.get())) != nullptr) {
        if (!VSI_ISDIR(entry->nMode))
            entries.append(QString::fromUtf8(entry->pszName));
    }
    QString folder;
    for (const QString &name : qAsConst(entries)) {
        if (!isMainFile(name.section(QLatin1Char('/'), -1)) || !main.isEmpty())
            continue;
        main = name.section(QLatin1Char('/'), -1);
        folder = name.left(name.size() - main.size());
    }
    prefix = root + QLatin1Char('/') + folder;
    for (const QString &name : qAsConst(entries)) {
        if (name.startsWith(folder) && !name.midRef(folder.size()).contains(QLatin1Char('/')))
            names.append(name.mid(folder.size()));
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
    const std::unique_ptr<VSILFILE, FileClose> file(VSIFOpenL((prefix + name).toUtf8().constData(), "rb"));
    if (!file) {
        error = QStringLiteral("%1 cannot be opened").arg(name);
        return false;
    }
    // What an archive says of sizes may be wrong.
    qint64 part = qBound(qint64(0), sizeOf(name), most) + 1;
    bytes.clear();
    for (bool isAll = false; !isAll && bytes.size() <= most; part = 1 << 20) {
        const int before = bytes.size();
        bytes.resize(before + static_cast<int>(part));
        const size_t read = VSIFReadL(bytes.data() + before, 1, static_cast<size_t>(part), file.get());
        bytes.resize(before + static_cast<int>(read));
        isAll = static_cast<qint64>(read) < part;
    }
    if (bytes.size() > most)
        error = QStringLiteral("%1 has more than %2 bytes").arg(name).arg(most);
    return bytes.size() <= most;
}

qint64 TaskDataFolder::sizeOf(const QString &name) const
{
    VSIStatBufL stat;
    const bool isThere = VSIStatL((prefix + name).toUtf8().constData(), &stat) == 0;
    return isThere ? static_cast<qint64>(stat.st_size) : -1;
}
