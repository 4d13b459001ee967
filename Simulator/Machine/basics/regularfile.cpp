#include "regularfile.h"

#include <QFileInfo>

QString regularFileProblem(const QString &path)
{
    const QFileInfo file(path);
    if (!file.exists())
        return QStringLiteral("there is no such file");
    if (file.isDir())
        return QStringLiteral("is a folder, not a file");
    if (!file.isFile())
        return QStringLiteral("is no plain file");
    return file.isReadable() ? QString() : QStringLiteral("cannot be read");
}
