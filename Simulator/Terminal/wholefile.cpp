#include "wholefile.h"

#include "regularfile.h"

#include <QFileInfo>
#include <QSaveFile>

namespace {

bool put(QFileDevice &file, const QByteArray &content)
{
    // A disk that fills up takes part of the content without giving a reason; writing the next part gives it.
    bool isTaken = file.isOpen();
    for (qint64 done = 0, taken = 0; isTaken && done < content.size(); done += taken) {
        taken = file.write(content.constData() + done, content.size() - done);
        isTaken = taken > 0;
    }
    return isTaken;
}

} // namespace

QString writeWholeFile(const QString &path, const QByteArray &content)
{
    const QString line = QStringLiteral("%1: %2");
    const QFileInfo place(path);
    if (place.exists() && !place.isFile()) {
        QFile file(path);
        const QString problem = openOutput(file);
        if (!problem.isEmpty())
            return line.arg(path, problem);
        return put(file, content) ? QString() : line.arg(path, file.errorString());
    }
    QSaveFile file(path);
    // For when only the file itself may be written, not its folder.
    file.setDirectWriteFallback(true);
    const bool isOpen = file.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    return isOpen && put(file, content) && file.commit() ? QString() : line.arg(path, file.errorString());
}
