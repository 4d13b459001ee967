#include "scriptrunner.h"

#include "regularfile.h"
#include "scriptconsole.h"
#include "scriptprelude.h"
#include "scriptterminal.h"
#include "terminal.h"

#include <QApplication>
#include <QDialog>
#include <QEventLoop>
#include <QFile>
#include <QJSEngine>
#include <QMutexLocker>
#include <QScopedPointer>
#include <QThread>

namespace {

/// Greatest size of a script's file; nobody writes a longer one.
constexpr qint64 mostBytes = qint64(16) << 20;
/// The longest that calls of a script that is being ended wait for their answer, milliseconds.
constexpr unsigned long answerSlice = 10;

/// Closes popups and dialogs that nobody will answer: their event loops would keep the program running forever.
void closeDialogs()
{
    while (QWidget *popup = QApplication::activePopupWidget())
        popup->close();
    while (QWidget *modal = QApplication::activeModalWidget()) {
        if (auto *dialog = qobject_cast<QDialog *>(modal))
            dialog->reject();
        else
            modal->close();
        if (QApplication::activeModalWidget() == modal)
            return;
    }
}

QString describe(const QJSValue &error, const QString &name)
{
    const int line = ScriptPrelude::lineOf(error);
    const QString place = line > 0 ? QStringLiteral("%1:%2").arg(name, QString::number(line)) : name;
    return QStringLiteral("%1: %2").arg(place, error.toString().simplified());
}

} // namespace

ScriptRunner::ScriptRunner(Terminal *givenTerminal, QObject *parent)
    : QObject(parent)
    , terminal(givenTerminal)
{
}

QString ScriptRunner::run(const QString &path)
{
    const QString problem = regularFileProblem(path);
    if (!problem.isEmpty())
        return QStringLiteral("%1: %2").arg(path, problem);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QStringLiteral("%1: %2").arg(path, file.errorString());
    if (file.size() > mostBytes)
        return QStringLiteral("%1: has more than %2 MB").arg(path, QString::number(mostBytes >> 20));
    const QByteArray program = file.readAll();
    // The engine would take the text before it for the whole.
    const int nul = program.indexOf('\0');
    if (nul >= 0)
        return QStringLiteral("%1:%2: holds a NUL byte, so it is no text")
            .arg(path, QString::number(program.left(nul).count('\n') + 1));
    return evaluate(QString::fromUtf8(program), path);
}

QString ScriptRunner::evaluate(const QString &program, const QString &name)
{
    QString error;
    QEventLoop loop;
    QScopedPointer<QThread> thread(
        QThread::create([this, &program, &name, &error] { error = evaluateOnThread(program, name); }));
    connect(thread.data(), &QThread::finished, &loop, [&loop] {
        closeDialogs();
        loop.quit();
    });
    thread->start();
    loop.exec();
    if (thread->isRunning())
        endFromOutside(*thread);
    thread->wait();
    return error;
}

void ScriptRunner::endFromOutside(QThread &thread)
{
    interrupt();
    // The script may be waiting for an answer, and until it has one it does not see the interrupt.
    while (!thread.wait(answerSlice)) {
        closeDialogs();
        QApplication::processEvents();
    }
    closeDialogs();
}

void ScriptRunner::interrupt()
{
    isInterrupted = true;
    const QMutexLocker locker(&engineMutex);
    if (engine != nullptr)
        engine->setInterrupted(true);
}

void ScriptRunner::useEngine(QJSEngine *running)
{
    const QMutexLocker locker(&engineMutex);
    engine = running;
    if (engine != nullptr && isInterrupted)
        engine->setInterrupted(true);
}

QString ScriptRunner::evaluateOnThread(const QString &program, const QString &name)
{
    QJSEngine scriptEngine;
    ScriptTerminal scriptTerminal(terminal, &isInterrupted, &scriptEngine);
    ScriptConsole console(&scriptEngine);
    ScriptPrelude::provide(scriptEngine, &scriptTerminal, &console);

    useEngine(&scriptEngine);
    const QJSValue result = scriptEngine.evaluate(ScriptPrelude::guarded(program), name);
    useEngine(nullptr);
    if (isInterrupted)
        return QStringLiteral("%1: interrupted").arg(name);
    return result.isError() ? describe(result, name) : QString();
}
