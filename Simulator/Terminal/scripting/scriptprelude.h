#pragma once

#include <QString>

class QJSEngine;
class QJSValue;
class QObject;

/// What every script is given, and what it runs in.
namespace ScriptPrelude {

/// Gives the engine the objects `terminal`, which takes no property that it does not have, and `print`. Texts of lists
/// and errors are made in a way of its own, in which an endless one is an error of the script: the engine would run out
/// of stack for a list that contains itself, and out of memory for a huge one. Neither object is owned.
void provide(QJSEngine &engine, QObject *terminal, QObject *console);

/// Wraps the program so that whatever it throws comes out as an Error of a line or two, by which the engine tells a
/// failure from a result. Line numbers stay.
QString guarded(const QString &program);

/// The line of the script, from 1, that an error comes from; 0 where the error does not tell.
int lineOf(const QJSValue &error);

} // namespace ScriptPrelude
