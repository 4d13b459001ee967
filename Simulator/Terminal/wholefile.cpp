#include "wholefile.h"

#include <QFileInfo>
#include <QSaveFile>

namespace {

bool put(QFileDevice &file, const QByteArray &content)
{
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.flush();
}

} // namespace

QString writeWholeFile(const QString &path, const QByteArray &content)
{
    const QString line = QStringLiteral("%1: %2");
    const QFileInfo place(path);
    if (place.exists() && !place.isFile()) {
        QFile file(path);
        return put(file, content) ? QString() : line.arg(path, file.errorString());
    }
    QSaveFile file(path);
    // Where only the file itself may be written, not its folder.
    file.setDirectWriteFallback(true);
    return put(file, content) && file.commit() ? QString() : line.arg(path, file.errorString());
}
