#include "simulatorrun.h"

#include "files.h"
#include "paths.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryFile>

namespace {

constexpr int longestRunMs = 240000;

} // namespace

SimulatorRun runSimulator(const QStringList &arguments, const QStringList &settings)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("QT_FONT_DPI")); // It is the test's own; the program has to manage without it.
    for (const QString &setting : settings)
        environment.insert(setting.section(QLatin1Char('='), 0, 0), setting.section(QLatin1Char('='), 1));
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(simulatorProgram(), arguments);
    SimulatorRun run;
    if (!process.waitForFinished(longestRunMs))
        return run;
    run.exitCode = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    run.output = QString::fromUtf8(process.readAllStandardOutput()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    run.errors = QString::fromUtf8(process.readAllStandardError());
    return run;
}

SimulatorRun runScript(const QString &script, const QStringList &arguments, const QStringList &settings)
{
    QTemporaryFile file(QDir::tempPath() + QStringLiteral("/rxmap-XXXXXX.js"));
    file.open();
    file.write(script.toUtf8());
    file.close();
    return runSimulator(arguments + QStringList{QStringLiteral("--script"), file.fileName()}, settings);
}

SimulatorRun runOperatorScript(const QString &script, const QStringList &arguments)
{
    const QString sample = QStringLiteral("var sample = \"%1\";\n").arg(sampleField());
    return runScript(sample + scriptText(QStringLiteral("helpers.js")) + script, arguments);
}

QString scriptText(const QString &name)
{
    return QString::fromUtf8(readFile(sourcePath("Tests/EndToEnd/scripts/") + name));
}

QString sampleField()
{
    const QDir folder(sourcePath("Simulator/Resources/sample"));
    return folder.filePath(folder.entryList({QStringLiteral("*.shp")}).value(0));
}

QString simulatorProgram()
{
    return QStringLiteral(RXMAP_SIMULATOR);
}

QStringList darkDesktop(const QString &folder)
{
    QByteArray colors;
    for (const char *set : {"Window", "View", "Button"})
        colors += QByteArray("[Colors:") + set + "]\nBackgroundNormal=20,20,20\nForegroundNormal=250,250,250\n";
    writeFile(QDir(folder).filePath(QStringLiteral("kdeglobals")), colors);
    return {QStringLiteral("XDG_CONFIG_HOME=") + folder, QStringLiteral("QT_QPA_PLATFORMTHEME=kde"),
            QStringLiteral("XDG_CURRENT_DESKTOP=KDE"), QStringLiteral("KDE_SESSION_VERSION=5"),
            QStringLiteral("QT_STYLE_OVERRIDE=Windows")};
}
