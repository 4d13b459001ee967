#include "testbase.h"

#include "paths.h"

#include <QDir>
#include <QFileInfo>

void TestBase::init()
{
    messageWatch.reset();
    messageWatch.reset(new MessageWatch);
}

void TestBase::cleanup()
{
    QVERIFY2(!messageWatch.isNull(), "init() does not call TestBase::init()");
    const QStringList complaints = messageWatch->complaints();
    messageWatch.reset();
    if (!complaints.isEmpty())
        QFAIL(qPrintable(complaints.join(QLatin1Char('\n'))));
}

MessageWatch &TestBase::messages()
{
    return *messageWatch;
}

QString TestBase::realData(const QString &relativePath)
{
    if (realDataFolder().isEmpty() || !QDir(realDataFolder()).exists())
        return QString();
    const QFileInfo file(QDir(realDataFolder()).filePath(relativePath));
    const QStringList matches = file.dir().entryList({file.fileName()}, QDir::AllEntries | QDir::NoDotAndDotDot);
    return QDir::cleanPath(file.dir().filePath(matches.isEmpty() ? file.fileName() : matches.constFirst()));
}
