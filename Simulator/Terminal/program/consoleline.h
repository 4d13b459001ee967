#pragma once

#include <QString>

// Both write a line at once. Control characters are written as question marks: whatever bytes a file or a library put
// into it, it stays one line and does not disturb the shell's window.

/// On standard output.
void writeOutputLine(const QString &line);
/// On standard error.
void writeErrorLine(const QString &line);
/// Text of several lines, in UTF-8, on standard output as it is.
void writeOutputText(const QByteArray &text);
/// Empty, or why not everything that was printed could be written.
QString outputProblem();
