#include "messagewatch.h"

#include <QMutex>
#include <QMutexLocker>

namespace {

struct Collected {
    QMutex mutex;
    QStringList debugLines;
    QStringList warnings;
    QStringList expected;
    QtMessageHandler previous = nullptr;
};

Collected &collected()
{
    static Collected instance;
    return instance;
}

/// Complaints of the display server are not the program's fault: without a window manager it refuses focus.
bool isFromDisplay(const QMessageLogContext &context)
{
    return qstrcmp(context.category, "qt.qpa.xcb") == 0;
}

void collect(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    QtMessageHandler previous = nullptr;
    {
        QMutexLocker locker(&collected().mutex);
        if (type == QtDebugMsg || type == QtInfoMsg)
            collected().debugLines.append(text);
        else if (!isFromDisplay(context))
            collected().warnings.append(text);
        previous = collected().previous;
    }
    if (previous != nullptr)
        previous(type, context, text);
}

} // namespace

MessageWatch::MessageWatch()
{
    clear();
    QtMessageHandler previous = qInstallMessageHandler(collect);
    QMutexLocker locker(&collected().mutex);
    collected().previous = previous;
}

MessageWatch::~MessageWatch()
{
    qInstallMessageHandler(collected().previous);
}

void MessageWatch::expectWarning(const QString &text)
{
    QMutexLocker locker(&collected().mutex);
    collected().expected.append(text);
}

QStringList MessageWatch::debugLines() const
{
    QMutexLocker locker(&collected().mutex);
    return collected().debugLines;
}

QStringList MessageWatch::warnings() const
{
    QMutexLocker locker(&collected().mutex);
    return collected().warnings;
}

void MessageWatch::clear()
{
    QMutexLocker locker(&collected().mutex);
    collected().debugLines.clear();
    collected().warnings.clear();
    collected().expected.clear();
}

QStringList MessageWatch::complaints() const
{
    QMutexLocker locker(&collected().mutex);
    QStringList missing = collected().expected;
    QStringList result;
    for (const QString &text : collected().warnings) {
        if (!missing.removeOne(text))
            result.append(QStringLiteral("unexpected warning: ") + text);
    }
    for (const QString &text : missing)
        result.append(QStringLiteral("expected warning did not come: ") + text);
    return result;
}
