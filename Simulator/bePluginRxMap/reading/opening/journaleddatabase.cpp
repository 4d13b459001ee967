#include "journaleddatabase.h"

#include "Backend/backendtext.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

bool beginsWith(const QString &path, const QByteArray &text)
{
    QFile file(path);
    return QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly) && file.read(text.size()) == text;
}

/// A journal that is no longer needed is empty or begins with zeros. One that cannot be read may have content.
bool hasContent(const QString &journal)
{
    QFile file(journal);
    if (!QFileInfo(journal).isFile() || QFileInfo(journal).size() == 0)
        return false;
    return !file.open(QIODevice::ReadOnly) || file.read(1) != QByteArray(1, '\0');
}

} // namespace

JournaledDatabase::JournaledDatabase(const QString &filePath)
    : path(filePath)
{
    if (!beginsWith(path, QByteArrayLiteral("SQLite format 3\0")))
        return;
    for (const char *one : {"-wal", "-journal"}) {
        if (hasContent(path + QLatin1String(one)))
            ending = QLatin1String(one);
    }
}

QString JournaledDatabase::state() const
{
    QString state;
    for (const QString &part : {path, path + ending}) {
        const QFileInfo file(part);
        state += QStringLiteral("%1 %2 ").arg(file.size()).arg(file.lastModified().toMSecsSinceEpoch());
    }
    return state;
}

QString JournaledDatabase::copyTo(const QDir &folder)
{
    const QString copy = folder.filePath(QStringLiteral("database.gpkg"));
    const QString before = state();
    for (const QString &part : {QString(), ending}) {
        QFile original(path + part);
        if (!original.copy(copy + part)) {
            reason = BackendText::tr("cannot be read with \"%1\" beside it: %2")
                         .arg(QFileInfo(path + ending).fileName(), original.errorString());
            return {};
        }
        // The copy of a write-protected file is write-protected, too, but an unfinished change is rolled back in it.
        QFile::setPermissions(copy + part, QFile::ReadOwner | QFile::WriteOwner);
    }
    if (state() == before)
        return copy;
    reason = BackendText::tr("is being changed by another program");
    return {};
}
