#include "shellsession.h"

#include "paths.h"

#include <QFileInfo>
#include <QProcess>

namespace {

constexpr int longestRunMs = 240000;

} // namespace

ShellSession::ShellSession()
{
    for (const char *from : {"Simulator/Resources/sample/.", "docs/examples/."})
        QProcess::execute(QStringLiteral("cp"), {QStringLiteral("-r"), sourcePath(from), folder.path()});
}

QStringList ShellSession::run(const QString &command) const
{
    const QString programs = QFileInfo(QStringLiteral(RXMAP_SIMULATOR)).path();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("PATH"), programs + QLatin1Char(':') + environment.value(QStringLiteral("PATH")));
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), folder.filePath(QStringLiteral("configuration")));
    // Qt's platform for no display keeps its screen to the end.
    environment.insert(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("detect_leaks=0"));
    QProcess shell;
    shell.setProcessEnvironment(environment);
    shell.setWorkingDirectory(folder.path());
    shell.setProcessChannelMode(QProcess::MergedChannels);
    shell.start(QStringLiteral("bash"), {QStringLiteral("-c"), command});
    if (!shell.waitForFinished(longestRunMs))
        return {QStringLiteral("\"%1\" does not end").arg(command)};
    return QString::fromUtf8(shell.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}
