#include "scriptmachine.h"

#include "runonuithread.h"
#include "simulation.h"
#include "terminal.h"
#include "vehicle.h"

#include <QJSEngine>

ScriptMachine::ScriptMachine(Terminal *givenTerminal, QObject *parent)
    : QObject(parent)
    , terminal(givenTerminal)
{
}

double ScriptMachine::x() const
{
    return runOnUiThread(terminal, [this] { return terminal->vehicle()->position().x(); });
}

double ScriptMachine::y() const
{
    return runOnUiThread(terminal, [this] { return terminal->vehicle()->position().y(); });
}

double ScriptMachine::heading() const
{
    return runOnUiThread(terminal, [this] { return terminal->vehicle()->heading(); });
}

double ScriptMachine::speed() const
{
    return runOnUiThread(terminal, [this] { return terminal->vehicle()->currentSpeed(); });
}

QString ScriptMachine::mode() const
{
    return runOnUiThread(terminal, [this] { return Motion::modeName(terminal->vehicle()->mode()); });
}

double ScriptMachine::worked() const
{
    return runOnUiThread(terminal, [this] { return terminal->simulation()->workedArea(); });
}

bool ScriptMachine::arrived() const
{
    return runOnUiThread(terminal, [this] { return terminal->vehicle()->isOver(); });
}

QJSValue ScriptMachine::timeFactor() const
{
    return runOnUiThread(terminal, [this] { return terminal->simulation()->timeFactor(); });
}

void ScriptMachine::setTimeFactor(const QJSValue &factor)
{
    const double number = factor.isNumber() ? factor.toNumber() : -1.0;
    if (!runOnUiThread(terminal, [this, number] { return terminal->simulation()->setTimeFactor(number); }))
        qjsEngine(this)->throwError(
            QStringLiteral("a time factor of %1 is out of range (0 to 50)").arg(factor.toString()));
}
