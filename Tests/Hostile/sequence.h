#pragma once

#include <QString>
#include <QVector>

#include <functional>

/// One thing that the host does: an action of the table by its name, and two numbers that it reads as it needs.
struct Step {
    QString action;
    int a;
    int b;
};

using Sequence = QVector<Step>;

/// One step a line: the action's name and its numbers.
QString toText(const Sequence &steps);
/// The reverse; lines that are not steps are left out, so that a printed report can be read as it is.
Sequence fromText(const QString &text);
/// A part of `steps` that still fails and from which no single step can be left out, found by delta debugging (ddmin,
/// Zeller and Hildebrandt 2002). `steps` must fail.
Sequence shortest(Sequence steps, const std::function<bool(const Sequence &)> &fails);
