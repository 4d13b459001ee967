#pragma once

#include <QString>

class QJSEngine;
class QJSValue;
class QObject;

/// What every script finds and what it runs in.
namespace ScriptPrelude {

/// Gives the engine the objects `terminal`, which takes no property that it does not have, and `print`. Texts of lists
/// and errors are made so that one without an end is an error of the script: the engine's own way runs out of stack for
/// a list that contains itself, and out of memory for a huge one. Neither object is owned.
void provide(QJSEngine &engine, QObject *terminal, QObject *console);

/// The program so that whatever it throws comes out as an Error of no more than a line or two, which is how the engine
/// tells a failure from a result; the line numbers stay.
QString guarded(const QString &program);

/// The line of the script, from 1, that an error comes from; 0 where it does not know.
int lineOf(const QJSValue &error);

} // namespace ScriptPrelude
