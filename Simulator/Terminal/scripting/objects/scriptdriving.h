#pragma once

#include "runonuithread.h"
#include "terminal.h"

#include <QJSValue>
#include <QObject>
#include <QString>

#include <atomic>

/// The part of the script's object `terminal` that drives the machine. See ScriptTerminal.
class ScriptDriving : public QObject {
    Q_OBJECT
    Q_PROPERTY(QJSValue machine READ machine)

public:
    /// `terminal` lives on the user-interface thread and outlives the script; setting `isInterrupted` ends calls that
    /// take long.
    ScriptDriving(Terminal *terminal, const std::atomic<bool> *isInterrupted, QObject *parent = nullptr);

    /// A ScriptMachine.
    QJSValue machine();

    Q_INVOKABLE void drive(double metresPerSecond);
    Q_INVOKABLE void stop();
    /// {kind: "swaths", angle, width, headlands} plans a way over the field, and puts the machine at its start;
    /// {kind: "hand"} leaves it to the wheel. Returns the way's length, metres.
    Q_INVOKABLE double follow(const QJSValue &options);
    /// Per metre, positive to the right.
    Q_INVOKABLE void steer(double curvature);
    /// Returns {points, seconds, badLines, firstBad}.
    Q_INVOKABLE QJSValue replay(const QString &path);
    Q_INVOKABLE void signal(bool isThere);
    Q_INVOKABLE QJSValue rates(const QJSValue &product);
    /// An empty path ends the record.
    Q_INVOKABLE void record(const QString &path);
    Q_INVOKABLE void run(double seconds);

protected:
    template <typename Function> auto onGui(Function function) const { return runOnUiThread(terminal, function); }
    void fail(const QString &reason) const;

    Terminal *terminal;
    const std::atomic<bool> *isInterrupted;
};
