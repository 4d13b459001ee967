#include "operatorsettings.h"

#include "regularfile.h"

#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <cstdio>

namespace {

constexpr qint64 mostBytes = qint64(4) << 20;

/// Whether a value begins like one that Qt unpacks. The terminal keeps nothing in that form; a file's name may hold the
/// same characters within quotes.
bool holdsPackedValue(const QByteArray &text)
{
    bool isQuoted = false;
    bool isBegin = false;
    for (int i = 0; i < text.size(); ++i) {
        const char letter = text.at(i);
        for (const QByteArray &kind : {QByteArrayLiteral("@Variant("), QByteArrayLiteral("@DateTime(")}) {
            if (isBegin && text.mid(i, kind.size()) == kind)
                return true;
        }
        if (letter == '"')
            isQuoted = !isQuoted;
        isBegin = (isBegin && (letter == ' ' || letter == '"')) || (!isQuoted && (letter == '=' || letter == ','));
        if (letter == '\\')
            ++i;
    }
    return false;
}

/// Why Qt must not read the file; empty where it may.
QString damage(const QString &path)
{
    if (!QFileInfo::exists(path))
        return {};
    const QString lack = regularFileProblem(path);
    if (!lack.isEmpty())
        return lack;
    QFile file(path);
    if (file.size() > mostBytes)
        return QStringLiteral("has more than %1 MB").arg(mostBytes >> 20);
    if (!file.open(QIODevice::ReadOnly))
        return file.errorString();
    return holdsPackedValue(file.readAll()) ? QStringLiteral("is damaged") : QString();
}

} // namespace

OperatorSettings::OperatorSettings()
    : OperatorSettings(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
                       + QStringLiteral("/rxmap/terminal-simulator.ini"))
{
}

OperatorSettings::OperatorSettings(const QString &givenPath)
    : path(givenPath)
{
    QString used = path;
    const QString reason = damage(path);
    if (!reason.isEmpty()) {
        const QString aside = path + QStringLiteral(".damaged");
        const bool isAside =
            std::rename(QFile::encodeName(path).constData(), QFile::encodeName(aside).constData()) == 0;
        problem = QStringLiteral("%1: %2; what the terminal remembers is not used, %3")
                      .arg(path, reason,
                           isAside ? QStringLiteral("the file is now %1").arg(aside)
                                   : QStringLiteral("and nothing new is kept"));
        // If the file cannot be moved, a path where no file can be takes its place.
        isToldAlready = !isAside;
        if (!isAside)
            used = QStringLiteral("/dev/null/settings.ini");
    }
    settings.reset(new QSettings(used, QSettings::IniFormat));
}

QString OperatorSettings::keep()
{
    settings->sync();
    const bool isLost = settings->status() == QSettings::AccessError && !isToldAlready;
    return isLost ? QStringLiteral("%1: cannot be written; nothing new is remembered").arg(path) : QString();
}
