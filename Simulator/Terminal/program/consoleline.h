#pragma once

#include <QString>

// Both write a line at once. It stays one line, and leaves the shell's window as it is, whatever bytes a file or a
// library brought into it: control characters are written as question marks.

/// On standard output.
void writeOutputLine(const QString &line);
/// On standard error.
void writeErrorLine(const QString &line);
/// Text of several lines, in UTF-8, on standard output as it is.
void writeOutputText(const QByteArray &text);
/// Empty, or why not everything that was printed could be written.
QString outputProblem();
