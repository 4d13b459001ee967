#pragma once

#include "result.h"

#include <QMutex>
#include <QObject>
#include <QString>

#include <atomic>

class QJSEngine;
class QThread;
class Terminal;

/// Runs a script against the terminal. The script has a thread of its own, so that it goes on while the user-interface
/// thread is inside a modal dialog; its calls are carried over one by one (see ScriptTerminal).
class ScriptRunner : public QObject {
    Q_OBJECT

public:
    /// `terminal` is not owned.
    explicit ScriptRunner(Terminal *terminal, QObject *parent = nullptr);

    /// Runs the file to its end, with the event loop turning; the program's end interrupts it. Dialogs that the script
    /// left open are closed. Empty, or the line that tells what went wrong and where.
    QString run(const QString &path);
    /// The same for a script's text; `name` stands for the file in errors.
    QString evaluate(const QString &program, const QString &name);
    /// Ends the script with an error; also when called from a slot while run() turns.
    void interrupt();

private:
    /// Interrupts the script and goes on answering its calls until it has ended.
    void endFromOutside(QThread &thread);
    void useEngine(QJSEngine *running);
    QString evaluateOnThread(const QString &program, const QString &name);

    Terminal *terminal;
    std::atomic<bool> isInterrupted{false};
    QMutex engineMutex;
    QJSEngine *engine = nullptr; ///< While a script runs; guarded by the mutex.
};
