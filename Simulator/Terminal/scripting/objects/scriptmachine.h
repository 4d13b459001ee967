#pragma once

#include <QJSValue>
#include <QObject>
#include <QString>

class Terminal;

/// The script's object `terminal.machine`: the present state of the machine. It lives on the script's thread, as
/// ScriptTerminal does.
class ScriptMachine : public QObject {
    Q_OBJECT
    /// The implement's middle, metres of the local plane.
    Q_PROPERTY(double x READ x)
    Q_PROPERTY(double y READ y)
    /// Degrees clockwise from north.
    Q_PROPERTY(double heading READ heading)
    /// Metres per second; below 0 backwards.
    Q_PROPERTY(double speed READ speed)
    /// "shuttle", "swaths", "hand" or "replay".
    Q_PROPERTY(QString mode READ mode)
    /// Square metres worked so far.
    Q_PROPERTY(double worked READ worked)
    /// Whether the way that it follows is at its end.
    Q_PROPERTY(bool arrived READ arrived)
    /// Simulated seconds in a real one; 0 pauses.
    Q_PROPERTY(QJSValue timeFactor READ timeFactor WRITE setTimeFactor)

public:
    explicit ScriptMachine(Terminal *terminal, QObject *parent = nullptr);

    double x() const;
    double y() const;
    double heading() const;
    double speed() const;
    QString mode() const;
    double worked() const;
    bool arrived() const;
    QJSValue timeFactor() const;
    void setTimeFactor(const QJSValue &factor);

private:
    Terminal *terminal;
};
