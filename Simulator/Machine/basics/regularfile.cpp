#include "regularfile.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

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

QString openOutput(QFile &file)
{
    const int probe = open(QFile::encodeName(file.fileName()).constData(), O_WRONLY | O_NONBLOCK | O_CLOEXEC);
    if (probe < 0 && errno == ENXIO)
        return QStringLiteral("is a pipe that nobody reads");
    const bool isOpen = file.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    // Closed only now: a reader would take the probe's end for the end of the content.
    if (probe >= 0)
        close(probe);
    return isOpen ? QString() : file.errorString();
}
