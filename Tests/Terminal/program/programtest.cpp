#include "programtest.h"

#include "files.h"

#include <QProcess>

ProgramTest::Outcome ProgramTest::run(const QStringList &arguments, const QProcessEnvironment &environment)
{
    return run(QStringLiteral(RXMAP_PROGRAM), arguments, environment);
}

ProgramTest::Outcome ProgramTest::run(const QString &program, const QStringList &arguments,
                                      const QProcessEnvironment &environment)
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    if (!process.waitForFinished(120000) || process.exitStatus() != QProcess::NormalExit)
        return {-1, QString(),
                QStringLiteral("did not end by itself: ") + QString::fromUtf8(process.readAllStandardError())};
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

ProgramTest::Outcome ProgramTest::runInShell(const QString &line, const QStringList &arguments)
{
    return run(QStringLiteral("/bin/sh"),
               QStringList({QStringLiteral("-c"), line, QStringLiteral("sh"), QStringLiteral(RXMAP_PROGRAM)})
                   + arguments,
               QProcessEnvironment::systemEnvironment());
}

QString ProgramTest::write(const QByteArray &content, const QString &name)
{
    return writeFile(folder.filePath(name), content);
}
