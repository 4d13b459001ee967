#pragma once

#include "terminalhost.h"
#include "testbase.h"

#include <QProcessEnvironment>
#include <QTemporaryDir>

/// Base of the tests that run the program as a process, and files for it.
class ProgramTest : public TestBase {
    Q_OBJECT

protected:
    struct Outcome {
        int status;
        QString output;
        QString errors;
    };

    static Outcome run(const QString &program, const QStringList &arguments, const QProcessEnvironment &environment);
    static Outcome run(const QStringList &arguments, const QProcessEnvironment &environment);
    static Outcome run(const QStringList &arguments)
    {
        return run(arguments, QProcessEnvironment::systemEnvironment());
    }
    /// Runs a shell line with the program and its arguments as "$@".
    static Outcome runInShell(const QString &line, const QStringList &arguments);
    static QProcessEnvironment withoutDisplay()
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(QStringLiteral("DISPLAY"));
        // Qt's platform for no display keeps its screen to the end; that leak is not the program's.
        environment.insert(QStringLiteral("ASAN_OPTIONS"),
                           environment.value(QStringLiteral("ASAN_OPTIONS")) + ":detect_leaks=0");
        return environment;
    }
    static QString zones() { return TerminalHost::fixture(QStringLiteral("three-zones.geojson")); }
    QString write(const QByteArray &content, const QString &name);

    QTemporaryDir folder;
};
