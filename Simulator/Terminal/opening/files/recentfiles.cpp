#include "recentfiles.h"

#include <QFileInfo>
#include <QSettings>

namespace {

const QString key = QStringLiteral("recentFiles");
const QString folderKey = QStringLiteral("lastFolder");

} // namespace

RecentFiles::RecentFiles(QSettings &appSettings)
    : settings(appSettings)
{
}

QStringList RecentFiles::paths() const
{
    return settings.value(key).toStringList().mid(0, most);
}

void RecentFiles::add(const QString &path)
{
    // Another terminal may have opened something meanwhile.
    settings.sync();
    const QString absolute = QFileInfo(path).absoluteFilePath();
    QStringList files = paths();
    files.removeAll(absolute);
    files.prepend(absolute);
    settings.setValue(key, QStringList(files.mid(0, most)));
    settings.sync();
}

QString RecentFiles::folder() const
{
    const QString path = settings.value(folderKey).toString();
    return !path.isEmpty() && QFileInfo(path).isDir() ? path : QString();
}

void RecentFiles::setFolder(const QString &path)
{
    settings.setValue(folderKey, QFileInfo(path).absoluteFilePath());
}
