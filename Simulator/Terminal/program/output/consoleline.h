#pragma once

#include <QString>

// Both write a line at once, as VisibleText: whatever bytes a file or a library put into it, it stays one line and does
// not disturb the shell's window.

/// On standard output.
void writeOutputLine(const QString &line);
/// On standard error.
void writeErrorLine(const QString &line);
/// JSON of several lines, in UTF-8, on standard output.
void writeOutputJson(const QByteArray &json);
/// Empty, or why not everything that was printed could be written.
QString outputProblem();
