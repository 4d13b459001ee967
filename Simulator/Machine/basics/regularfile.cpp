#include "regularfile.h"

#include <QCoreApplication>
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

QString systemReason(const QFileDevice &file)
{
    // Qt leaves the most frequent ones in English; the system says the others in the language of the desktop.
    [[maybe_unused]] constexpr const char *known[] = {
        QT_TRANSLATE_NOOP("SystemReason", "Permission denied"),
        QT_TRANSLATE_NOOP("SystemReason", "No space left on device"),
        QT_TRANSLATE_NOOP("SystemReason", "No such file or directory"),
        QT_TRANSLATE_NOOP("SystemReason", "Read-only file system"),
        QT_TRANSLATE_NOOP("SystemReason", "Disk quota exceeded"),
        QT_TRANSLATE_NOOP("SystemReason", "File too large"),
    };
    return QCoreApplication::translate("SystemReason", file.errorString().toUtf8().constData());
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
    return isOpen ? QString() : systemReason(file);
}
