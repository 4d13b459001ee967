#include "files.h"

#include <QFile>

QString writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.flush();
    return isWritten ? path : QString();
}

QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
