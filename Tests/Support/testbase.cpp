#include "testbase.h"

#include "paths.h"

#include <QDir>

void TestBase::init()
{
    watch.reset();
    watch.reset(new MessageWatch);
}

void TestBase::cleanup()
{
    QVERIFY2(!watch.isNull(), "init() does not call TestBase::init()");
    const QStringList complaints = watch->complaints();
    watch.reset();
    if (!complaints.isEmpty())
        QFAIL(qPrintable(complaints.join(QLatin1Char('\n'))));
}

MessageWatch &TestBase::messages()
{
    return *watch;
}

QString TestBase::realData(const QString &relativePath)
{
    const QDir folder(realDataFolder());
    return folder.exists() ? QDir::cleanPath(folder.filePath(relativePath)) : QString();
}
