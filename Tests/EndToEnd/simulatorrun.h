#pragma once

#include <QString>
#include <QStringList>

/// The result of a run of the built simulator.
struct SimulatorRun {
    int exitCode = -1;
    QStringList output; ///< Standard output, lines.
    QString errors;     ///< Standard error.
};

/// `settings` are environment variables ("NAME=value") for the run, added to those of the test.
SimulatorRun runSimulator(const QStringList &arguments, const QStringList &settings = {});
/// Runs a script given as text; `arguments` come before it.
SimulatorRun runScript(const QString &script, const QStringList &arguments = {}, const QStringList &settings = {});
/// Runs a script after helpers.js; the sample field's file is `sample` there.
SimulatorRun runOperatorScript(const QString &script, const QStringList &arguments = {});
/// A file of this folder.
QString scriptText(const QString &name);
QString sampleField();
/// The path of the program.
QString simulatorProgram();
/// The environment of a desktop with dark colours and a style of its own, which it keeps in a file of `folder`.
QStringList darkDesktop(const QString &folder);
