#include "removablevolumes.h"

#include <QFile>

#include <memory>
#include <mntent.h>

QStringList RemovableVolumes::mounted(const QString &table)
{
    const std::unique_ptr<FILE, int (*)(FILE *)> file(setmntent(QFile::encodeName(table).constData(), "re"), endmntent);
    QStringList folders;
    while (const mntent *entry = file ? getmntent(file.get()) : nullptr) {
        const QString folder = QFile::decodeName(entry->mnt_dir);
        if (folder.startsWith(QLatin1String("/media/")) || folder.startsWith(QLatin1String("/run/media/")))
            folders.append(folder);
    }
    return folders;
}
